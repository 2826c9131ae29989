#include "recording/AudioSettings.h"

namespace tavi {

AudioRecordSettings generateAudioSettings(const QString& fileType, const QString& qualityType) {
    AudioRecordSettings settings;
    if (fileType == QLatin1String("wav")) {
        settings.formatID = kAudioFormatLinearPCM;
    } else if (fileType == QLatin1String("caf")) {
        settings.formatID = kAudioFormatAppleIMA4;
    } else if (fileType == QLatin1String("mp4") || fileType == QLatin1String("aac")) {
        settings.formatID = kAudioFormatMPEG4AAC;
    }
    int quality = 127;
    // On purpose the stored display text is compared with the English words: where a language translates them, every
    // quality records as the highest, which loses nothing.
    if (qualityType == QLatin1String("Low")) {
        settings.sampleRate = 8000.0;
        settings.numberOfChannels = 1;
        quality = 0;
    } else if (qualityType == QLatin1String("Medium")) {
        settings.sampleRate = 16000.0;
        quality = 64;
    }
    settings.encoderAudioQuality = quality;
    settings.sampleRateConverterAudioQuality = quality;
    return settings;
}

QString clockText(std::int64_t seconds) {
    const auto twoDigits = [](std::int64_t value) {
        return QString::number(value).rightJustified(2, QLatin1Char('0'));
    };
    return twoDigits(seconds / 3600) + QLatin1Char(':') + twoDigits(seconds % 3600 / 60) + QLatin1Char(':') +
           twoDigits(seconds % 60);
}

}  // namespace tavi
