#include "cloud/CloudAccount.h"

#include <QRegularExpression>
#include <QUrl>

#include "files/PathText.h"

namespace tavi {

namespace {

constexpr QLatin1String kFolder("CloudFolder");
constexpr QLatin1String kAddress("CloudAddress");
constexpr QLatin1String kUser("CloudUser");
constexpr QLatin1String kInClear("CloudInClear");

}  // namespace

CloudAccount CloudAccount::server(const QString& address, const QString& user, bool mayBeInClear) {
    CloudAccount account{Kind::Server, {}, address.trimmed(), user, mayBeInClear};
    account.address += account.address.endsWith(QLatin1Char('/')) ? QString() : QStringLiteral("/");
    return account;
}

bool CloudAccount::isElsewhere() const {
    static const QRegularExpression here(QStringLiteral("^(localhost|127\\.[0-9.]+|::1)$"));
    return kind == Kind::Server && !here.match(QUrl(address).host()).hasMatch();
}

bool CloudAccount::isInClear() const {
    return isElsewhere() && QUrl(address).scheme() == QLatin1String("http");
}

CloudAccount CloudAccount::of(const UserDefaults& defaults) {
    CloudAccount account;
    // Percent signs keep names that are no text.
    account.folder = QByteArray::fromPercentEncoding(defaults.stringForKey(kFolder).toLatin1()).toStdString();
    account.address = defaults.stringForKey(kAddress);
    account.user = defaults.stringForKey(kUser);
    account.mayBeInClear = defaults.boolForKey(kInClear);
    account.kind = !account.folder.empty() ? Kind::Folder : !account.address.isEmpty() ? Kind::Server : Kind::None;
    return account;
}

bool CloudAccount::store(UserDefaults& defaults) const {
    const QString encoded =
        QString::fromLatin1(QByteArray::fromStdString(folder.native()).toPercentEncoding(QByteArrayLiteral("/")));
    defaults.setObject(kind == Kind::Folder ? encoded : QString(), kFolder);
    defaults.setObject(kind == Kind::Server ? address : QString(), kAddress);
    defaults.setObject(kind == Kind::Server ? user : QString(), kUser);
    defaults.setObject(kind == Kind::Server && mayBeInClear, kInClear);
    return defaults.synchronize();
}

QString CloudAccount::placeText() const {
    return kind == Kind::Folder ? pathText(folder) : address;
}

QString CloudAccount::token() const {
    return kind == Kind::None ? QString() : user + QLatin1Char('@') + placeText();
}

}  // namespace tavi
