#include "ui/JHUD.h"

#include <algorithm>
#include <utility>

namespace tavi {

void JHUD::show(Progress progress) {
    QMetaObject::invokeMethod(
        this, [this, progress = std::move(progress)] { change(true, progress); }, Qt::QueuedConnection);
}

void JHUD::setShare(double share) {
    const auto set = [this, share] {
        m_share = std::clamp(share, 0.0, 1.0);
        Q_EMIT shareChanged();
    };
    QMetaObject::invokeMethod(this, set, Qt::QueuedConnection);
}

void JHUD::hide() {
    QMetaObject::invokeMethod(
        this, [this] { change(false, {}); }, Qt::QueuedConnection);
}

void JHUD::cancel() {
    // It may show something else at once.
    if (const auto cancelled = m_progress.cancel) {
        cancelled();
    }
}

void JHUD::change(bool isShown, Progress progress) {
    m_isShown = isShown;
    m_progress = std::move(progress);
    m_share = 0.0;
    Q_EMIT shareChanged();
    Q_EMIT shownChanged();
}

}  // namespace tavi
