#pragma once

#include <QByteArray>
#include <cstdint>
#include <vector>

namespace tavi {

/// What the sound server knows of one source.
struct PulseSource {
    QByteArray name;
    std::uint32_t index = 0;
    /// Listens to a sink instead of to a microphone.
    bool isMonitor = false;
    /// It has ports, and each is known to have nothing plugged in.
    bool isUnplugged = false;
};

/// The sources of a sound server, as they were when it was asked last.
struct PulseSources {
    QByteArray defaultName;
    std::vector<PulseSource> list;

    bool hasMicrophone() const;
    /// Whether a recording has something to listen to. chosen is the name or index of the source that the user's
    /// environment asks for; empty for the server's default.
    bool isInputAvailable(const QByteArray& chosen) const;
};

}  // namespace tavi
