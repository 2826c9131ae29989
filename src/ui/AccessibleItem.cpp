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

    QString text(QAccessible::Text kind) const override {
        if (isUntold()) {
            return {};
        }
        // Qt gives a field for a password no name: it is called after what it asks for.
        return kind == QAccessible::Name && state().passwordEdit ? item()->property("placeholderText").toString()
                                                                 : QAccessibleQuickItem::text(kind);
    }
    using QAccessibleQuickItem::text;

    int childCount() const override { return isCovered() ? 0 : QAccessibleQuickItem::childCount(); }
    QAccessibleInterface* child(int index) const override {
        return isCovered() ? nullptr : QAccessibleQuickItem::child(index);
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        return isCovered() ? nullptr : QAccessibleQuickItem::childAt(x, y);
    }

    QVariant minimumValue() const override { return item()->property("from"); }
    QVariant maximumValue() const override { return isUntold() ? QVariant(0.0) : item()->property("to"); }
    QVariant currentValue() const override { return isUntold() ? QVariant(0.0) : QAccessibleQuickItem::currentValue(); }
    void setCurrentValue(const QVariant& value) override {
        if (!isUntold()) {
            QAccessibleQuickItem::setCurrentValue(value);
        }
    }

protected:
    void* interface_cast(QAccessible::InterfaceType type) override {
        // A value keeps its interface, as changes of it are told to whoever has one; it neither says nor takes any
        // then.
        if (isUntold() && type != QAccessible::ValueInterface) {
            return nullptr;
        }
        if (type == QAccessible::ValueInterface && minimumValue().isValid() && maximumValue().isValid()) {
            return static_cast<QAccessibleValueInterface*>(this);
        }
        return QAccessibleQuickItem::interface_cast(type);
    }

private:
    bool isCovered() const { return item()->property("covered").toBool() || isUntold(); }

    /// Whether this is below an item that keeps everything in it to itself. Items that cannot be seen stay in the tree
    /// with all that they say, and who has found one before can still press it.
    bool isUntold() const {
        for (const QQuickItem* one = item(); one != nullptr; one = one->parentItem()) {
            if (one->property("untold").toBool()) {
                return true;
            }
        }
        return false;
    }
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
