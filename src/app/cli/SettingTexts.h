#pragma once

#include <QString>

#include "app/cli/CommandServices.h"
#include "platform/Error.h"

namespace tavi {

/// The text of a setting: "true" or "false", a number, or the stored text. Fails for a key that is no setting, and for
/// one that has no value.
Result<QString> settingText(const Suites& suites, const QString& key);

/// Stores a setting from its text. Truth is true, false, YES, NO, 1 or 0 in any case. Fails for a key that is no
/// setting and for a value that its type or range does not allow.
Result<void> writeSetting(const Suites& suites, const QString& key, const QString& text);

}  // namespace tavi
