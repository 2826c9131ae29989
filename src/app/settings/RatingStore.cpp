#include "app/settings/RatingStore.h"

namespace tavi {

QDateTime RatingStore::firstLaunch() const {
    return QDateTime::fromString(m_defaults.stringForKey(ratingkey::kFirstLaunch), Qt::ISODateWithMs);
}

void RatingStore::restart(bool dontShowAgain, bool remindMeLater, const QDateTime& firstLaunch) {
    m_defaults.setObject(dontShowAgain, ratingkey::kDontShowAgain);
    m_defaults.setObject(remindMeLater, ratingkey::kRemindMeLater);
    m_defaults.setObject(0, ratingkey::kLaunchCount);
    write(ratingkey::kFirstLaunch, textOf(firstLaunch));
}

QString RatingStore::textOf(const QDateTime& date) {
    return date.toUTC().toString(Qt::ISODateWithMs);
}

void RatingStore::write(QLatin1String key, const QVariant& value) {
    m_defaults.setObject(value, key);
    m_defaults.synchronize();
}

}  // namespace tavi
