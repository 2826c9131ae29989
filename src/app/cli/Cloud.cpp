#include "app/cli/Cloud.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "app/cli/Json.h"
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

QLatin1String stateText(CloudFile::State state) {
    switch (state) {
        case CloudFile::State::There:
            return QLatin1String("there");
        case CloudFile::State::Waiting:
        case CloudFile::State::Sending:
            return QLatin1String("waiting");
        case CloudFile::State::OnlyThere:
            return QLatin1String("only there");
        case CloudFile::State::Arriving:
            return QLatin1String("asked for");
    }
    return {};
}

}  // namespace

Result<QByteArray> run(const CloudConnectOptions& options, const CommandServices& services) {
    CloudAccount account;
    QString password;
    if (options.place.starts_with("https://") || options.place.starts_with("http://")) {
        account = CloudAccount::server(QString::fromStdString(options.place), QString::fromStdString(options.user),
                                       options.mayBeInClear);
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

Result<QByteArray> run(const CloudSyncOptions& options, const CommandServices& services) {
    const auto answer = options.removeVanished ? std::optional(true)
                        : options.keepVanished ? std::optional(false)
                                               : std::nullopt;
    return services.cloud.sync(CloudAccount::of(services.suites.standard), answer).map([] { return QByteArray(); });
}

Result<QByteArray> run(const CloudDisconnectOptions& /*options*/, const CommandServices& services) {
    services.cloud.forget(CloudAccount::of(services.suites.standard));
    return stored({}, false, services);
}

Result<QByteArray> run(const CloudStatusOptions& options, const CommandServices& services) {
    const CloudAccount account = CloudAccount::of(services.suites.standard);
    const bool isOn = SettingsStore(services.suites.standard).isCloudSyncOn();
    const bool isNone = account.kind == CloudAccount::Kind::None;
    const CloudOverview overview = isNone ? CloudOverview() : services.cloud.look(account);
    std::map<CloudFile::State, int> counts;
    int conflicts = 0;
    for (const auto& [name, file] : overview.files) {
        ++counts[file.state];
        conflicts += file.isConflict ? 1 : 0;
    }
    const int there = counts[CloudFile::State::There];
    const int waiting = counts[CloudFile::State::Waiting];
    const int onlyThere = counts[CloudFile::State::OnlyThere] + counts[CloudFile::State::Arriving];
    if (options.json) {
        QJsonObject object{{QStringLiteral("place"), account.placeText()},
                           {QStringLiteral("on"), isOn},
                           {QStringLiteral("there"), there},
                           {QStringLiteral("waiting"), waiting},
                           {QStringLiteral("onlyThere"), onlyThere},
                           {QStringLiteral("conflicts"), conflicts}};
        const auto add = [&object](const char* key, const QString& value) {
            value.isEmpty() ? void() : void(object.insert(QLatin1String(key), value));
        };
        add("user", account.user);
        add("lastSync", overview.lastSync.toUTC().toString(Qt::ISODate));
        return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
    }
    if (isNone) {
        return QByteArrayLiteral("no cloud\n");
    }
    QString text = QStringLiteral("%1%2\n%3 in the cloud, %4 waiting, %5 only there, %6 conflict copies\n")
                       .arg(account.placeText(), isOn ? QString() : QStringLiteral(" (off)"))
                       .arg(there)
                       .arg(waiting)
                       .arg(onlyThere)
                       .arg(conflicts);
    if (overview.lastSync.isValid()) {
        text += QStringLiteral("in step at %1\n").arg(overview.lastSync.toString(Qt::ISODate));
    }
    return text.toUtf8();
}

Result<QByteArray> run(const CloudListOptions& options, const CommandServices& services) {
    const CloudAccount account = CloudAccount::of(services.suites.standard);
    if (account.kind == CloudAccount::Kind::None) {
        return failure(QStringLiteral("no cloud"));
    }
    QByteArray text;
    QJsonArray array;
    for (const auto& [name, file] : services.cloud.look(account).files) {
        const QLatin1String state = stateText(file.state);
        array.append(QJsonObject{{QStringLiteral("name"), pathText(name)},
                                 {QStringLiteral("state"), state},
                                 {QStringLiteral("conflict"), file.isConflict}});
        text += lineText(pathText(name)).toUtf8() + '\t' + state.data() + (file.isConflict ? ", conflict\n" : "\n");
    }
    return options.json ? jsonText(array) : text;
}

}  // namespace tavi
