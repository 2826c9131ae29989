#include "passcode/PasscodeWindow.h"

#include <utility>

namespace tavi {

void PasscodeWindow::setRootViewController(PasscodeViewController* controller) {
    controller->setParent(this);
    auto* const old = std::exchange(m_rootViewController, controller);
    Q_EMIT changed();
    if (old != nullptr) {
        old->deleteLater();
    }
}

void PasscodeWindow::show() {
    if (m_rootViewController != nullptr) {
        m_rootViewController->viewWillAppear();
    }
    m_isHidden = false;
    Q_EMIT changed();
}

void PasscodeWindow::hide() {
    m_isHidden = true;
    Q_EMIT changed();
}

}  // namespace tavi
