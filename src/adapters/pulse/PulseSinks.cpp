#include "adapters/pulse/PulseSinks.h"

#include <pulse/def.h>

#include <algorithm>

namespace tavi {

namespace {

using Availability = PulsePort::Availability;

/// Empty where the server's words are to be used.
QString nameOf(PulsePortKind kind) {
    switch (kind) {
        case PulsePortKind::Speaker:
            return QStringLiteral("Speaker");
        case PulsePortKind::Headphones:
            return QStringLiteral("Headphones");
        case PulsePortKind::Headset:
            return QStringLiteral("Headset");
        case PulsePortKind::Earpiece:
            return QStringLiteral("Receiver");
        case PulsePortKind::Other:
            break;
    }
    return {};
}

}  // namespace

PulsePortKind pulsePortKindFromWords(const QByteArray& words) {
    const struct {
        const char* word;
        PulsePortKind kind;
    } kinds[] = {{"headset", PulsePortKind::Headset},   {"headphone", PulsePortKind::Headphones},
                 {"earpiece", PulsePortKind::Earpiece}, {"handset", PulsePortKind::Earpiece},
                 {"speaker", PulsePortKind::Speaker},   {"internal", PulsePortKind::Speaker}};
    const QByteArray lower = words.toLower();
    const auto* found =
        std::find_if(std::begin(kinds), std::end(kinds), [&](const auto& item) { return lower.contains(item.word); });
    return found == std::end(kinds) ? PulsePortKind::Other : found->kind;
}

const PulseSink* PulseSinks::current(const QByteArray& chosen) const {
    const QByteArray& name = chosen.isEmpty() ? defaultName : chosen;
    const auto found = std::find_if(list.begin(), list.end(), [&name](const PulseSink& sink) {
        return sink.name == name || QByteArray::number(sink.index) == name;
    });
    return found == list.end() ? nullptr : &*found;
}

QString PulseSinks::route(const QByteArray& chosen) const {
    const PulseSink* sink = current(chosen);
    if (sink == nullptr) {
        return {};
    }
    const auto port = std::find_if(sink->ports.begin(), sink->ports.end(),
                                   [sink](const PulsePort& item) { return item.name == sink->activePort; });
    const bool hasPort = port != sink->ports.end();
    // A port of a headset's is often just its output; the device knows better then.
    const bool isTold = hasPort && port->kind != PulsePortKind::Other;
    const QString name = nameOf(isTold ? port->kind : sink->kind);
    return !name.isEmpty() ? name : hasPort && !port->description.isEmpty() ? port->description : sink->description;
}

template <class Wanted>
std::optional<PulseWayOut> PulseSinks::find(const QByteArray& chosen, Wanted wanted) const {
    const PulseSink* played = current(chosen);
    if (played == nullptr) {
        return std::nullopt;
    }
    std::optional<PulseWayOut> found;
    for (const PulseSink& sink : list) {
        // Some devices have a sink for each way out. An environment that asks for one is obeyed.
        const bool isSame = &sink == played;
        if (!isSame && (!chosen.isEmpty() || sink.card == PA_INVALID_INDEX || sink.card != played->card)) {
            continue;
        }
        const auto port = std::find_if(sink.ports.begin(), sink.ports.end(), wanted);
        if (port != sink.ports.end() && (!found || isSame)) {
            found = {sink.name, port->name};
        }
    }
    return found;
}

std::optional<PulseWayOut> PulseSinks::speaker(const QByteArray& chosen) const {
    return find(chosen, [](const PulsePort& port) {
        return port.kind == PulsePortKind::Speaker && port.availability != Availability::No;
    });
}

std::optional<PulseWayOut> PulseSinks::receiver(const QByteArray& chosen) const {
    const auto plugged = find(chosen, [](const PulsePort& port) {
        const bool isWorn = port.kind == PulsePortKind::Headphones || port.kind == PulsePortKind::Headset;
        return isWorn && port.availability == Availability::Yes;
    });
    return plugged ? plugged : find(chosen, [](const PulsePort& port) {
        return port.kind == PulsePortKind::Earpiece && port.availability != Availability::No;
    });
}

std::optional<PulseWayOut> PulseSinks::inUse(const QByteArray& chosen) const {
    const PulseSink* sink = current(chosen);
    return sink == nullptr ? std::nullopt : std::optional(PulseWayOut{sink->name, sink->activePort});
}

bool PulseSinks::has(const PulseWayOut& way) const {
    return std::any_of(list.begin(), list.end(), [&way](const PulseSink& sink) {
        return sink.name == way.sink &&
               (way.port.isEmpty() || std::any_of(sink.ports.begin(), sink.ports.end(),
                                                  [&way](const PulsePort& port) { return port.name == way.port; }));
    });
}

}  // namespace tavi
