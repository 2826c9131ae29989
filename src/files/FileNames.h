#pragma once

#include <filesystem>
#include <string_view>

namespace tavi {

/// Folders among the recordings, which no list shows as recordings.
namespace foldername {
/// The recordings of the cloud.
inline constexpr std::string_view kCloud = "ICloud";
/// What other programs hand over.
inline constexpr std::string_view kInbox = "Inbox";
/// Files in the making.
inline constexpr std::string_view kPrivateInbox = "PrivateInbox";
}  // namespace foldername

/// The folder beside that of the unsaved recordings with what is kept in step with servers.
inline constexpr std::string_view kMirrorsFolder = "Cloud";

/// Whether a recording can have that name: it is one name, and of none of these folders.
bool isRecordingName(const std::filesystem::path& name);

/// The folder in which a path's last name lies: "." for a path of one name.
std::filesystem::path folderOf(const std::filesystem::path& path);

/// Whether something has that name, be it a link to nothing.
bool existsAt(const std::filesystem::path& path);

/// Removes the file at a path, if there is one.
void removeAt(const std::filesystem::path& path);
/// Removes the file at a path if it is the one that is open there, and not one that has come in its place.
void removeIfStill(const std::filesystem::path& path, int fd);

/// "NAME_NUMBER.EXTENSION" for "NAME.EXTENSION": the names that are tried, from 2 on, where one is taken.
std::filesystem::path numberedPath(const std::filesystem::path& path, int number);

/// The path itself, or where something has its name the first numbered one that is free. By the time it is used
/// somebody else may have taken it: whoever uses it replaces nothing.
std::filesystem::path freePath(const std::filesystem::path& path);

}  // namespace tavi
