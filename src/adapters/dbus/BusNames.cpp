#include "adapters/dbus/BusNames.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>

#include "files/PathText.h"

namespace tavi {

QString busNameForContainer(const std::filesystem::path& containerPath) {
    QString base = QStringLiteral("com.quillfen.voicerecorder");
    if (containerPath.empty()) {
        return base;
    }
    const QFileInfo info(pathText(containerPath));
    const QString path = info.exists() ? info.canonicalFilePath() : QDir::cleanPath(info.absoluteFilePath());
    const QByteArray digest = QCryptographicHash::hash(path.toUtf8(), QCryptographicHash::Sha256).toHex().left(16);
    // An element of a bus name may not start with a digit.
    return base + QLatin1String(".c") + QString::fromLatin1(digest);
}

}  // namespace tavi
