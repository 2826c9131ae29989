#pragma once

#include "app/cli/CommandServices.h"
#include "platform/Error.h"

namespace tavi {

/// “tavi list”: the recordings, in the library's order.
struct ListOptions {
    bool json = false;
};

/// In UTF-8: a line a recording, its parts divided by tabs, or a JSON array of objects with the entries' keys.
Result<QByteArray> run(const ListOptions& options, const CommandServices& services);

}  // namespace tavi
