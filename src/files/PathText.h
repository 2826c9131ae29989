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

/// Whether a terminal would act on a character, or show the line in another order: control characters, ends of lines
/// and paragraphs, and all formatting but what joins letters and signs.
inline bool isUnseen(QChar character) {
    constexpr char16_t kNonJoiner = 0x200c;
    constexpr char16_t kJoiner = 0x200d;
    switch (character.category()) {
        case QChar::Other_Control:
        case QChar::Separator_Line:
        case QChar::Separator_Paragraph:
            return true;
        case QChar::Other_Format:
            return character != kNonJoiner && character != kJoiner;
        default:
            return false;
    }
}

/// A text of somebody else's on one line: what is not seen shows as "?", so that none can look like another one.
inline QString lineText(QString text) {
    for (QChar& character : text) {
        character = isUnseen(character) ? QLatin1Char('?') : character;
    }
    return text;
}

/// The same of a path.
inline QString lineText(const std::filesystem::path& path) {
    return lineText(pathText(path));
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
