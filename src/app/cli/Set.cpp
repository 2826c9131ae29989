#include "app/cli/Set.h"

#include "app/cli/SettingTexts.h"

namespace tavi {

Result<QByteArray> run(const SetOptions& options, const CommandServices& services) {
    services.suites.launched();
    return writeSetting(services.suites, QString::fromStdString(options.key), QString::fromStdString(options.value))
        .map([] { return QByteArray(); });
}

}  // namespace tavi
