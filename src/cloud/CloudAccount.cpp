#include "cloud/CloudAccount.h"

#include "files/PathText.h"

namespace tavi {

namespace {

constexpr QLatin1String kFolder("CloudFolder");
constexpr QLatin1String kAddress("CloudAddress");
constexpr QLatin1String kUser("CloudUser");

}  // namespace

CloudAccount CloudAccount::of(const UserDefaults& defaults) {
    CloudAccount account;
    // Percent signs keep names that are no text.
    account.folder = QByteArray::fromPercentEncoding(defaults.stringForKey(kFolder).toLatin1()).toStdString();
    account.address = defaults.stringForKey(kAddress);
    account.user = defaults.stringForKey(kUser);
    account.kind = !account.folder.empty() ? Kind::Folder : !account.address.isEmpty() ? Kind::Server : Kind::None;
    return account;
}

bool CloudAccount::store(UserDefaults& defaults) const {
    const QString encoded =
        QString::fromLatin1(QByteArray::fromStdString(folder.native()).toPercentEncoding(QByteArrayLiteral("/")));
    defaults.setObject(kind == Kind::Folder ? encoded : QString(), kFolder);
    defaults.setObject(kind == Kind::Server ? address : QString(), kAddress);
    defaults.setObject(kind == Kind::Server ? user : QString(), kUser);
    return defaults.synchronize();
}

QString CloudAccount::placeText() const {
    return kind == Kind::Folder ? pathText(folder) : address;
}

QString CloudAccount::token() const {
    return kind == Kind::None ? QString() : user + QLatin1Char('@') + placeText();
}

}  // namespace tavi
