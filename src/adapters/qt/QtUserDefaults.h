#pragma once

#include <QSettings>
#include <ctime>
#include <filesystem>
#include <memory>

#include "platform/UserDefaults.h"

namespace tavi {

/// Settings in an INI file that people can read and edit: every value is plain text.
///
/// Several processes may use the file at once: a write merges with what others wrote meanwhile and replaces the file
/// atomically, and a read looks first whether the file has changed. A damaged file yields what can be read of it, a
/// file that cannot be read yields nothing.
class QtUserDefaults final : public UserDefaults {
public:
    /// The file and its folder need not exist yet.
    explicit QtUserDefaults(const std::filesystem::path& path);

    QVariant objectForKey(const QString& key) const override;
    void setObject(const QVariant& value, const QString& key) override;
    void removeObjectForKey(const QString& key) override;
    bool synchronize() override;

private:
    /// What tells one version of the file from the next.
    struct Stamp {
        quint64 inode = 0;
        qint64 size = -1;
        std::time_t seconds = 0;
        long nanoseconds = 0;

        bool operator==(const Stamp&) const = default;
    };

    Stamp stampOfFile() const;
    void readIfChanged() const;

    std::filesystem::path m_path;
    std::unique_ptr<QSettings> m_settings;
    mutable Stamp m_stamp;
};

}  // namespace tavi
