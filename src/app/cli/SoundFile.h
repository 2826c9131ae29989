#pragma once

#include <string>

#include "app/cli/CommandServices.h"
#include "platform/Error.h"

namespace tavi {

/// "PATH: what is wrong with it". The path is the name's own bytes.
tl::unexpected<Error> failureOf(const std::string& path, const QString& why);

/// Whether a file is one that sound can be read from; if not, why.
Result<void> checkSoundFile(const std::string& path, ExtAudioFiles& files);

}  // namespace tavi
