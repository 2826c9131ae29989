#pragma once

#include <QString>
#include <algorithm>
#include <array>

namespace tavi {

/// What companions are told of the recorder.
struct RecorderState {
    /// Absent: no recorder runs. Silent: one runs and does not answer. Locked: it says nothing more.
    enum class Phase { Absent, Silent, Locked, Idle, Recording, Paused };

    Phase phase = Phase::Absent;
    /// On the recording's clock when it came to this.
    qint64 seconds = 0;

    bool operator==(const RecorderState&) const = default;
};

/// The phases as words for programs, in their order.
inline constexpr std::array<QLatin1String, 6> kPhaseNames = {QLatin1String("absent"),    QLatin1String("silent"),
                                                             QLatin1String("locked"),    QLatin1String("idle"),
                                                             QLatin1String("recording"), QLatin1String("paused")};

inline QString phaseName(RecorderState::Phase phase) {
    return kPhaseNames[static_cast<std::size_t>(phase)];
}

/// Absent for what is none of them.
inline RecorderState::Phase phaseNamed(const QString& name) {
    const auto found = std::find(kPhaseNames.begin(), kPhaseNames.end(), name);
    return found == kPhaseNames.end() ? RecorderState::Phase::Absent
                                      : static_cast<RecorderState::Phase>(found - kPhaseNames.begin());
}

}  // namespace tavi
