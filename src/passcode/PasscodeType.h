#pragma once

namespace tavi {

/// What the passcode is asked for.
enum class PasscodeType {
    /// To unlock the program.
    Unlock = 0,
    /// To switch the protection off.
    Verify = 1,
    /// To choose a new one.
    Setup = 2,
    /// The old one, and then to choose a new one.
    Change = 3,
};

/// Hears what became of the entry screen. Main thread.
class PasscodeViewControllerDelegate {
public:
    virtual ~PasscodeViewControllerDelegate() = default;

    virtual void didVerifyPasscode() = 0;
    virtual void didSetupPasscode() = 0;
    virtual void passcodeSetupCancelled() = 0;
    /// The entry screen never says so, on purpose: after a wrong passcode it stays and asks again.
    virtual void passcodeVerificationFailed() = 0;
};

}  // namespace tavi
