#pragma once

#include <QString>
#include <filesystem>
#include <vector>

#include "platform/UserDefaults.h"

namespace tavi {

/// Keys of the settings store. They are a stored format: every letter is kept.
namespace settingskey {
inline constexpr QLatin1String kDefaultValSetting("DefaultValSetting");
inline constexpr QLatin1String kAudio("AUDIO");
inline constexpr QLatin1String kAudioFileType("AudioFileType");
inline constexpr QLatin1String kAudioSegmentCount("AudioSegmentCount");
inline constexpr QLatin1String kAudioQualityType("AudioQualityType");
inline constexpr QLatin1String kAudioQualityTypeIndex("AudioQualityTypeIndex");
inline constexpr QLatin1String kQuickMail("QuickMail");
inline constexpr QLatin1String kIclound("Iclound");
inline constexpr QLatin1String kSort("Sort");
inline constexpr QLatin1String kRewindSong("RewindSong");
inline constexpr QLatin1String kForwardSong("ForwardSong");
inline constexpr QLatin1String kThemeColor("ThemeColor");
inline constexpr QLatin1String kICloudSync("iCloudSync");
inline constexpr QLatin1String kCloudPending("CloudPending");
inline constexpr QLatin1String kMicrophone("Microphone");
inline constexpr QLatin1String kMicrophoneName("MicrophoneName");
inline constexpr QLatin1String kPasscodeProtectionEnabled("PasscodeProtectionEnabled");
/// In the suite that companions share.
inline constexpr QLatin1String kAppStart("AppStart");
}  // namespace settingskey

/// Name of the application group, and of the suite of settings that its companions read.
inline constexpr QLatin1String kApplicationGroup("group.RecorderSharingDefaults");

/// The settings by meaning: typed readers with their fallbacks, and writers that synchronise. Main thread only.
class SettingsStore {
public:
    /// The store must outlive this.
    explicit SettingsStore(UserDefaults& defaults) : m_defaults(defaults) {}

    /// Writes the first-launch values, unless "DefaultValSetting" says that an earlier launch did.
    void writeFirstLaunchValues();
    /// Makes "Sort" 1 where it has no value.
    void writeSortIfAbsent();

    /// Container and file extension of new recordings: "m4a", "wav", "aac", "mp4" or "caf".
    QString audioFileType() const;
    /// Leaves it to the store when this reaches the disk, on purpose: alone among the settings.
    void setAudioFileType(const QString& type);

    /// The quality's display text; on an English device "Low", "Medium" or "High".
    QString audioQualityType() const;
    void setAudioQualityType(const QString& displayText);

    /// Whether a saved recording opens the mail composer. Stored negated under "QuickMail".
    bool isQuickMailOn() const;
    void setQuickMailOn(bool on);

    /// Whether recordings are mirrored into the cloud. Stored negated under "Iclound".
    bool isCloudSyncOn() const;
    void setCloudSyncOn(bool on);

    /// Files that are to be in the cloud and have not been handed to it for sure, such as at the program's end.
    std::vector<std::filesystem::path> cloudPending() const;
    void setCloudPending(const std::filesystem::path& file, bool isPending);
    /// A file has another path by now.
    void moveCloudPending(const std::filesystem::path& from, const std::filesystem::path& to);

    /// The library's sort code, 1 to 6; anything else leaves the folder's order.
    int sort() const;
    void setSort(int code);

    /// Seconds that the player skips back: the stored value, or 10 where that is 0 or absent.
    double rewindSeconds() const;
    void setRewindSeconds(double seconds);
    /// Seconds that the player skips forward: the stored value, or 30 where that is 0 or absent.
    double forwardSeconds() const;
    void setForwardSeconds(double seconds);
    /// The two as they are stored, 0 where absent.
    double storedRewindSeconds() const;
    double storedForwardSeconds() const;

    /// Whether the passcode lock is on: stored as "YES", and anything else is off.
    bool isPasscodeProtectionOn() const;
    /// False, with everything as before, where that cannot be written.
    bool setPasscodeProtectionOn(bool on);

    /// The microphone that the user has chosen, by the sound system's name for it and by what people call it; empty
    /// for the system's default.
    QString microphone() const;
    QString microphoneName() const;
    void setMicrophone(const QString& uid, const QString& name);

    /// Whether what is imported goes to the cloud alone. Nothing writes it.
    bool isICloudSyncOn() const { return m_defaults.boolForKey(settingskey::kICloudSync); }

    /// Whether the library tints its buttons for a white ground.
    bool isThemeWhite() const;

private:
    void write(QLatin1String key, const QVariant& value);

    UserDefaults& m_defaults;
};

}  // namespace tavi
