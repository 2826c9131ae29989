#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

#include "library/RecordingEntry.h"
#include "platform/Error.h"
#include "platform/UserDefaults.h"

namespace tavi {

/// The two suites of settings, as the command line sees them.
struct Suites {
    UserDefaults& standard;
    /// Of the application group.
    UserDefaults& shared;
};

/// The text of a setting: "true" or "false", a number, or the stored text. Fails for a key that is no setting, and for
/// one that has no value.
Result<QString> settingText(const Suites& suites, const QString& key);

/// Stores a setting from its text. Truth is true, false, YES, NO, 1 or 0 in any case. Fails for a key that is no
/// setting and for a value that its type or range does not allow.
Result<void> writeSetting(const Suites& suites, const QString& key, const QString& text);

/// The library for standard output, in UTF-8: a line a recording, its parts divided by tabs (control characters in a
/// name show as "?"), or a JSON array of objects with the entries' keys.
QByteArray recordingsText(const std::vector<RecordingEntry>& recordings, bool json);

}  // namespace tavi
