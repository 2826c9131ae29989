#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "app/cli/CommandServices.h"
#include "platform/Error.h"

// The commands that change recordings. They change the files themselves, and have the running program hear of it. A
// recording is named as the list names it: by its file's name, byte by byte.

namespace tavi {

/// “tavi rename”.
struct RenameOptions {
    std::string name;
    /// With or without the extension, which stays.
    std::string newName;
};

/// “tavi delete”.
struct DeleteOptions {
    std::vector<std::string> names;
    /// Past the trash.
    bool permanently = false;
};

/// “tavi export”.
struct ExportOptions {
    std::string name;
    /// A path that nothing has, or a folder.
    std::string to;
};

/// The recording's new path, on a line.
Result<QByteArray> run(const RenameOptions& options, const CommandServices& services);
/// Nothing but why some could not be deleted.
Result<CommandOutput> run(const DeleteOptions& options, const CommandServices& services);
/// The copy's path, on a line.
Result<QByteArray> run(const ExportOptions& options, const CommandServices& services);

}  // namespace tavi
