#pragma once

#include <QObject>

#include "passcode/PasscodeViewController.h"

namespace tavi {

/// The layer above everything else of the window, alerts included, in which the entry screen is shown. Main thread
/// only.
class PasscodeWindow : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool hidden READ isHidden NOTIFY changed)
    /// None before the first one.
    Q_PROPERTY(tavi::PasscodeViewController* rootViewController READ rootViewController NOTIFY changed)

public:
    using QObject::QObject;

    bool isHidden() const { return m_isHidden; }
    PasscodeViewController* rootViewController() const { return m_rootViewController; }
    /// Takes it over. The one before is gone once what it is doing is done.
    void setRootViewController(PasscodeViewController* controller);
    void show();
    void hide();

Q_SIGNALS:
    void changed();

private:
    bool m_isHidden = true;
    PasscodeViewController* m_rootViewController = nullptr;
};

}  // namespace tavi
