#pragma once

#include <filesystem>
#include <map>
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
FolderListing listFolder(const std::filesystem::path& folder);

}  // namespace tavi
