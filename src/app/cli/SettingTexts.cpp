#include "app/cli/SettingTexts.h"

#include <QCoreApplication>
#include <array>
#include <optional>

#include "app/settings/SettingsStore.h"

namespace tavi {

namespace {

enum class Kind { Truth, FileType, Quality, Text, SortCode, Seconds };

struct Setting {
    QLatin1String key;
    Kind kind;
};

constexpr std::array kSettings = {Setting{settingskey::kDefaultValSetting, Kind::Truth},
                                  Setting{settingskey::kAudio, Kind::Truth},
                                  Setting{settingskey::kAudioFileType, Kind::FileType},
                                  Setting{settingskey::kAudioSegmentCount, Kind::Text},
                                  Setting{settingskey::kAudioQualityType, Kind::Quality},
                                  Setting{settingskey::kAudioQualityTypeIndex, Kind::Text},
                                  Setting{settingskey::kQuickMail, Kind::Truth},
                                  Setting{settingskey::kIclound, Kind::Truth},
                                  Setting{settingskey::kSort, Kind::SortCode},
                                  Setting{settingskey::kRewindSong, Kind::Seconds},
                                  Setting{settingskey::kForwardSong, Kind::Seconds},
                                  Setting{settingskey::kThemeColor, Kind::Text},
                                  Setting{settingskey::kAppStart, Kind::Truth}};

const Setting* settingOf(const QString& key) {
    for (const Setting& setting : kSettings) {
        if (setting.key == key) {
            return &setting;
        }
    }
    return nullptr;
}

UserDefaults& suiteOf(const Suites& suites, const Setting& setting) {
    return setting.key == settingskey::kAppStart ? suites.shared : suites.standard;
}

tl::unexpected<Error> noSuchKey(const QString& key) {
    return failure(QStringLiteral("“%1” is not a setting").arg(key));
}

std::optional<bool> truthOf(const QString& text) {
    const QString lower = text.toLower();
    for (const char* yes : {"true", "yes", "1"}) {
        if (lower == QLatin1String(yes)) {
            return true;
        }
    }
    for (const char* no : {"false", "no", "0"}) {
        if (lower == QLatin1String(no)) {
            return false;
        }
    }
    return std::nullopt;
}

Result<QVariant> valueOf(const Setting& setting, const QString& text) {
    bool isNumber = false;
    switch (setting.kind) {
        case Kind::Truth:
            if (const auto truth = truthOf(text)) {
                return QVariant(*truth);
            }
            return failure(QStringLiteral("%1 is true or false, not “%2”").arg(setting.key, text));
        case Kind::FileType:
            for (const char* type : {"m4a", "wav", "aac", "mp4", "caf"}) {
                if (text == QLatin1String(type)) {
                    return QVariant(text);
                }
            }
            return failure(QStringLiteral("%1 is m4a, wav, aac, mp4 or caf, not “%2”").arg(setting.key, text));
        case Kind::Quality: {
            // The settings screen keeps the text that it shows; a recording knows the English ones of the lower two.
            const QStringList shown{qtTrId("Low"), qtTrId("Medium"), qtTrId("High")};
            if (shown.contains(text) || text == QLatin1String("Low") || text == QLatin1String("Medium")) {
                return QVariant(text);
            }
            return failure(
                QStringLiteral("%1 is %2, not “%3”").arg(setting.key, shown.join(QLatin1String(", ")), text));
        }
        case Kind::SortCode:
            if (const int code = text.toInt(&isNumber); isNumber && code >= 0 && code <= 6) {
                return QVariant(code);
            }
            return failure(QStringLiteral("%1 is a number from 0 to 6, not “%2”").arg(setting.key, text));
        case Kind::Seconds:
            if (const double seconds = text.toDouble(&isNumber); isNumber && seconds >= 0.0 && seconds <= 60.0) {
                return QVariant(seconds);
            }
            return failure(QStringLiteral("%1 is a number of seconds from 0 to 60, not “%2”").arg(setting.key, text));
        case Kind::Text:
            break;
    }
    return QVariant(text);
}

}  // namespace

Result<QString> settingText(const Suites& suites, const QString& key) {
    const Setting* setting = settingOf(key);
    if (setting == nullptr) {
        return noSuchKey(key);
    }
    const QVariant value = suiteOf(suites, *setting).objectForKey(key);
    if (!value.isValid()) {
        return failure(QStringLiteral("%1 has no value").arg(key));
    }
    return setting->kind == Kind::Truth ? QVariant(value.toBool()).toString() : value.toString();
}

Result<void> writeSetting(const Suites& suites, const QString& key, const QString& text) {
    const Setting* setting = settingOf(key);
    if (setting == nullptr) {
        return noSuchKey(key);
    }
    const Result<QVariant> value = valueOf(*setting, text);
    if (!value) {
        return tl::unexpected(value.error());
    }
    UserDefaults& suite = suiteOf(suites, *setting);
    suite.setObject(*value, key);
    if (!suite.synchronize()) {
        return failure(QStringLiteral("the settings cannot be written"));
    }
    return {};
}

}  // namespace tavi
