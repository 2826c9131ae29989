#pragma once

#include <string>

#include "app/cli/CommandServices.h"
#include "platform/Error.h"

namespace tavi {

/// “tavi get”: the value of a setting.
struct GetOptions {
    std::string key;
};

/// The text for standard output.
Result<QByteArray> run(const GetOptions& options, const CommandServices& services);

}  // namespace tavi
