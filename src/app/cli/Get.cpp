#include "app/cli/Get.h"

#include "app/cli/SettingTexts.h"

namespace tavi {

Result<QByteArray> run(const GetOptions& options, const CommandServices& services) {
    services.suites.launched();
    return settingText(services.suites, QString::fromStdString(options.key)).map([](const QString& text) {
        return text.toUtf8() + '\n';
    });
}

}  // namespace tavi
