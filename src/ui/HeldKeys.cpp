#include "ui/HeldKeys.h"

#include <QKeyEvent>
#include <QQuickItem>

namespace tavi {

void HeldKeys::setTarget(QQuickWindow* target) {
    m_target = target;
    m_target->installEventFilter(this);
}

bool HeldKeys::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease) {
        return false;
    }
    const auto& key = static_cast<const QKeyEvent&>(*event);
    const QQuickItem* focused = m_target->activeFocusItem();
    const bool isTyped = focused != nullptr && focused->flags().testFlag(QQuickItem::ItemAcceptsInputMethod);
    const bool isEnter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    return key.isAutoRepeat() && (isEnter || (key.key() == Qt::Key_Space && !isTyped));
}

}  // namespace tavi
