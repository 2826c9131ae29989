#include "app/cli/Set.h"

#include "app/cli/SettingTexts.h"
#include "app/settings/FormatHold.h"

namespace tavi {

Result<QByteArray> run(const SetOptions& options, const CommandServices& services) {
    const QString key = QString::fromStdString(options.key);
    // Kept until the setting is written.
    Result<FileDescriptor> leave;
    if (key == settingskey::kAudioFileType || key == settingskey::kAudioQualityType) {
        leave = FormatHold::leaveToChange(services.container);
    }
    if (!leave) {
        return tl::unexpected(leave.error());
    }
    services.suites.launched();
    return writeSetting(services.suites, key, QString::fromStdString(options.value)).map([] { return QByteArray(); });
}

}  // namespace tavi
