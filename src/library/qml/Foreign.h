#pragma once

#include <QtQml/qqml.h>

#include "library/VoiceMemoVC.h"

namespace tavi {

struct VoiceMemoVCForeign {
    Q_GADGET
    QML_FOREIGN(tavi::VoiceMemoVC)
    QML_NAMED_ELEMENT(VoiceMemoVC)
    QML_UNCREATABLE("The program has one.")
};

}  // namespace tavi
