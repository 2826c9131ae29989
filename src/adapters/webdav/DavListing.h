#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <filesystem>
#include <map>
#include <optional>

#include "platform/Error.h"

namespace tavi {

/// A file on a server, as a listing says it.
struct DavFile {
    /// -1 where the server does not say.
    qint64 size = -1;
    /// The entity tag without what servers add on the way (W/, -gzip); empty where there is none.
    QByteArray tag;
    /// As the server writes it.
    QByteArray modified;

    /// What tells one version from another. Two versions of one second may have the same.
    QByteArray version() const { return tag + '|' + QByteArray::number(size) + '|' + modified; }
};

using DavFiles = std::map<std::filesystem::path, DavFile>;

/// An entity tag without the marks of a weak comparison and of compression (RFC 9110, 8.8.3).
QByteArray plainTag(const QByteArray& tag);

/// Whether a name that a server says may be one here: without a slash and control characters, and not "." or "..".
bool isSafeName(const QByteArray& name);

/// Reads the files directly in a folder from a multistatus (RFC 4918, 13). The path is that of the folder's address,
/// decoded. Names are compared as bytes that are decoded once; what is no safe name is left out. Fails for what is no
/// whole multistatus of that folder, for one with a document type, and beyond a hundred thousand entries.
Result<DavFiles> readListing(const QByteArray& xml, const QByteArray& folderPath);

/// The one file that a multistatus is about; nothing for a folder.
Result<std::optional<DavFile>> readFile(const QByteArray& xml);

}  // namespace tavi
