#include "app/cli/Recover.h"

#include "files/PathText.h"
#include "library/utility/Notifications.h"
#include "recording/RecordingRescue.h"

namespace tavi {

namespace {

using Rescued = RecordingRescue::Rescued;

QString lineOf(const Rescued& rescued) {
    switch (rescued.outcome) {
        case Rescued::Outcome::Saved:
            return QStringLiteral("recovered: %1\n").arg(pathText(rescued.path));
        case Rescued::Outcome::Dropped:
            return QStringLiteral("without sound, removed: %1\n").arg(pathText(rescued.path));
        case Rescued::Outcome::Kept:
            return QStringLiteral("kept: %1: %2\n").arg(pathText(rescued.path), rescued.reason);
        case Rescued::Outcome::InUse:
            return QStringLiteral("in use: %1\n").arg(pathText(rescued.path));
    }
    return {};
}

}  // namespace

Result<QByteArray> run(const RecoverOptions& /*options*/, const CommandServices& services) {
    QString lines;
    bool isAllSaved = true;
    bool hasSaved = false;
    for (const Rescued& rescued : RecordingRescue::rescueAll(services.container, services.repair)) {
        lines += lineOf(rescued);
        hasSaved = hasSaved || rescued.outcome == Rescued::Outcome::Saved;
        isAllSaved = isAllSaved && rescued.outcome != Rescued::Outcome::Kept;
    }
    if (hasSaved) {
        services.notifications.postNotification(kDataUpdatedNotification);
    }
    if (!isAllSaved) {
        return failure(QStringLiteral("not all could be recovered\n") + lines.trimmed());
    }
    return lines.toUtf8();
}

}  // namespace tavi
