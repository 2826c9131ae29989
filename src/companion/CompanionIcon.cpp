#include "companion/CompanionIcon.h"

#include "companion/CompanionMenu.h"

namespace tavi {

CompanionIcon::CompanionIcon(const Services& services) : m_services(services) {
    m_services.icon.setActionHandler([this](int action) { perform(action); });
}

CompanionIcon::~CompanionIcon() {
    stopClock();
    m_services.icon.setActionHandler({});
}

void CompanionIcon::stateChanged() {
    m_shown = m_services.recorder.state();
    stopClock();
    if (m_shown.phase == RecorderState::Phase::Recording) {
        m_clock = m_services.runLoop.scheduledTimer(1.0, true, [this] {
            ++m_shown.seconds;
            show();
        });
    }
    show();
}

void CompanionIcon::show() {
    m_services.icon.show(companionContent(m_shown));
}

void CompanionIcon::stopClock() {
    if (m_clock) {
        m_clock->invalidate();
        m_clock.reset();
    }
}

void CompanionIcon::perform(int action) {
    const auto command = [this](CompanionCommand asked) {
        // A locked recorder asks for the passcode itself.
        m_services.commands.perform(asked, {}, [tell = m_services.tell](Recorder::Outcome outcome, const Error& error) {
            if (outcome == Recorder::Outcome::Failed) {
                tell(error);
            }
        });
    };
    switch (static_cast<CompanionAction>(action)) {
        case CompanionAction::Record:
            command(CompanionCommand::Record);
            break;
        case CompanionAction::Stop:
            command(CompanionCommand::Stop);
            break;
        case CompanionAction::Show:
            command(CompanionCommand::Show);
            break;
        case CompanionAction::Quit:
            m_services.quit();
            break;
        case CompanionAction::None:
            break;
    }
}

}  // namespace tavi
