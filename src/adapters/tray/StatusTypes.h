#pragma once

#include <QDBusArgument>
#include <QList>
#include <QString>
#include <QVariantMap>

// What the status icon and its menu send, in the shapes of the bus.

namespace tavi::tray {

/// (iiay): a picture as width, height and ARGB in network order.
struct Pixmap {
    int width = 0;
    int height = 0;
    QByteArray argb;
};

/// (sa(iiay)ss)
struct ToolTip {
    QString iconName;
    QList<Pixmap> pictures;
    QString title;
    QString text;
};

/// (ia{sv}): an entry and what it shows.
struct Item {
    int id = 0;
    QVariantMap properties;
};

/// (ias): an entry and what it shows no more.
struct RemovedItem {
    int id = 0;
    QStringList properties;
};

/// (ia{sv}av): an entry and those below it.
struct Layout {
    int id = 0;
    QVariantMap properties;
    QList<Layout> below;
};

/// (isvu): what has happened to an entry.
struct Event {
    int id = 0;
    QString name;
    QDBusVariant data;
    uint timestamp = 0;
};

QDBusArgument& operator<<(QDBusArgument& argument, const Pixmap& pixmap);
const QDBusArgument& operator>>(const QDBusArgument& argument, Pixmap& pixmap);
QDBusArgument& operator<<(QDBusArgument& argument, const ToolTip& tip);
const QDBusArgument& operator>>(const QDBusArgument& argument, ToolTip& tip);
QDBusArgument& operator<<(QDBusArgument& argument, const Item& item);
const QDBusArgument& operator>>(const QDBusArgument& argument, Item& item);
QDBusArgument& operator<<(QDBusArgument& argument, const RemovedItem& item);
const QDBusArgument& operator>>(const QDBusArgument& argument, RemovedItem& item);
QDBusArgument& operator<<(QDBusArgument& argument, const Layout& layout);
const QDBusArgument& operator>>(const QDBusArgument& argument, Layout& layout);
QDBusArgument& operator<<(QDBusArgument& argument, const Event& event);
const QDBusArgument& operator>>(const QDBusArgument& argument, Event& event);

/// Tells the library of all of them; harmless when repeated.
void registerTypes();

}  // namespace tavi::tray

Q_DECLARE_METATYPE(tavi::tray::Pixmap)
Q_DECLARE_METATYPE(tavi::tray::ToolTip)
Q_DECLARE_METATYPE(tavi::tray::Item)
Q_DECLARE_METATYPE(tavi::tray::RemovedItem)
Q_DECLARE_METATYPE(tavi::tray::Layout)
Q_DECLARE_METATYPE(tavi::tray::Event)
