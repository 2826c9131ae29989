#include "Platform.h"

#include "passcode/FXKeychain.h"

namespace tavi {

Platform::Platform(const AppContainer& folders, const QString& busName)
    : container(folders),
      application(bus, QDBusConnection::systemBus(), busName,
                  {.systemSleep = systemSleep, .notifications = notifications}) {
    application.setLockState(lockState);
    claimName();
    FXKeychain::setDefaultPorts(keychain, propertyLists);
}

void Platform::claimName() {
    switch (application.claim()) {
        case DBusApplication::Claim::First:
            break;
        case DBusApplication::Claim::AlreadyRunning:
            qWarning("Another program has this one's name on the session bus: what is asked for there goes astray.");
            break;
        case DBusApplication::Claim::NoBus:
            qWarning("There is no session bus: neither other starts nor the desktop's controls reach the program.");
            break;
    }
}

}  // namespace tavi
