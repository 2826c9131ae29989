#pragma once

#include <functional>
#include <memory>

#include "companion/CompanionCommands.h"
#include "platform/Recorder.h"
#include "platform/RunLoop.h"
#include "platform/StatusIcon.h"

namespace tavi {

/// The icon of the recorder: shows what that does, with the time while it records, and does what is chosen. Main thread
/// only.
class CompanionIcon {
public:
    /// All of it must outlive this. Nothing is done with the recorder's words about a failure but to tell them.
    struct Services {
        Recorder& recorder;
        StatusIcon& icon;
        RunLoop& runLoop;
        CompanionCommands& commands;
        std::function<void()> quit;
        std::function<void(const Error& error)> tell;
    };

    explicit CompanionIcon(const Services& services);
    ~CompanionIcon();
    CompanionIcon(const CompanionIcon&) = delete;
    CompanionIcon& operator=(const CompanionIcon&) = delete;

    /// The recorder's state has become another.
    void stateChanged();

private:
    void show();
    void perform(int action);
    void stopClock();

    const Services m_services;
    /// As the recorder told it, and counted on since.
    RecorderState m_shown;
    std::shared_ptr<Timer> m_clock;
};

}  // namespace tavi
