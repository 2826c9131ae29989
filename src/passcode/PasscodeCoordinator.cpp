#include "passcode/PasscodeCoordinator.h"

#include <QCoreApplication>
#include <utility>

#include "passcode/LockDecision.h"
#include "platform/Application.h"

namespace tavi {

namespace {

/// Calls what waits for the end, once.
void complete(PasscodeCoordinator::Completion& block, bool success) {
    if (const auto waiting = std::exchange(block, {})) {
        waiting(success);
    }
}

}  // namespace

PasscodeCoordinator* PasscodeCoordinator::s_shared = nullptr;

PasscodeCoordinator::PasscodeCoordinator(const Services& services, QObject* parent)
    : QObject(parent), m_services(services), m_store(services.settings, services.keychain, services.runLoop.clock()) {
    s_shared = this;
}

PasscodeCoordinator::~PasscodeCoordinator() {
    disableSubscriptions();
    if (s_shared == this) {
        s_shared = nullptr;
    }
}

bool PasscodeCoordinator::togglePasscodeProtection(bool on) {
    if (!m_store.setPasscodeProtectionOn(on)) {
        tell(qtTrId("passcode_switch_not_stored"), qtTrId("passcode_settings_refused"));
        return false;
    }
    if (on) {
        activatePasscodeProtection();
    } else {
        deactivatePasscodeProtection();
    }
    return true;
}

void PasscodeCoordinator::activatePasscodeProtection() {
    auto* const old = std::exchange(m_passcodeWindow, new PasscodeWindow(this));
    Q_EMIT passcodeWindowChanged();
    if (old != nullptr) {
        // Its screen may be what asks for this.
        old->deleteLater();
    }
    const bool isOn = isPasscodeProtectionOn();
    if (!std::exchange(m_isActivated, true)) {
        setCovered(isOn);
    }
    if (isOn) {
        subscribeToNotifications();
    }
}

void PasscodeCoordinator::deactivatePasscodeProtection() {
    disableSubscriptions();
    // Digits that were right may be judged just after the program went to the background; its return is not heard now.
    setCovered(false);
}

void PasscodeCoordinator::subscribeToNotifications() {
    disableSubscriptions();
    m_subscription = connect(&m_services.notifications, &NotificationCenter::posted, this,
                             [this](const QString& name) { handleNotification(name); });
}

void PasscodeCoordinator::disableSubscriptions() {
    disconnect(m_subscription);
}

void PasscodeCoordinator::handleNotification(const QString& name) {
    if (name == applicationnotification::kDidEnterBackground) {
        enterBackground();
    } else if (name == applicationnotification::kWillEnterForeground ||
               name == applicationnotification::kDidFinishLaunching) {
        enterForeground();
    }
}

void PasscodeCoordinator::enterBackground() {
    setCovered(true);
    m_wasUnlocking = isUnlocking();
    dismissLockScreen();
    startTrackingInactivity();
}

void PasscodeCoordinator::enterForeground() {
    stopTrackingInactivity();
    // Who had not unlocked before does not come in by a short absence.
    const bool wasUnlocking = std::exchange(m_wasUnlocking, false) && isPasscodeProtectionOn();
    if (shouldLock() || wasUnlocking) {
        verifyPasscodeWithPasscodeType(PasscodeType::Unlock, {});
    }
    setCovered(false);
}

bool PasscodeCoordinator::shouldLock() const {
    return tavi::shouldLock({.isPasscodePresented = m_isPasscodePresented,
                             .isProtectionOn = isPasscodeProtectionOn(),
                             .inactivityMinutes = getPasscodeInactivityDurationInMinutes(),
                             .inactivityStarted = getInactivityStartTime(),
                             .inactivityEnded = getInactivityEndTime()});
}

void PasscodeCoordinator::presentLockScreenWithPasscodeType(PasscodeType type) {
    dismissLockScreen();
    m_passcodeWindow->setRootViewController(new PasscodeViewController(
        type, *this, {.store = m_store, .appearance = appearance, .runLoop = m_services.runLoop}));
    m_isPasscodePresented = true;
    m_passcodeWindow->show();
    updateLockState();
}

void PasscodeCoordinator::dismissLockScreen() {
    if (std::exchange(m_isPasscodePresented, false)) {
        m_passcodeWindow->hide();
        updateLockState();
    }
}

void PasscodeCoordinator::verifyPasscodeWithPasscodeType(PasscodeType type, Completion completion) {
    m_verificationCompletedBlock = std::move(completion);
    presentLockScreenWithPasscodeType(type);
}

void PasscodeCoordinator::setupNewPasscodeWithCompletion(Completion completion) {
    setPasscodeInactivityDurationInMinutes(0);
    m_setupCompletedBlock = std::move(completion);
    presentLockScreenWithPasscodeType(PasscodeType::Setup);
}

void PasscodeCoordinator::changePasscodeWithCompletion(Completion completion) {
    setPasscodeInactivityDurationInMinutes(getPasscodeInactivityDurationInMinutes());
    m_setupCompletedBlock = std::move(completion);
    presentLockScreenWithPasscodeType(PasscodeType::Change);
}

void PasscodeCoordinator::disablePasscodeProtectionWithCompletion(Completion completion) {
    verifyPasscodeWithPasscodeType(PasscodeType::Verify, [this, completion = std::move(completion)](bool success) {
        const bool isDone = success && togglePasscodeProtection(false);
        if (completion) {
            completion(isDone);
        }
    });
}

void PasscodeCoordinator::didVerifyPasscode() {
    complete(m_verificationCompletedBlock, true);
    dismissLockScreen();
}

void PasscodeCoordinator::didSetupPasscode() {
    const bool isOn = togglePasscodeProtection(true);
    complete(m_setupCompletedBlock, isOn);
    dismissLockScreen();
    if (const QString trouble = m_store.trouble(); isOn && !trouble.isEmpty()) {
        tell(qtTrId("passcode_not_stored"), trouble);
    }
}

void PasscodeCoordinator::passcodeSetupCancelled() {
    complete(m_setupCompletedBlock, false);
    complete(m_verificationCompletedBlock, false);
    dismissLockScreen();
}

void PasscodeCoordinator::passcodeVerificationFailed() {
    complete(m_verificationCompletedBlock, false);
}

void PasscodeCoordinator::secureStoreTroubleChanged() {
    if (m_isPasscodePresented && m_passcodeWindow->rootViewController() != nullptr) {
        m_passcodeWindow->rootViewController()->troubleChanged();
    }
}

void PasscodeCoordinator::tell(const QString& title, const QString& message) {
    m_services.presenter.presentAlert({title, message, {{qtTrId("OK")}}});
}

bool PasscodeCoordinator::isUnlocking() const {
    return m_isPasscodePresented && m_passcodeWindow->rootViewController() != nullptr &&
           m_passcodeWindow->rootViewController()->passcodeType() == PasscodeType::Unlock;
}

void PasscodeCoordinator::setCovered(bool covered) {
    if (std::exchange(m_isCovered, covered) != covered) {
        Q_EMIT coveredChanged();
        updateLockState();
    }
}

void PasscodeCoordinator::updateLockState() {
    m_services.lockState.setLocked(m_isCovered || isUnlocking());
}

}  // namespace tavi
