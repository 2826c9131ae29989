#include "watch/MessageFile.h"

#include <QString>

#include "files/DurableFile.h"
#include "files/FileContents.h"
#include "files/PositionedIo.h"

namespace tavi::messagefile {

bool canName(const QString& identifier) {
    constexpr qsizetype kMostBytes = 200;
    return !identifier.isEmpty() && !identifier.contains(QLatin1Char('/')) &&
           !identifier.contains(QLatin1String("..")) && !identifier.contains(QChar(u'\0')) &&
           identifier.toUtf8().size() <= kMostBytes;
}

bool write(const std::filesystem::path& path, const QByteArray& contents) {
    DurableFile file = DurableFile::create(path, {}, Existing::Replace);
    const auto size = static_cast<std::size_t>(contents.size());
    return file.isValid() && writeFully(systemPwrite(), file.fd(), contents.constData(), size, 0).error == 0 &&
           file.publish(Disk::Later) == 0;
}

std::optional<QByteArray> read(const std::filesystem::path& path, qint64 most) {
    const auto contents = FileContents::ofFile(path);
    if (!contents || contents->size() > static_cast<std::uint64_t>(most)) {
        return std::nullopt;
    }
    QByteArray bytes(static_cast<qsizetype>(contents->size()), Qt::Uninitialized);
    bytes.truncate(static_cast<qsizetype>(contents->read(bytes.data(), contents->size(), 0)));
    return bytes;
}

}  // namespace tavi::messagefile
