#include "adapters/pulse/PulseSources.h"

#include <algorithm>

namespace tavi {

bool PulseSources::hasMicrophone() const {
    return std::any_of(list.begin(), list.end(), [](const PulseSource& source) { return !source.isMonitor; });
}

bool PulseSources::isInputAvailable(const QByteArray& chosen) const {
    const QByteArray& name = chosen.isEmpty() ? defaultName : chosen;
    const auto found = std::find_if(list.begin(), list.end(), [&name](const PulseSource& source) {
        return source.name == name || QByteArray::number(source.index) == name;
    });
    if (found == list.end() || found->isUnplugged) {
        return false;
    }
    // Where there is no microphone the server makes some monitor the default by itself; only beside a microphone is
    // that somebody's choice.
    return !found->isMonitor || !chosen.isEmpty() || hasMicrophone();
}

}  // namespace tavi
