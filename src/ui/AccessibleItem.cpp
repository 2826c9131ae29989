#include "ui/AccessibleItem.h"

#include <QtQuick/private/qaccessiblequickitem_p.h>

#include <QAccessible>
#include <QQuickItem>
#include <QQuickWindow>
#include <memory>

namespace tavi {

namespace {

class AccessibleItem final : public QAccessibleQuickItem {
public:
    using QAccessibleQuickItem::QAccessibleQuickItem;

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleQuickItem::state();
        state.disabled = !item()->isEnabled();
        // A scope around the one with the keyboard has not got it.
        state.focused = item()->hasActiveFocus() && item()->window()->activeFocusItem() == item();
        if (const QVariant isChosen = item()->property("spokenChecked"); isChosen.isValid()) {
            state.checkable = true;
            state.checked = isChosen.toBool();
        }
        return state;
    }

    QAccessible::Role role() const override {
        const QVariant role = item()->property("spokenRole");
        return role.isValid() ? static_cast<QAccessible::Role>(role.toInt()) : QAccessibleQuickItem::role();
    }

    int childCount() const override { return isCovered() ? 0 : QAccessibleQuickItem::childCount(); }
    QAccessibleInterface* child(int index) const override {
        return isCovered() ? nullptr : QAccessibleQuickItem::child(index);
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        return isCovered() ? nullptr : QAccessibleQuickItem::childAt(x, y);
    }

    QVariant minimumValue() const override { return item()->property("from"); }
    QVariant maximumValue() const override { return item()->property("to"); }

protected:
    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface && minimumValue().isValid() && maximumValue().isValid()) {
            return static_cast<QAccessibleValueInterface*>(this);
        }
        return QAccessibleQuickItem::interface_cast(type);
    }

private:
    bool isCovered() const { return item()->property("covered").toBool(); }
};

/// What QAccessible asks for each class of an object, from its own to QObject; it owns what it is given.
QAccessibleInterface* makeAccessible(const QString& className, QObject* object) {
    auto* item = className == QLatin1String("QQuickItem") ? qobject_cast<QQuickItem*>(object) : nullptr;
    if (item == nullptr) {
        return nullptr;
    }
    auto made = std::make_unique<AccessibleItem>(item);
    return made->isAccessible() ? made.release() : nullptr;
}

}  // namespace

void installAccessibleItems() {
    QAccessible::installFactory(makeAccessible);
}

}  // namespace tavi
