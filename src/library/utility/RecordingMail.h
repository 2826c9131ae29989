#pragma once

#include <QString>
#include <filesystem>

#include "platform/MailComposer.h"

namespace tavi {

/// Largest file that is mailed, in megabytes of 2^20 bytes.
inline constexpr double kLargestMailMegabytes = 25.0;

/// Whether the file is too large to be mailed; a file that cannot be read counts as empty.
bool isTooLargeToMail(const std::filesystem::path& path);

/// The mail that carries a recording.
MailMessage mailWithAudioFile(const std::filesystem::path& path);

}  // namespace tavi
