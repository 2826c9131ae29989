#pragma once

#include <QByteArray>
#include <QString>
#include <cstdint>
#include <optional>
#include <vector>

namespace tavi {

/// What comes at the end of a sink's line.
enum class PulsePortKind { Other, Speaker, Headphones, Headset, Earpiece };

/// One of the ways out of a sink.
struct PulsePort {
    enum class Availability { Unknown, No, Yes };

    QByteArray name;
    PulsePortKind kind = PulsePortKind::Other;
    Availability availability = Availability::Unknown;
    /// The server's words for the user, in its language.
    QString description;
};

/// What the sound server knows of one sink.
struct PulseSink {
    QByteArray name;
    std::uint32_t index = 0;
    /// Sinks with the same number are parts of one device; PA_INVALID_INDEX for none.
    std::uint32_t card = 0;
    /// What the whole device is; for sinks without ports.
    PulsePortKind kind = PulsePortKind::Other;
    QString description;
    /// Name of the port in use; empty where there are none.
    QByteArray activePort;
    std::vector<PulsePort> ports;
};

/// A sink and its port.
struct PulseWayOut {
    QByteArray sink;
    QByteArray port;

    bool operator==(const PulseWayOut&) const = default;
};

/// The sinks of a sound server, as they were when it was asked last.
struct PulseSinks {
    QByteArray defaultName;
    std::vector<PulseSink> list;

    /// The sink that is played to. chosen is the name or index that the user's environment asks for; empty for the
    /// server's default. Null when there is none.
    const PulseSink* current(const QByteArray& chosen) const;
    /// What sound comes out of, as AudioSession::currentRoute() says it; empty without a sink.
    QString route(const QByteArray& chosen) const;
    /// The loudspeaker of the device that is played to; nothing where it has none.
    std::optional<PulseWayOut> speaker(const QByteArray& chosen) const;
    /// Its headphones if they are plugged in, else its earpiece; nothing where it has neither.
    std::optional<PulseWayOut> receiver(const QByteArray& chosen) const;
    /// What is in use now.
    std::optional<PulseWayOut> inUse(const QByteArray& chosen) const;
    bool has(const PulseWayOut& way) const;

private:
    template <class Wanted>
    std::optional<PulseWayOut> find(const QByteArray& chosen, Wanted wanted) const;
};

/// What words such as a port's name or a device's form factor say.
PulsePortKind pulsePortKindFromWords(const QByteArray& words);

}  // namespace tavi
