#include "adapters/quick/QuickPasteboard.h"

#include <QClipboard>
#include <QGuiApplication>

namespace tavi {

void QuickPasteboard::setMimeData(std::unique_ptr<QMimeData> data) {
    QGuiApplication::clipboard()->setMimeData(data.release());
}

}  // namespace tavi
