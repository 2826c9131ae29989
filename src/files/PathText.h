#pragma once

#include <QFile>
#include <QString>
#include <filesystem>

namespace tavi {

/// The path that a text names, in the file system's bytes.
inline std::filesystem::path nativePath(const QString& text) {
    return QFile::encodeName(text).toStdString();
}

/// A path as people read it. Bytes that are no UTF-8 show as replacement characters, so there is no way back from it.
inline QString pathText(const std::filesystem::path& path) {
    return QFile::decodeName(QByteArray::fromStdString(path.native()));
}

}  // namespace tavi
