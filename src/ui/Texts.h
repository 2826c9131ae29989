#pragma once

#include <Qt>

class QCoreApplication;

namespace tavi {

/// Installs the program's texts in the first of the user's languages that there is, else in English; from then on
/// qtTrId() and qsTrId() find them. Once, on the main thread, before any text is asked for. A text that is missing
/// shows its id. Returns how that language is written.
Qt::LayoutDirection installTexts(QCoreApplication& application);

}  // namespace tavi
