#pragma once

#include <QtQml/qqml.h>

#include "app/CloudPage.h"
#include "app/PasscodeRows.h"
#include "app/SettingVC.h"
#include "app/SupportRows.h"

namespace tavi {

struct SettingVCForeign {
    Q_GADGET
    QML_FOREIGN(tavi::SettingVC)
    QML_NAMED_ELEMENT(SettingVC)
    QML_UNCREATABLE("The program has one.")
};

struct CloudPageForeign {
    Q_GADGET
    QML_FOREIGN(tavi::CloudPage)
    QML_NAMED_ELEMENT(CloudPage)
    QML_UNCREATABLE("The program has one.")
};

struct PasscodeRowsForeign {
    Q_GADGET
    QML_FOREIGN(tavi::PasscodeRows)
    QML_NAMED_ELEMENT(PasscodeRows)
    QML_UNCREATABLE("The program has one.")
};

struct SupportRowsForeign {
    Q_GADGET
    QML_FOREIGN(tavi::SupportRows)
    QML_NAMED_ELEMENT(SupportRows)
    QML_UNCREATABLE("The program has one.")
};

}  // namespace tavi
