#pragma once

#include <vector>

namespace tavi {

/// Decides from the window's and the session's state which calls of the life cycle are due. A pure state machine.
///
/// This is the one place that says what background and foreground are. The program is in the background while its
/// window is not shown (minimised, hidden, or no longer exposed), the session is locked or the machine sleeps;
/// otherwise it is active with the focus and inactive without. A window system that has never given it the focus, as an
/// X server without a window manager, cannot take it away either: there, shown is active.
class LifeCycle {
public:
    enum class Event { DidBecomeActive, WillResignActive, DidEnterBackground, WillEnterForeground, WillTerminate };

    struct Input {
        /// Exposed, and neither minimised nor hidden.
        bool windowShown = false;
        bool focused = false;
        bool sessionLocked = false;
        /// Asleep, or about to be.
        bool asleep = false;
    };

    /// Takes the present state and returns what it causes, in order. The first time that the window is shown counts as
    /// becoming active whatever else holds: what the program was started for is done then.
    std::vector<Event> update(const Input& input);
    /// Returns WillTerminate the first time, and nothing later; nor does update() from then on.
    std::vector<Event> terminate();

private:
    enum class State { Launching, Active, Inactive, Background, Terminated };

    State target(const Input& input) const;

    State m_state = State::Launching;
    bool m_everFocused = false;
};

}  // namespace tavi
