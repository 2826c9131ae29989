#include "adapters/dbus/LifeCycle.h"

namespace tavi {

std::vector<LifeCycle::Event> LifeCycle::update(const Input& input) {
    std::vector<Event> events;
    m_everFocused = m_everFocused || input.focused;
    if (m_state == State::Terminated || (m_state == State::Launching && !input.windowShown)) {
        return events;
    }
    if (m_state == State::Launching) {
        m_state = State::Active;
        events.push_back(Event::DidBecomeActive);
    }
    const State next = target(input);
    if (next == m_state) {
        return events;
    }
    if (m_state == State::Active) {
        events.push_back(Event::WillResignActive);
    }
    if (m_state == State::Background) {
        events.push_back(Event::WillEnterForeground);
    }
    if (next == State::Background) {
        events.push_back(Event::DidEnterBackground);
    }
    if (next == State::Active) {
        events.push_back(Event::DidBecomeActive);
    }
    m_state = next;
    return events;
}

std::vector<LifeCycle::Event> LifeCycle::terminate() {
    if (m_state == State::Terminated) {
        return {};
    }
    m_state = State::Terminated;
    return {Event::WillTerminate};
}

LifeCycle::State LifeCycle::target(const Input& input) const {
    if (!input.windowShown || input.sessionLocked || input.asleep) {
        return State::Background;
    }
    return input.focused || !m_everFocused ? State::Active : State::Inactive;
}

}  // namespace tavi
