#pragma once

#include <string>

#include "app/cli/CommandServices.h"
#include "platform/Error.h"

namespace tavi {

/// “tavi trim”: copies a part of a recording into a new file. Paths are the names' own bytes.
struct TrimOptions {
    std::string file;
    /// Seconds.
    double from = 0.0;
    double to = 0.0;
    /// The new file; empty for a free name among the recordings.
    std::string out;
};

/// The new file's path, on a line.
Result<QByteArray> run(const TrimOptions& options, const CommandServices& services);

}  // namespace tavi
