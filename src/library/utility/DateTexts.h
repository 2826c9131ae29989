#pragma once

#include <QDateTime>
#include <QLocale>
#include <QString>

namespace tavi {

/// Texts of dates in the words and digits of a locale and in the date's own time zone; empty for an invalid date.
/// @{

/// The recording screen's date, such as "05 Mar 2024".
QString recordingDateText(const QDateTime& date, const QLocale& locale);

/// Base name of a new file, such as "2024_Mar_05_14_03_59": one path component whatever the locale's month reads like.
QString fileBaseName(const QDateTime& date, const QLocale& locale);

/// The text without what no file name may hold: a slash becomes "-", a NUL goes.
QString pathComponent(QString text);

/// The library's modification date, such as "05 Mar,2024 | 02:03 PM", with the locale's own spelling of AM and PM.
QString modificationDateText(const QDateTime& date, const QLocale& locale);

/// @}

}  // namespace tavi
