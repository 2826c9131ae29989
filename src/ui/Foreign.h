#pragma once

#include <QtQml/qqml.h>

#include "platform/Outlets.h"

namespace tavi {

// The outlets' types, by the names under which QML knows them.

struct LabelOutletForeign {
    Q_GADGET
    QML_FOREIGN(tavi::LabelOutlet)
    QML_VALUE_TYPE(labelOutlet)
};

struct ButtonOutletForeign {
    Q_GADGET
    QML_FOREIGN(tavi::ButtonOutlet)
    QML_VALUE_TYPE(buttonOutlet)
};

}  // namespace tavi
