#include "app/cli/Cloud.h"

#include <QJsonDocument>
#include <QJsonObject>

#include "cloud/CloudAccount.h"
#include "files/PathText.h"

namespace tavi {

namespace {

Result<QByteArray> stored(const CloudAccount& account, bool isOn, const CommandServices& services) {
    SettingsStore settings = services.suites.launched();
    if (!account.store(services.suites.standard)) {
        return failure(QStringLiteral("the settings could not be written"));
    }
    settings.setCloudSyncOn(isOn);
    return run(CloudStatusOptions{}, services);
}

}  // namespace

Result<QByteArray> run(const CloudConnectOptions& options, const CommandServices& services) {
    CloudAccount account;
    QString password;
    if (options.place.starts_with("https://") || options.place.starts_with("http://")) {
        account = CloudAccount::server(QString::fromStdString(options.place), QString::fromStdString(options.user));
        password = account.user.isEmpty() ? QString() : services.cloud.askForPassword();
    } else {
        std::error_code error;
        account.kind = CloudAccount::Kind::Folder;
        account.folder = std::filesystem::canonical(options.place, error);
        if (error || !std::filesystem::is_directory(account.folder, error)) {
            return failure(QStringLiteral("no folder: %1").arg(pathText(options.place)));
        }
    }
    if (const Result<void> prepared = services.cloud.prepare(account, password); !prepared) {
        return tl::unexpected(prepared.error());
    }
    return stored(account, true, services);
}

Result<QByteArray> run(const CloudSyncOptions& /*options*/, const CommandServices& services) {
    return services.cloud.sync(CloudAccount::of(services.suites.standard)).map([] { return QByteArray(); });
}

Result<QByteArray> run(const CloudDisconnectOptions& /*options*/, const CommandServices& services) {
    return stored({}, false, services);
}

Result<QByteArray> run(const CloudStatusOptions& options, const CommandServices& services) {
    const CloudAccount account = CloudAccount::of(services.suites.standard);
    const bool isOn = SettingsStore(services.suites.standard).isCloudSyncOn();
    if (options.json) {
        const QJsonObject object{{QStringLiteral("place"), account.placeText()}, {QStringLiteral("on"), isOn}};
        return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
    }
    if (account.kind == CloudAccount::Kind::None) {
        return QByteArrayLiteral("no cloud\n");
    }
    return QStringLiteral("%1%2\n").arg(account.placeText(), isOn ? QString() : QStringLiteral(" (off)")).toUtf8();
}

}  // namespace tavi
