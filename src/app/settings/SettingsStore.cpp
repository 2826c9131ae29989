#include "app/settings/SettingsStore.h"

#include <QStringList>
#include <algorithm>

namespace tavi {

namespace {

constexpr double kDefaultRewindSeconds = 10.0;
constexpr double kDefaultForwardSeconds = 30.0;

double secondsOr(const UserDefaults& defaults, QLatin1String key, double fallback) {
    const double stored = defaults.floatForKey(key);
    return stored > 0.0 ? stored : fallback;
}

QString textOr(const UserDefaults& defaults, QLatin1String key, QLatin1String fallback) {
    const QString stored = defaults.stringForKey(key);
    return stored.isEmpty() ? QString(fallback) : stored;
}

/// One text for all of them, as settings hold no lists; none of them has a space.
QStringList pendingTexts(const UserDefaults& defaults) {
    return defaults.stringForKey(settingskey::kCloudPending).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

}  // namespace

void SettingsStore::writeFirstLaunchValues() {
    using namespace settingskey;
    if (m_defaults.boolForKey(kDefaultValSetting)) {
        return;
    }
    m_defaults.setObject(true, kDefaultValSetting);
    m_defaults.setObject(true, kAudio);
    m_defaults.setObject(QStringLiteral("m4a"), kAudioFileType);
    m_defaults.setObject(QStringLiteral("0"), kAudioSegmentCount);
    m_defaults.setObject(QStringLiteral("Medium"), kAudioQualityType);
    m_defaults.setObject(QStringLiteral("1"), kAudioQualityTypeIndex);
    m_defaults.setObject(true, kQuickMail);
    m_defaults.setObject(true, kIclound);
    m_defaults.synchronize();
}

void SettingsStore::writeSortIfAbsent() {
    if (!m_defaults.objectForKey(settingskey::kSort).isValid()) {
        write(settingskey::kSort, 1);
    }
}

QString SettingsStore::audioFileType() const {
    return textOr(m_defaults, settingskey::kAudioFileType, QLatin1String("m4a"));
}

void SettingsStore::setAudioFileType(const QString& type) {
    m_defaults.setObject(type, settingskey::kAudioFileType);
}

QString SettingsStore::audioQualityType() const {
    return textOr(m_defaults, settingskey::kAudioQualityType, QLatin1String("Medium"));
}

void SettingsStore::setAudioQualityType(const QString& displayText) {
    write(settingskey::kAudioQualityType, displayText);
}

bool SettingsStore::isQuickMailOn() const {
    return !m_defaults.boolForKey(settingskey::kQuickMail);
}

void SettingsStore::setQuickMailOn(bool on) {
    write(settingskey::kQuickMail, !on);
}

bool SettingsStore::isCloudSyncOn() const {
    return !m_defaults.boolForKey(settingskey::kIclound);
}

void SettingsStore::setCloudSyncOn(bool on) {
    write(settingskey::kIclound, !on);
}

std::vector<std::filesystem::path> SettingsStore::cloudPending() const {
    std::vector<std::filesystem::path> files;
    for (const QString& text : pendingTexts(m_defaults)) {
        // Percent signs keep names that are no text.
        files.push_back(QByteArray::fromPercentEncoding(text.toLatin1()).toStdString());
    }
    return files;
}

void SettingsStore::setCloudPending(const std::filesystem::path& file, bool isPending) {
    QStringList texts = pendingTexts(m_defaults);
    const QString text =
        QString::fromLatin1(QByteArray::fromStdString(file.native()).toPercentEncoding(QByteArrayLiteral("/")));
    if (texts.contains(text) != isPending) {
        isPending ? texts.append(text) : void(texts.removeAll(text));
        write(settingskey::kCloudPending, texts.join(QLatin1Char(' ')));
    }
}

void SettingsStore::moveCloudPending(const std::filesystem::path& from, const std::filesystem::path& to) {
    const auto pending = cloudPending();
    if (std::find(pending.begin(), pending.end(), from) != pending.end()) {
        setCloudPending(from, false);
        setCloudPending(to, true);
    }
}

int SettingsStore::sort() const {
    return m_defaults.integerForKey(settingskey::kSort);
}

void SettingsStore::setSort(int code) {
    write(settingskey::kSort, code);
}

double SettingsStore::rewindSeconds() const {
    return secondsOr(m_defaults, settingskey::kRewindSong, kDefaultRewindSeconds);
}

void SettingsStore::setRewindSeconds(double seconds) {
    write(settingskey::kRewindSong, seconds);
}

double SettingsStore::forwardSeconds() const {
    return secondsOr(m_defaults, settingskey::kForwardSong, kDefaultForwardSeconds);
}

void SettingsStore::setForwardSeconds(double seconds) {
    write(settingskey::kForwardSong, seconds);
}

double SettingsStore::storedRewindSeconds() const {
    return m_defaults.objectForKey(settingskey::kRewindSong).toDouble();
}

double SettingsStore::storedForwardSeconds() const {
    return m_defaults.objectForKey(settingskey::kForwardSong).toDouble();
}

bool SettingsStore::isPasscodeProtectionOn() const {
    return m_defaults.stringForKey(settingskey::kPasscodeProtectionEnabled) == QLatin1String("YES");
}

bool SettingsStore::setPasscodeProtectionOn(bool on) {
    constexpr QLatin1String kKey = settingskey::kPasscodeProtectionEnabled;
    const QVariant before = m_defaults.objectForKey(kKey);
    const QString value = on ? QStringLiteral("YES") : QStringLiteral("NO");
    m_defaults.setObject(value, kKey);
    if (m_defaults.synchronize() || before.toString() == value) {
        return true;
    }
    // Else it would hold until the end of the program, and not after it.
    if (before.isValid()) {
        m_defaults.setObject(before, kKey);
    } else {
        m_defaults.removeObjectForKey(kKey);
    }
    return false;
}

QString SettingsStore::microphone() const {
    return m_defaults.stringForKey(settingskey::kMicrophone);
}

QString SettingsStore::microphoneName() const {
    return m_defaults.stringForKey(settingskey::kMicrophoneName);
}

void SettingsStore::setMicrophone(const QString& uid, const QString& name) {
    m_defaults.setObject(name, settingskey::kMicrophoneName);
    write(settingskey::kMicrophone, uid);
}

bool SettingsStore::isThemeWhite() const {
    return m_defaults.stringForKey(settingskey::kThemeColor) == QLatin1String("WHITE");
}

void SettingsStore::write(QLatin1String key, const QVariant& value) {
    m_defaults.setObject(value, key);
    m_defaults.synchronize();
}

}  // namespace tavi
