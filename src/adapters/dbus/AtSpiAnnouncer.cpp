#include "adapters/dbus/AtSpiAnnouncer.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QWindow>
#include <QtGlobal>

#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>
#endif

namespace tavi {

#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)

void AtSpiAnnouncer::announce(const QString& text) {
    const QWindowList windows = QGuiApplication::topLevelWindows();
    if (QAccessible::isActive() && !windows.isEmpty()) {
        QAccessibleAnnouncementEvent event(windows.first(), text);
        QAccessible::updateAccessibility(&event);
    }
}

#else

void AtSpiAnnouncer::announce(const QString& text) {
    // The name under which Qt keeps its connection to the accessibility bus, where there is one.
    const QDBusConnection bus(QStringLiteral("a11y"));
    if (!QAccessible::isActive() || !bus.isConnected()) {
        return;
    }
    constexpr int kPolite = 1;
    const QString root = QStringLiteral("/org/a11y/atspi/accessible/root");
    QDBusArgument source;
    source.beginStructure();
    source << bus.baseService() << QDBusObjectPath(root);
    source.endStructure();
    QDBusMessage signal =
        QDBusMessage::createSignal(root, QStringLiteral("org.a11y.atspi.Event.Object"), QStringLiteral("Announcement"));
    // What every event carries: a detail, two numbers, a value of any type and the application's root.
    signal << QString() << kPolite << 0 << QVariant::fromValue(QDBusVariant(text)) << QVariant::fromValue(source);
    bus.send(signal);
}

#endif

}  // namespace tavi
