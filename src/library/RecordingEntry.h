#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

namespace tavi {

/// Keys of a RecordingEntry. Lists are sorted by key, so they are part of the design.
namespace entrykey {
/// Last path component, extension included; bytes that are no UTF-8 show as replacement characters.
inline constexpr QLatin1String kFilename("filename");
/// Megabytes with six decimals, such as "10.500000".
inline constexpr QLatin1String kSize("size");
/// Size as shown, such as "10.5 MB" or "317 KB".
inline constexpr QLatin1String kFilesize("filesize");
/// Modification date as shown, such as "05 Mar,2024 | 02:03 PM".
inline constexpr QLatin1String kModdate("moddate");
/// Path extension without its dot, case kept.
inline constexpr QLatin1String kExtension("extension");
/// "mm:ss"; minutes go beyond 59.
inline constexpr QLatin1String kDuration("duration");
}  // namespace entrykey

/// What the library says about one file: a string-keyed record of strings.
class RecordingEntry {
public:
    /// The key's value; empty where there is none.
    QString value(const QString& key) const { return m_values.value(key); }
    void setValue(const QString& key, const QString& value) { m_values.insert(key, value); }

    /// The name as the file system has it, in bytes: what a path is made of. "filename" is only the name to show, as
    /// not every name is text.
    const QByteArray& nativeName() const { return m_nativeName; }
    void setNativeName(const QByteArray& name) { m_nativeName = name; }

    bool operator==(const RecordingEntry&) const = default;

private:
    QHash<QString, QString> m_values;
    QByteArray m_nativeName;
};

}  // namespace tavi
