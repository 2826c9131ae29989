#pragma once

#include <string>

#include "app/cli/CommandServices.h"
#include "platform/Error.h"

namespace tavi {

/// “tavi set”: changes a setting.
struct SetOptions {
    std::string key;
    std::string value;
};

/// Prints nothing. The running program sees the value when it next reads the setting. Fails where the running program
/// holds the type or quality of a recording.
Result<QByteArray> run(const SetOptions& options, const CommandServices& services);

}  // namespace tavi
