#pragma once

#include <filesystem>

#include "platform/UserDefaults.h"

namespace tavi {

/// Says NO for "AppStart" where a recorder that was killed has left its YES: nobody holds the lock of the caches
/// folder. Whoever reads the value calls this first; a recorder that is just starting is left alone.
void correctAppStart(UserDefaults& sharedDefaults, const std::filesystem::path& cachesPath);

}  // namespace tavi
