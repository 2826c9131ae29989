#pragma once

#include "adapters/qt/QtUserDefaults.h"
#include "app/settings/SettingsStore.h"
#include "platform/AppContainer.h"

namespace tavi {

/// The settings as files of a container.
struct SettingsFiles {
    explicit SettingsFiles(const AppContainer& container)
        : standard(container.preferencesPath() / "settings.ini"),
          shared(container.groupContainerPath(kApplicationGroup) / "settings.ini") {}

    QtUserDefaults standard;
    QtUserDefaults shared;
    SettingsStore store{standard};
};

}  // namespace tavi
