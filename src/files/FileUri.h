#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace tavi {

/// The file's address as other programs take it (RFC 8089): "file:///" and the absolute path. Every byte that an
/// address cannot hold is percent-encoded as it is, so that names that are no text come through whole; the result is
/// ASCII.
std::string fileUri(const std::filesystem::path& path);

/// The path that such an address names, byte by byte. Nothing for an address of another kind or another machine.
std::optional<std::filesystem::path> pathOfFileUri(std::string_view uri);

}  // namespace tavi
