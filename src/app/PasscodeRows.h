#pragma once

#include <QObject>

#include "passcode/PasscodeCoordinator.h"

namespace tavi {

/// The section of the settings that turns the passcode lock on and off. Main thread only.
class PasscodeRows : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString passcodeText READ passcodeText CONSTANT)
    Q_PROPERTY(QString changePassText READ changePassText CONSTANT)
    Q_PROPERTY(bool passcodeEnabled READ passcodeEnabled NOTIFY changed)
    Q_PROPERTY(bool isPasscodeSwitchOn READ isPasscodeSwitchOn NOTIFY changed)

public:
    /// The lock must outlive the rows.
    explicit PasscodeRows(PasscodeCoordinator& passcode, QObject* parent = nullptr)
        : QObject(parent), m_passcode(passcode) {}

    QString passcodeText() const { return qtTrId("passcode_lock"); }
    QString changePassText() const { return qtTrId("change_pass"); }
    /// Whether the passcode can be changed.
    bool passcodeEnabled() const { return m_passcodeEnabled; }
    /// Ahead of passcodeEnabled() while the passcode is asked for.
    bool isPasscodeSwitchOn() const { return m_isPasscodeSwitchOn; }

    /// Shows whether the lock is on now.
    void refresh() { show(m_passcode.isPasscodeProtectionOn()); }

public Q_SLOTS:
    /// The user turned the switch: it goes back where the passcode is not given.
    void updateSwitch(bool on);
    void changePasscode();

Q_SIGNALS:
    void changed();
    /// A set-up or a switching off has come to its end, or the passcode is another one.
    void settled();

private:
    void show(bool enabled);

    PasscodeCoordinator& m_passcode;
    bool m_passcodeEnabled = false;
    bool m_isPasscodeSwitchOn = false;
};

}  // namespace tavi
