#pragma once

#include <QDateTime>

#include "platform/UserDefaults.h"

namespace tavi {

/// Keys of the settings store that the question for a rating counts by. They are a stored format: every letter is kept.
namespace ratingkey {
inline constexpr QLatin1String kAppVersion("appVersion");
inline constexpr QLatin1String kRemindMeLater("remindMeLater");
inline constexpr QLatin1String kDontShowAgain("dontShowAgain");
inline constexpr QLatin1String kLaunchCount("launchCount");
/// A date, as text: ISO 8601 in UTC, with milliseconds.
inline constexpr QLatin1String kFirstLaunch("firstLaunchKey");
inline constexpr QLatin1String kStoreIdentifier("itunesAppID");
}  // namespace ratingkey

/// The counters of the question for a rating, by meaning. Each write synchronises. Main thread only.
class RatingStore {
public:
    /// The store must outlive this.
    explicit RatingStore(UserDefaults& defaults) : m_defaults(defaults) {}

    /// The version of the program that the counters belong to; empty where none has been stored.
    QString appVersion() const { return m_defaults.stringForKey(ratingkey::kAppVersion); }
    void setAppVersion(const QString& version) { write(ratingkey::kAppVersion, version); }

    /// Launches since the last reset.
    int launchCount() const { return m_defaults.integerForKey(ratingkey::kLaunchCount); }
    void setLaunchCount(int count) { write(ratingkey::kLaunchCount, count); }

    /// From when days are counted; invalid where none has been stored, or what is stored is no date.
    QDateTime firstLaunch() const;
    void setFirstLaunch(const QDateTime& date) { write(ratingkey::kFirstLaunch, textOf(date)); }

    bool isDontShowAgain() const { return m_defaults.boolForKey(ratingkey::kDontShowAgain); }
    void setDontShowAgain(bool isUnwanted) { write(ratingkey::kDontShowAgain, isUnwanted); }
    bool isRemindMeLater() const { return m_defaults.boolForKey(ratingkey::kRemindMeLater); }

    /// What the store knows the program as; empty until it has been found there.
    QString storeIdentifier() const { return m_defaults.stringForKey(ratingkey::kStoreIdentifier); }
    void setStoreIdentifier(const QString& identifier) { write(ratingkey::kStoreIdentifier, identifier); }

    /// Counts launches from 0 and days from that date on.
    void restart(bool dontShowAgain, bool remindMeLater, const QDateTime& firstLaunch);

private:
    static QString textOf(const QDateTime& date);
    void write(QLatin1String key, const QVariant& value);

    UserDefaults& m_defaults;
};

}  // namespace tavi
