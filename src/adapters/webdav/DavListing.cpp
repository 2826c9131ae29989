#include "adapters/webdav/DavListing.h"

#include <QUrl>
#include <QXmlStreamReader>
#include <algorithm>
#include <functional>

namespace tavi {

namespace {

constexpr int kMostEntries = 100'000;
constexpr QLatin1String kDav("DAV:");

struct Response {
    QByteArray href;
    DavFile file;
    bool isFolder = false;
};

/// Text of a property of one propstat, until its status says whether it counts.
void readPropstat(QXmlStreamReader& reader, Response& response) {
    Response found = response;
    bool counts = false;
    while (reader.readNextStartElement()) {
        if (reader.name() == QLatin1String("status")) {
            counts = reader.readElementText().contains(QLatin1String(" 200"));
            continue;
        }
        if (reader.namespaceUri() != kDav || reader.name() != QLatin1String("prop")) {
            reader.skipCurrentElement();
            continue;
        }
        while (reader.readNextStartElement()) {
            const QString name = reader.namespaceUri() == kDav ? reader.name().toString() : QString();
            if (name == QLatin1String("resourcetype")) {
                while (reader.readNextStartElement()) {
                    found.isFolder = found.isFolder || reader.name() == QLatin1String("collection");
                    reader.skipCurrentElement();
                }
                continue;
            }
            const QString text = reader.readElementText(QXmlStreamReader::SkipChildElements);
            if (name == QLatin1String("getcontentlength")) {
                bool isNumber = false;
                const qint64 size = text.trimmed().toLongLong(&isNumber);
                found.file.size = isNumber ? size : -1;
            } else if (name == QLatin1String("getetag")) {
                found.file.tag = plainTag(text.toUtf8());
            } else if (name == QLatin1String("getlastmodified")) {
                found.file.modified = text.trimmed().toUtf8();
            }
        }
    }
    if (counts) {
        response.file = found.file;
        response.isFolder = found.isFolder;
    }
}

Result<void> readResponses(const QByteArray& xml, const std::function<void(const Response&)>& act) {
    QXmlStreamReader reader(xml);
    reader.setEntityExpansionLimit(0);
    while (!reader.atEnd() && reader.readNext() != QXmlStreamReader::StartElement) {
        if (reader.isDTD()) {
            return failure(qtTrId("error_cloud_no_dav"));
        }
    }
    if (!reader.isStartElement() || reader.namespaceUri() != kDav || reader.name() != QLatin1String("multistatus")) {
        return failure(qtTrId("error_cloud_no_dav"));
    }
    int count = 0;
    while (reader.readNextStartElement()) {
        if (++count > kMostEntries) {
            return failure(qtTrId("error_cloud_too_long"));
        }
        if (reader.name() != QLatin1String("response")) {
            reader.skipCurrentElement();
            continue;
        }
        Response response;
        while (reader.readNextStartElement()) {
            if (reader.name() == QLatin1String("href")) {
                response.href = reader.readElementText().trimmed().toUtf8();
            } else if (reader.name() == QLatin1String("propstat")) {
                readPropstat(reader, response);
            } else {
                reader.skipCurrentElement();
            }
        }
        if (!reader.hasError()) {
            act(response);
        }
    }
    while (!reader.atEnd() && !reader.hasError()) {
        reader.readNext();
    }
    // A listing that is cut off must not look like one with fewer files.
    return reader.hasError() ? failure(qtTrId("error_cloud_part")) : Result<void>();
}

/// The path of an address or an absolute path, decoded once; "+" stays what it is.
QByteArray pathOf(QByteArray href) {
    if (const qsizetype scheme = href.indexOf("://"); scheme > 0 && !href.startsWith('/')) {
        const qsizetype slash = href.indexOf('/', scheme + 3);
        href = slash < 0 ? QByteArrayLiteral("/") : href.mid(slash);
    }
    return QByteArray::fromPercentEncoding(href);
}

QByteArray withoutSlash(QByteArray path) {
    while (path.endsWith('/')) {
        path.chop(1);
    }
    return path;
}

}  // namespace

QByteArray plainTag(const QByteArray& tag) {
    QByteArray plain = tag.trimmed();
    if (plain.startsWith("W/")) {
        plain.remove(0, 2);
    }
    if (plain.endsWith("-gzip\"")) {
        plain.replace(plain.size() - 6, 6, "\"");
    }
    return plain;
}

bool isSafeName(const QByteArray& name) {
    return !name.isEmpty() && name != "." && name != ".." && name.size() <= 255 &&
           std::none_of(name.begin(), name.end(),
                        [](char c) { return c == '/' || static_cast<unsigned char>(c) < 32 || c == 127; });
}

Result<DavFiles> readListing(const QByteArray& xml, const QByteArray& folderPath) {
    const QByteArray folder = withoutSlash(folderPath);
    DavFiles files;
    bool hasFolder = false;
    const Result<void> read = readResponses(xml, [&](const Response& response) {
        const QByteArray path = withoutSlash(pathOf(response.href));
        hasFolder = hasFolder || (path == folder && response.isFolder);
        if (response.isFolder || !path.startsWith(folder + '/')) {
            return;
        }
        const QByteArray name = path.mid(folder.size() + 1);
        if (isSafeName(name)) {
            files[name.toStdString()] = response.file;
        }
    });
    if (!read) {
        return tl::unexpected(read.error());
    }
    if (!hasFolder) {
        return failure(qtTrId("error_cloud_no_dav"));
    }
    return files;
}

Result<std::optional<DavFile>> readFile(const QByteArray& xml) {
    std::optional<DavFile> file;
    const Result<void> read = readResponses(xml, [&file](const Response& response) {
        if (!response.isFolder) {
            file = response.file;
        }
    });
    if (!read) {
        return tl::unexpected(read.error());
    }
    return file;
}

}  // namespace tavi
