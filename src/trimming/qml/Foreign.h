#pragma once

#include <QtQml/qqml.h>

#include "trimming/AudioTrim.h"
#include "trimming/AudioTrimStage.h"
#include "trimming/AudioTrimmerStage.h"

namespace tavi {

struct AudioTrimmerStageForeign {
    Q_GADGET
    QML_FOREIGN(tavi::AudioTrimmerStage)
    QML_NAMED_ELEMENT(AudioTrimmerStage)
    QML_UNCREATABLE("The program has one.")
};

struct AudioTrimmerViewControllerForeign {
    Q_GADGET
    QML_FOREIGN(tavi::AudioTrimmerViewController)
    QML_NAMED_ELEMENT(AudioTrimmerViewController)
    QML_UNCREATABLE("The stage has one while it is shown.")
};

struct TrimSourceForeign {
    Q_GADGET
    QML_FOREIGN(tavi::TrimSource)
    QML_NAMED_ELEMENT(TrimSource)
    QML_UNCREATABLE("Trimmers have one.")
};

struct TrimSelectionForeign {
    Q_GADGET
    QML_FOREIGN(tavi::TrimSelection)
    QML_NAMED_ELEMENT(TrimSelection)
    QML_UNCREATABLE("Trimmers have one.")
};

struct TrimZoomForeign {
    Q_GADGET
    QML_FOREIGN(tavi::TrimZoom)
    QML_NAMED_ELEMENT(TrimZoom)
    QML_UNCREATABLE("Trimmers have one.")
};

struct TrimPlayerForeign {
    Q_GADGET
    QML_FOREIGN(tavi::TrimPlayer)
    QML_NAMED_ELEMENT(TrimPlayer)
    QML_UNCREATABLE("Trimmers have one.")
};

struct TrimExportForeign {
    Q_GADGET
    QML_FOREIGN(tavi::TrimExport)
    QML_NAMED_ELEMENT(TrimExport)
    QML_UNCREATABLE("Trimmers have one.")
};

struct AudioTrimStageForeign {
    Q_GADGET
    QML_FOREIGN(tavi::AudioTrimStage)
    QML_NAMED_ELEMENT(AudioTrimStage)
    QML_UNCREATABLE("The program has one.")
};

struct AudioTrimForeign {
    Q_GADGET
    QML_FOREIGN(tavi::AudioTrim)
    QML_NAMED_ELEMENT(AudioTrim)
    QML_UNCREATABLE("Whoever shows the screen makes it.")
};

struct RangeSliderForeign {
    Q_GADGET
    QML_FOREIGN(tavi::RangeSlider)
    QML_NAMED_ELEMENT(RangeSlider)
    QML_UNCREATABLE("Screens own their sliders.")
};

}  // namespace tavi
