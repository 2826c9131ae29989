#include "library/utility/DateTexts.h"

namespace tavi {

QString recordingDateText(const QDateTime& date, const QLocale& locale) {
    return locale.toString(date, QStringLiteral("dd MMM yyyy"));
}

QString fileBaseName(const QDateTime& date, const QLocale& locale) {
    return pathComponent(locale.toString(date, QStringLiteral("yyyy_MMM_dd_HH_mm_ss")));
}

QString pathComponent(QString text) {
    text.replace(QLatin1Char('/'), QLatin1Char('-'));
    text.remove(QChar());
    return text;
}

QString modificationDateText(const QDateTime& date, const QLocale& locale) {
    return locale.toString(date, QStringLiteral("dd MMM,yyyy | hh:mm aP"));
}

}  // namespace tavi
