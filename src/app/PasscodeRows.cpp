#include "app/PasscodeRows.h"

#include <QPointer>

namespace tavi {

void PasscodeRows::updateSwitch(bool on) {
    m_isPasscodeSwitchOn = on;
    const auto end = [self = QPointer(this)](bool enabled) {
        if (self) {
            self->show(enabled);
            Q_EMIT self->settled();
        }
    };
    if (on) {
        m_passcode.setupNewPasscodeWithCompletion(end);
    } else {
        m_passcode.disablePasscodeProtectionWithCompletion([end](bool success) { end(!success); });
    }
    Q_EMIT changed();
}

void PasscodeRows::changePasscode() {
    m_passcode.changePasscodeWithCompletion([self = QPointer(this)](bool success) {
        if (self && success) {
            Q_EMIT self->settled();
        }
    });
}

void PasscodeRows::show(bool enabled) {
    m_passcodeEnabled = enabled;
    m_isPasscodeSwitchOn = enabled;
    Q_EMIT changed();
}

}  // namespace tavi
