#include "companion/CompanionMenu.h"

#include <QCoreApplication>

namespace tavi {

namespace {

using Phase = RecorderState::Phase;

QString statusText(const RecorderState& state) {
    switch (state.phase) {
        case Phase::Absent:
            return qtTrId("companion_absent");
        case Phase::Silent:
            return qtTrId("companion_silent");
        case Phase::Locked:
            return qtTrId("companion_locked");
        case Phase::Idle:
            return qtTrId("companion_idle");
        case Phase::Recording:
            return qtTrId("companion_recording").arg(companionClock(state.seconds));
        case Phase::Paused:
            break;
    }
    return qtTrId("companion_paused").arg(companionClock(state.seconds));
}

QString recordText(Phase phase) {
    switch (phase) {
        case Phase::Recording:
            return qtTrId("companion_pause");
        case Phase::Paused:
            return qtTrId("companion_resume");
        case Phase::Silent:
        case Phase::Locked:
            return qtTrId("companion_record_or_pause");
        case Phase::Absent:
        case Phase::Idle:
            break;
    }
    return qtTrId("companion_record");
}

QString iconName(Phase phase) {
    switch (phase) {
        case Phase::Recording:
            return QStringLiteral("media-record");
        case Phase::Paused:
            return QStringLiteral("media-playback-pause");
        case Phase::Absent:
        case Phase::Silent:
        case Phase::Locked:
        case Phase::Idle:
            break;
    }
    return QStringLiteral("com.quillfen.voicerecorder");
}

StatusEntry entry(CompanionAction action, const QString& label, bool isEnabled = true) {
    return {.action = static_cast<int>(action), .label = label, .isEnabled = isEnabled};
}

}  // namespace

QString companionClock(qint64 seconds) {
    return QStringLiteral("%1:%2:%3")
        .arg(seconds / 3600, 2, 10, QLatin1Char('0'))
        .arg(seconds / 60 % 60, 2, 10, QLatin1Char('0'))
        .arg(seconds % 60, 2, 10, QLatin1Char('0'));
}

StatusContent companionContent(const RecorderState& state) {
    const Phase phase = state.phase;
    const bool canStop = phase != Phase::Absent && phase != Phase::Idle;
    return {.iconName = iconName(phase),
            .title = qtTrId("app_name"),
            .tip = statusText(state),
            .menu = {entry(CompanionAction::None, statusText(state), false), entry(CompanionAction::None, {}),
                     entry(CompanionAction::Record, recordText(phase)),
                     entry(CompanionAction::Stop, qtTrId("companion_stop"), canStop),
                     entry(CompanionAction::Show, qtTrId("companion_show")), entry(CompanionAction::None, {}),
                     entry(CompanionAction::Quit, qtTrId("companion_quit"))},
            .clickAction = static_cast<int>(CompanionAction::Show)};
}

}  // namespace tavi
