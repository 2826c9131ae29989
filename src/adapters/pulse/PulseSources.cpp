#include "adapters/pulse/PulseSources.h"

#include <algorithm>

namespace tavi {

bool PulseSources::hasMicrophone() const {
    return std::any_of(list.begin(), list.end(), [](const PulseSource& source) { return !source.isMonitor; });
}

bool PulseSources::isMicrophone(const QByteArray& name) const {
    return std::any_of(list.begin(), list.end(), [&name](const PulseSource& source) {
        return source.name == name && !source.isMonitor && !source.isUnplugged;
    });
}

const PulseSource* PulseSources::current(const QByteArray& chosen, const QByteArray& preferred) const {
    const QByteArray& name = isMicrophone(preferred) ? preferred : chosen.isEmpty() ? defaultName : chosen;
    const auto found = std::find_if(list.begin(), list.end(), [&name](const PulseSource& source) {
        return source.name == name || QByteArray::number(source.index) == name;
    });
    if (found == list.end() || found->isUnplugged) {
        return nullptr;
    }
    // Where there is no microphone the server makes some monitor the default by itself; only beside a microphone is
    // that somebody's choice.
    return !found->isMonitor || !chosen.isEmpty() || hasMicrophone() ? &*found : nullptr;
}

PulseInputs PulseSources::inputs(const QByteArray& chosen, const QByteArray& preferred) const {
    const auto port = [](const PulseSource& source) {
        return AudioSessionPort{QString::fromUtf8(source.name), source.description};
    };
    PulseInputs inputs;
    for (const PulseSource& source : list) {
        if (!source.isMonitor && !source.isUnplugged) {
            inputs.available.push_back(port(source));
        }
    }
    if (const PulseSource* source = current(chosen, preferred)) {
        inputs.current = port(*source);
    }
    return inputs;
}

}  // namespace tavi
