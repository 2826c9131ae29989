#pragma once

#include <QtQml/qqml.h>

#include "recording/AudioRecordVC.h"

namespace tavi {

struct AudioRecordVCForeign {
    Q_GADGET
    QML_FOREIGN(tavi::AudioRecordVC)
    QML_NAMED_ELEMENT(AudioRecordVC)
    QML_UNCREATABLE("The program has one.")
};

}  // namespace tavi
