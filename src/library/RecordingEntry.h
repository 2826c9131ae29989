#pragma once

#include <QAnyStringView>
#include <QString>
#include <array>
#include <filesystem>

#include "files/FileIdentity.h"

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

/// What the library says about one file: a string-keyed record of strings. Lists hold ten thousands of them, so the six
/// keys have fixed places.
class RecordingEntry {
public:
    /// The key's value; empty for what is no key.
    QString value(QAnyStringView key) const {
        const std::size_t place = placeOf(key);
        return place < kKeys.size() ? m_values[place] : QString();
    }
    /// Does nothing for what is no key.
    void setValue(QAnyStringView key, const QString& value) {
        if (const std::size_t place = placeOf(key); place < kKeys.size()) {
            m_values[place] = value;
        }
    }

    /// The name as the file system has it: what a path is made of. "filename" is only the name to show, as
    /// not every name is text.
    const std::filesystem::path& nativeName() const { return m_nativeName; }
    void setNativeName(const std::filesystem::path& name) { m_nativeName = name; }

    /// Of the file as it was listed; of no file where it is none that could hold sound.
    const FileIdentity& identity() const { return m_identity; }
    void setIdentity(const FileIdentity& identity) { m_identity = identity; }

    bool operator==(const RecordingEntry&) const = default;

private:
    static constexpr std::array kKeys = {entrykey::kFilename, entrykey::kSize,      entrykey::kFilesize,
                                         entrykey::kModdate,  entrykey::kExtension, entrykey::kDuration};
    static std::size_t placeOf(QAnyStringView key) {
        std::size_t place = 0;
        while (place < kKeys.size() && key != QAnyStringView(kKeys[place])) {
            ++place;
        }
        return place;
    }

    std::array<QString, kKeys.size()> m_values;
    std::filesystem::path m_nativeName;
    FileIdentity m_identity;
};

}  // namespace tavi
