#include "adapters/qt/QtUserDefaults.h"

#include <sys/stat.h>

#include <QUrl>

#include "files/PathText.h"

namespace tavi {

namespace {

/// The key as the file holds it. QSettings gives '/' and '\' a meaning of their own and refuses the empty key; letters,
/// digits and "-._~" stay as they are, and a lone '%' stands for the empty key since no other key can become that.
QString storedKey(const QString& key) {
    return key.isEmpty() ? QStringLiteral("%") : QString::fromLatin1(QUrl::toPercentEncoding(key));
}

/// The value in a type that an INI file holds as text. QSettings would write most others as a binary blob.
QVariant storedValue(const QVariant& value) {
    switch (value.typeId()) {
        case QMetaType::Bool:
        case QMetaType::Int:
        case QMetaType::LongLong:
        case QMetaType::Double:
        case QMetaType::QString:
            return value;
        case QMetaType::Float:
            return value.toDouble();
        default:
            return value.toString();
    }
}

}  // namespace

QtUserDefaults::QtUserDefaults(const std::filesystem::path& path)
    : m_path(path), m_settings(std::make_unique<QSettings>(pathText(path), QSettings::IniFormat)) {}

QVariant QtUserDefaults::objectForKey(const QString& key) const {
    readIfChanged();
    QVariant value = m_settings->value(storedKey(key));
    if (value.typeId() == QMetaType::QStringList) {
        // A text with a comma that somebody typed without quotes.
        return value.toStringList().join(QLatin1String(", "));
    }
    return value;
}

void QtUserDefaults::setObject(const QVariant& value, const QString& key) {
    const QVariant stored = storedValue(value);
    const QVariant present = objectForKey(key);
    // Writing what is there already would cost a write to the disk at the next synchronize().
    if (!present.isValid() || present.toString() != stored.toString()) {
        m_settings->setValue(storedKey(key), stored);
    }
}

void QtUserDefaults::removeObjectForKey(const QString& key) {
    m_settings->remove(storedKey(key));
}

bool QtUserDefaults::synchronize() {
    if (m_settings->status() != QSettings::NoError) {
        // The status sticks to the object. A new one on the same file starts without it and shares what is unwritten.
        auto fresh = std::make_unique<QSettings>(pathText(m_path), QSettings::IniFormat);
        m_settings = std::move(fresh);
    }
    // Taken before the file is read: a change that comes in between is then seen once too often instead of never.
    m_stamp = stampOfFile();
    m_settings->sync();
    return m_settings->status() != QSettings::AccessError;
}

QtUserDefaults::Stamp QtUserDefaults::stampOfFile() const {
    struct stat status = {};
    if (::stat(m_path.c_str(), &status) != 0) {
        return {};
    }
    return {status.st_ino, status.st_size, status.st_mtim.tv_sec, status.st_mtim.tv_nsec};
}

void QtUserDefaults::readIfChanged() const {
    const Stamp stamp = stampOfFile();
    if (stamp != m_stamp) {
        m_stamp = stamp;
        m_settings->sync();
    }
}

}  // namespace tavi
