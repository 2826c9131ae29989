#pragma once

#include "app/cli/CommandServices.h"
#include "platform/Error.h"

namespace tavi {

/// “tavi recover”: saves the recordings that were not saved, as the program does when it starts.
struct RecoverOptions {};

/// A line for each of them, with what became of it. Fails, with the same lines, when one cannot be saved now.
Result<QByteArray> run(const RecoverOptions& options, const CommandServices& services);

}  // namespace tavi
