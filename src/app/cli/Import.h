#pragma once

#include <string>
#include <vector>

#include "app/cli/CommandServices.h"
#include "platform/Error.h"

namespace tavi {

/// “tavi import”: copies sound files among the recordings. Paths are the names' own bytes.
struct ImportOptions {
    std::vector<std::string> files;
};

/// The path of each new recording, on a line, and why the others are none.
Result<CommandOutput> run(const ImportOptions& options, const CommandServices& services);

}  // namespace tavi
