#include "trimming/TrimRules.h"

#include <QCoreApplication>
#include <QLocale>
#include <algorithm>

#include "files/PathText.h"
#include "library/utility/DateTexts.h"

namespace tavi::trimrules {

namespace {

constexpr double kLeastSelection = 1.0;
/// How far below the least stretch a fast movement may end.
constexpr double kOvershoot = 0.001;
constexpr double kMilliseconds = 1000.0;
constexpr quint64 kMillisecondsPerSecond = 1000;
constexpr quint64 kMillisecondsPerMinute = 60'000;
constexpr quint64 kSecondsPerMinute = 60;

QString twoDigits(quint64 number) {
    return QString::number(number).rightJustified(2, QLatin1Char('0'));
}

bool shrinks(TrimThumb thumb, double translation) {
    return thumb == TrimThumb::Left ? translation > 0.0 : translation < 0.0;
}

}  // namespace

TrimTimes selection(const TrimThumbs& thumbs, double duration, double containerWidth) {
    return {thumbs.left * duration / containerWidth, thumbs.right * duration / containerWidth};
}

double labelLeft(double thumbCentre, double labelWidth, double containerWidth) {
    const double left = thumbCentre - labelWidth / 2.0;
    if (left < 0.0) {
        return 0.0;
    }
    return left + labelWidth > containerWidth ? containerWidth - labelWidth : left;
}

bool isMoveAllowed(TrimThumb thumb, const TrimTimes& times, double translation) {
    return times.length() > kLeastSelection || !shrinks(thumb, translation);
}

double movedCentre(double centre, double translation, double containerWidth) {
    return std::clamp(centre + translation, 0.0, containerWidth);
}

double firstStep(TrimThumb thumb, const TrimTimes& times, double translation, double duration, double containerWidth) {
    const double room = (times.length() - kLeastSelection + kOvershoot) * containerWidth / duration;
    if (!shrinks(thumb, translation) || !(duration > 0.0) || times.length() <= kLeastSelection) {
        return translation;
    }
    return std::clamp(translation, -room, room);
}

QString timeFormatted(double seconds, bool isWithMinutes) {
    // What is no time, or before the beginning, is the beginning.
    const auto milliseconds =
        seconds > 0.0 ? static_cast<quint64>(std::min(seconds * kMilliseconds, 1e18)) : quint64{0};
    const quint64 hundredths = QString::number(milliseconds % kMillisecondsPerSecond).left(2).toULongLong();
    const QString text =
        twoDigits(milliseconds / kMillisecondsPerSecond % kSecondsPerMinute) + QLatin1Char('.') + twoDigits(hundredths);
    return isWithMinutes ? twoDigits(milliseconds / kMillisecondsPerMinute) + QLatin1Char(':') + text : text;
}

QString rangeText(const TrimTimes& times) {
    const auto exact = [](double seconds) {
        constexpr quint64 kHundredthsPerMinute = 6000;
        constexpr double kHundredths = 100.0;
        const auto all = static_cast<quint64>(std::clamp(seconds * kHundredths, 0.0, 1e17));
        return QString::number(all / kHundredthsPerMinute) + QLatin1Char(':') +
               twoDigits(all % kHundredthsPerMinute / 100) + QLatin1Char('.') + twoDigits(all % 100);
    };
    return qtTrId("trimmer_range")
        .arg(exact(times.start), exact(times.end), QLocale().toString(times.length(), 'f', 1));
}

std::string pathExtension(const std::filesystem::path& name) {
    const std::string extension = name.extension();
    return extension.empty() ? extension : extension.substr(1);
}

std::filesystem::path outputPath(const std::filesystem::path& folder, const QDateTime& date,
                                 const std::filesystem::path& name) {
    return folder / (nativePath(QStringLiteral("Trim_") + fileBaseName(date, QLocale()) + QLatin1Char('.')).native() +
                     pathExtension(name));
}

AssetFileType outputFileType(const std::filesystem::path& name) {
    const QByteArray extension = QByteArray::fromStdString(pathExtension(name)).toLower();
    if (extension == "wav") {
        return AssetFileType::Wave;
    }
    return extension == "caf" ? AssetFileType::CoreAudioFormat : AssetFileType::AppleM4A;
}

}  // namespace tavi::trimrules
