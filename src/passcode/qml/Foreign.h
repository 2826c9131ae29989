#pragma once

#include <QtQml/qqml.h>

#include "passcode/ApplicationDelegateGuard.h"
#include "passcode/PasscodeCircularButton.h"
#include "passcode/PasscodeCoordinator.h"

namespace tavi {

struct ApplicationDelegateGuardForeign {
    Q_GADGET
    QML_FOREIGN(tavi::ApplicationDelegateGuard)
    QML_NAMED_ELEMENT(ApplicationDelegateGuard)
    QML_UNCREATABLE("The program has one.")
};

struct PasscodeCoordinatorForeign {
    Q_GADGET
    QML_FOREIGN(tavi::PasscodeCoordinator)
    QML_NAMED_ELEMENT(PasscodeCoordinator)
    QML_UNCREATABLE("The program has one.")
};

struct PasscodeWindowForeign {
    Q_GADGET
    QML_FOREIGN(tavi::PasscodeWindow)
    QML_NAMED_ELEMENT(PasscodeWindow)
    QML_UNCREATABLE("The coordinator makes it.")
};

struct PasscodeViewControllerForeign {
    Q_GADGET
    QML_FOREIGN(tavi::PasscodeViewController)
    QML_NAMED_ELEMENT(PasscodeViewController)
    QML_UNCREATABLE("The coordinator makes it.")
};

struct PasscodeCircularButtonForeign {
    Q_GADGET
    QML_FOREIGN(tavi::PasscodeCircularButton)
    QML_NAMED_ELEMENT(PasscodeCircularButton)
    QML_UNCREATABLE("The entry screen makes it.")
};

struct PasscodeCircularViewForeign {
    Q_GADGET
    QML_FOREIGN(tavi::PasscodeCircularView)
    QML_NAMED_ELEMENT(PasscodeCircularView)
    QML_UNCREATABLE("The entry screen makes it.")
};

}  // namespace tavi
