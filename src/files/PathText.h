#pragma once

#include <QFile>
#include <QString>
#include <filesystem>

#include "files/FileError.h"
#include "platform/Error.h"

// Names and errors of files as those say them who know Qt.

namespace tavi {

/// The path that a text names, in the file system's bytes.
inline std::filesystem::path nativePath(const QString& text) {
    return QFile::encodeName(text).toStdString();
}

/// A path as people read it. Bytes that are no UTF-8 show as replacement characters, so there is no way back from it.
inline QString pathText(const std::filesystem::path& path) {
    return QFile::decodeName(QByteArray::fromStdString(path.native()));
}

/// What went wrong with a file, as the ports say it.
inline Error errorOf(const FileError& error) {
    return {QString::fromStdString(error.text)};
}

/// The same of a whole result.
inline Result<void> resultOf(const FileResult<void>& result) {
    return result ? Result<void>() : tl::unexpected(errorOf(result.error()));
}

}  // namespace tavi
