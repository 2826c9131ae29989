#pragma once

#include <QString>
#include <functional>

#include "platform/Recorder.h"
#include "watch/MMWormhole.h"
#include "watch/TransitingTypes.h"

namespace tavi {

enum class CompanionCommand {
    /// Starts, pauses or resumes.
    Record,
    Stop,
    Show,
    /// Has the recorder show a text.
    Say,
};

/// What companions ask of the recorder: by its URLs, or, where there is a channel, by messages. Main thread only.
class CompanionCommands {
public:
    /// All of it must outlive this; without a channel it is null.
    struct Services {
        Recorder& recorder;
        MMWormhole* channel = nullptr;
        MMWormholeTransitingType channelType = MMWormholeTransitingType::File;
    };
    using Completion = std::function<void(Recorder::Outcome outcome, const Error& error)>;

    explicit CompanionCommands(const Services& services) : m_services(services) {}

    /// The text is for Say, which needs a channel. A recorder that does not run is started to record or to show the
    /// recordings; nothing else is asked of it. What becomes of a message nobody knows.
    void perform(CompanionCommand command, const QString& text, const Completion& completion);

private:
    void pass(const QString& identifier, const QString& message, const Completion& completion);

    const Services m_services;
};

}  // namespace tavi
