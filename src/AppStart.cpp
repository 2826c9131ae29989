#include "AppStart.h"

#include "adapters/dbus/InstanceLock.h"
#include "app/settings/SettingsStore.h"

namespace tavi {

void correctAppStart(UserDefaults& sharedDefaults, const std::filesystem::path& cachesPath) {
    const auto say = [&sharedDefaults](bool started) {
        sharedDefaults.setObject(started, settingskey::kAppStart);
        sharedDefaults.synchronize();
    };
    if (!sharedDefaults.objectForKey(settingskey::kAppStart).toBool() || InstanceLock::isHeld(cachesPath)) {
        return;
    }
    say(false);
    // One has started meanwhile, and may have said so before this did.
    if (InstanceLock::isHeld(cachesPath)) {
        say(true);
    }
}

}  // namespace tavi
