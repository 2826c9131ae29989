#pragma once

#include "app/settings/SettingsStore.h"
#include "passcode/SecureStore.h"
#include "platform/Clock.h"

namespace tavi {

/// Keys of the lock's values in the secure store. They are a stored format: every letter is kept.
namespace passcodekey {
inline const QString kPasscode = QStringLiteral("PasscodeKey");
inline const QString kInactivityDuration = QStringLiteral("PasscodeInactivityDuration");
inline const QString kInactivityStarted = QStringLiteral("PasscodeInactivityStarted");
inline const QString kInactivityEnded = QStringLiteral("PasscodeInactivityEnded");
}  // namespace passcodekey

/// What the passcode lock keeps: that it is on in the settings, everything else in the secure store. Main thread only.
class PasscodeStore {
public:
    /// All must outlive this.
    PasscodeStore(SettingsStore& settings, SecureStore& keychain, const Clock& clock)
        : m_settings(settings), m_keychain(keychain), m_clock(clock) {}

    bool isPasscodeProtectionOn() const { return m_settings.isPasscodeProtectionOn(); }
    /// False, with everything as before, where that cannot be written.
    bool setPasscodeProtectionOn(bool on) { return m_settings.setPasscodeProtectionOn(on); }

    /// False where the passcode could not be stored.
    bool setPasscode(const QString& passcode);
    /// Whether exactly this one is stored; where none is, or it cannot be read, no passcode is correct.
    bool isPasscodeCorrect(const QString& passcode) const;
    /// Why no passcode can be correct, in sentences for the user; empty where one can be.
    QString whyNoneIsCorrect() const;
    QString trouble() const { return m_keychain.trouble(); }

    void setPasscodeInactivityDurationInMinutes(int minutes);
    /// 0 where there is none.
    int getPasscodeInactivityDurationInMinutes() const;

    void startTrackingInactivity();
    void stopTrackingInactivity();
    /// When the program last went to the background, and came back; invalid where that was never stored.
    QDateTime getInactivityStartTime() const;
    QDateTime getInactivityEndTime() const;

private:
    QVariant storedPasscode() const;

    SettingsStore& m_settings;
    SecureStore& m_keychain;
    const Clock& m_clock;
};

}  // namespace tavi
