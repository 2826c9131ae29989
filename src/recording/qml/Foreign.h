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

struct MicrophoneChoiceForeign {
    Q_GADGET
    QML_FOREIGN(tavi::MicrophoneChoice)
    QML_NAMED_ELEMENT(MicrophoneChoice)
    QML_UNCREATABLE("The record screen has one.")
};

struct RecordingLevelForeign {
    Q_GADGET
    QML_FOREIGN(tavi::RecordingLevel)
    QML_NAMED_ELEMENT(RecordingLevel)
    QML_UNCREATABLE("The record screen has one.")
};

}  // namespace tavi
