#pragma once

#include <QObject>
#include <functional>

#include "passcode/PasscodeStore.h"
#include "passcode/PasscodeWindow.h"
#include "platform/LockState.h"
#include "platform/NotificationCenter.h"
#include "platform/Presenter.h"

namespace tavi {

/// How one screen takes another's place.
struct ScreenTransition {
    enum class Origin { Bottom };

    QString type;
    double seconds = 0.2;
    Origin origin = Origin::Bottom;
};

/// Decides when the program is covered by the entry screen, keeps the layer in which that is shown, and leads through
/// setting the passcode up, changing it and switching it off. Main thread only.
///
/// The cover is another thing than the entry screen: a plain one, which hides the program's content from the moment it
/// goes to the background with the protection on until it is decided whether to lock, and from its start until then.
/// The decision itself knows nothing of it.
class PasscodeCoordinator : public QObject, public PasscodeViewControllerDelegate {
    Q_OBJECT
    Q_PROPERTY(tavi::PasscodeWindow* passcodeWindow READ passcodeWindow NOTIFY passcodeWindowChanged)
    Q_PROPERTY(bool covered READ isCovered NOTIFY coveredChanged)

public:
    /// Told once how it ended; never, where the program goes to the background before the end.
    using Completion = std::function<void(bool success)>;

    /// All of it must outlive the coordinator.
    struct Services {
        SettingsStore& settings;
        SecureStore& keychain;
        NotificationCenter& notifications;
        RunLoop& runLoop;
        Presenter& presenter;
        LockState& lockState;
    };

    explicit PasscodeCoordinator(const Services& services, QObject* parent = nullptr);
    ~PasscodeCoordinator() override;

    /// The program's one; null before it is made and once it is gone.
    static PasscodeCoordinator* sharedCoordinator() { return s_shared; }

    /// How the entry screen looks from its next appearance on.
    PasscodeAppearance appearance;

    bool isPasscodePresented() const { return m_isPasscodePresented; }
    bool isCovered() const { return m_isCovered; }
    /// None before the first activatePasscodeProtection().
    PasscodeWindow* passcodeWindow() const { return m_passcodeWindow; }

    bool isPasscodeProtectionOn() const { return m_store.isPasscodeProtectionOn(); }
    /// False, with everything as before and an alert that says so, where the settings cannot be written.
    bool togglePasscodeProtection(bool on);
    bool setPasscode(const QString& passcode) { return m_store.setPasscode(passcode); }
    bool isPasscodeCorrect(const QString& passcode) const { return m_store.isPasscodeCorrect(passcode); }
    void setPasscodeInactivityDurationInMinutes(int minutes) {
        m_store.setPasscodeInactivityDurationInMinutes(minutes);
    }
    int getPasscodeInactivityDurationInMinutes() const { return m_store.getPasscodeInactivityDurationInMinutes(); }
    QDateTime getInactivityStartTime() const { return m_store.getInactivityStartTime(); }
    QDateTime getInactivityEndTime() const { return m_store.getInactivityEndTime(); }
    void startTrackingInactivity() { m_store.startTrackingInactivity(); }
    void stopTrackingInactivity() { m_store.stopTrackingInactivity(); }

    /// The first time, with the protection on, the program is covered until it hears that its launch has finished.
    void activatePasscodeProtection();
    void deactivatePasscodeProtection();
    void presentLockScreenWithPasscodeType(PasscodeType type);
    void dismissLockScreen();
    /// The completion may be empty. One that waits already is never called.
    void verifyPasscodeWithPasscodeType(PasscodeType type, Completion completion);
    static ScreenTransition transitionAnimation(const QString& type) { return {.type = type}; }

    void setupNewPasscodeWithCompletion(Completion completion);
    void changePasscodeWithCompletion(Completion completion);
    void disablePasscodeProtectionWithCompletion(Completion completion);

    void didVerifyPasscode() override;
    void didSetupPasscode() override;
    void passcodeSetupCancelled() override;
    void passcodeVerificationFailed() override;

public Q_SLOTS:
    /// What keeps the secure store from answering is now something else, or nothing.
    void secureStoreTroubleChanged();

Q_SIGNALS:
    void passcodeWindowChanged();
    void coveredChanged();

private:
    void subscribeToNotifications();
    void disableSubscriptions();
    void handleNotification(const QString& name);
    void enterBackground();
    void enterForeground();
    bool shouldLock() const;
    bool isUnlocking() const;
    void setCovered(bool covered);
    void updateLockState();
    void tell(const QString& title, const QString& message);

    static PasscodeCoordinator* s_shared;

    Services m_services;
    PasscodeStore m_store;
    PasscodeWindow* m_passcodeWindow = nullptr;
    QMetaObject::Connection m_subscription;
    Completion m_setupCompletedBlock;
    Completion m_verificationCompletedBlock;
    bool m_isPasscodePresented = false;
    bool m_isActivated = false;
    bool m_isCovered = false;
    /// The entry screen asked for the passcode to unlock when the program went to the background.
    bool m_wasUnlocking = false;
};

}  // namespace tavi
