#pragma once

#include <QtQml/qqml.h>

#include "library/CloudSection.h"
#include "library/PlayerPanel.h"
#include "library/RecordingActions.h"
#include "library/RecordingImport.h"
#include "library/RecordingTable.h"
#include "library/VoiceMemoVC.h"

namespace tavi {

struct VoiceMemoVCForeign {
    Q_GADGET
    QML_FOREIGN(tavi::VoiceMemoVC)
    QML_NAMED_ELEMENT(VoiceMemoVC)
    QML_UNCREATABLE("The program has one.")
};

struct CloudSectionForeign {
    Q_GADGET
    QML_FOREIGN(tavi::CloudSection)
    QML_NAMED_ELEMENT(CloudSection)
    QML_UNCREATABLE("The library screen has one.")
};

struct RecordingActionsForeign {
    Q_GADGET
    QML_FOREIGN(tavi::RecordingActions)
    QML_NAMED_ELEMENT(RecordingActions)
    QML_UNCREATABLE("The library screen has one.")
};

struct RecordingTableForeign {
    Q_GADGET
    QML_FOREIGN(tavi::RecordingTable)
    QML_NAMED_ELEMENT(RecordingTable)
    QML_UNCREATABLE("The library screen has one.")
};

struct PlayerPanelForeign {
    Q_GADGET
    QML_FOREIGN(tavi::PlayerPanel)
    QML_NAMED_ELEMENT(PlayerPanel)
    QML_UNCREATABLE("The library screen has one.")
};

struct RecordingImportForeign {
    Q_GADGET
    QML_FOREIGN(tavi::RecordingImport)
    QML_NAMED_ELEMENT(RecordingImport)
    QML_UNCREATABLE("The program has one.")
};

}  // namespace tavi
