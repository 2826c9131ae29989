#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

#include "files/FileError.h"
#include "files/FileIdentity.h"

namespace tavi {

/// "NAME (conflict DATE DEVICE).EXT" for "NAME.EXT": another version of the file, which came later. Date and device are
/// any texts without a slash; what would be one is left out.
std::filesystem::path conflictName(const std::filesystem::path& name, std::string_view date, std::string_view device);

/// The name of the file of which this is another version, by the names that programs give such versions; nothing for
/// any other name.
std::optional<std::filesystem::path> originalOfConflict(const std::filesystem::path& name);

/// Puts a whole file in the place of another in the same folder, at once. What was there goes if it is the version that
/// was seen; else it gets the other path, or a numbered one beside that, which is returned. Where nothing was there the
/// file takes the name only. Replaces nothing else. After a failure both files are there, the old one under its name
/// or the other path.
FileResult<std::filesystem::path> replaceSeen(const std::filesystem::path& path, const std::filesystem::path& file,
                                              const std::optional<FileIdentity>& seen,
                                              const std::filesystem::path& otherwise, bool canExchange = true);

}  // namespace tavi
