#pragma once

#include <filesystem>
#include <map>
#include <system_error>
#include <vector>

#include "files/FileIdentity.h"

namespace tavi {

/// Hidden file that says that a folder is a container: without it the folder's disk is not mounted, or was exchanged.
inline constexpr std::string_view kContainerMark = ".tavi-container";

/// Makes a folder that exists a container. 0 or an errno value.
int markContainer(const std::filesystem::path& container);
bool isContainer(const std::filesystem::path& container);

/// Ordinary files in a folder by name, but for hidden ones: those are in the making.
using FolderListing = std::map<std::filesystem::path, FileIdentity>;
/// Where it cannot be read to its end, what was read so far; the error says so then, where one is given.
FolderListing listFolder(const std::filesystem::path& folder, std::error_code* failure = nullptr);

}  // namespace tavi
