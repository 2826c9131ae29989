#pragma once

#include <QByteArray>
#include <cstdint>
#include <vector>

#include "platform/AudioSession.h"

namespace tavi {

/// What the sound server knows of one source.
struct PulseSource {
    QByteArray name;
    std::uint32_t index = 0;
    /// Listens to a sink instead of to a microphone.
    bool isMonitor = false;
    /// It has ports, and each is known to have nothing plugged in.
    bool isUnplugged = false;
    /// What people call it.
    QString description;
};

/// What a session says of its inputs.
struct PulseInputs {
    std::vector<AudioSessionPort> available;
    AudioSessionPort current;

    bool operator==(const PulseInputs&) const = default;
};

/// The sources of a sound server, as they were when it was asked last.
struct PulseSources {
    QByteArray defaultName;
    std::vector<PulseSource> list;

    bool hasMicrophone() const;
    /// Whether a microphone of that name is there, with something plugged in.
    bool isMicrophone(const QByteArray& name) const;
    /// What a recording listens to, or null: the preferred microphone while it is there, else chosen, the name or index
    /// of the source that the user's environment asks for, else the server's default.
    const PulseSource* current(const QByteArray& chosen, const QByteArray& preferred) const;
    PulseInputs inputs(const QByteArray& chosen, const QByteArray& preferred) const;
};

}  // namespace tavi
