#pragma once

#include <filesystem>

#include "app/cli/CommandServices.h"
#include "platform/Error.h"

namespace tavi {

/// "PATH: what is wrong with it".
tl::unexpected<Error> failureOf(const std::filesystem::path& path, const QString& why);

/// The system's words for an errno value.
QString systemText(int error);
/// What an errno value says about a file that is to become a recording, in the system's words where it says no more.
QString fileErrorText(int error);

/// Whether a file is one that sound can be read from; if not, why.
Result<void> checkSoundFile(const std::filesystem::path& path, ExtAudioFiles& files);

}  // namespace tavi
