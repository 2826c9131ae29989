#pragma once

#include <QtQml/qqml.h>

#include "app/SettingVC.h"

namespace tavi {

struct SettingVCForeign {
    Q_GADGET
    QML_FOREIGN(tavi::SettingVC)
    QML_NAMED_ELEMENT(SettingVC)
    QML_UNCREATABLE("The program has one.")
};

}  // namespace tavi
