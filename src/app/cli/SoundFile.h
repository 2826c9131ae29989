#pragma once

#include <filesystem>

#include "app/cli/CommandServices.h"
#include "platform/Error.h"

namespace tavi {

/// "PATH: what is wrong with it".
tl::unexpected<Error> failureOf(const std::filesystem::path& path, const QString& why);

/// Whether a file is one that sound can be read from; if not, why.
Result<void> checkSoundFile(const std::filesystem::path& path, ExtAudioFiles& files);

}  // namespace tavi
