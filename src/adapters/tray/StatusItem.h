#pragma once

#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QDBusServiceWatcher>
#include <QObject>
#include <functional>

#include "adapters/tray/StatusMenu.h"
#include "platform/StatusIcon.h"

namespace tavi {

/// The icon as the desktop's panels want it: org.kde.StatusNotifierItem on the session bus, which tells
/// org.kde.StatusNotifierWatcher that it is there, and again when that comes back. Main thread.
class StatusItem final : public QObject, public StatusIcon {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
    Q_PROPERTY(QString Category READ category CONSTANT)
    Q_PROPERTY(QString Id READ id CONSTANT)
    Q_PROPERTY(QString Title READ title)
    Q_PROPERTY(QString Status READ status CONSTANT)
    Q_PROPERTY(int WindowId READ windowId CONSTANT)
    Q_PROPERTY(QString IconName READ iconName)
    Q_PROPERTY(QString IconThemePath READ none CONSTANT)
    Q_PROPERTY(QString OverlayIconName READ none CONSTANT)
    Q_PROPERTY(QString AttentionIconName READ none CONSTANT)
    Q_PROPERTY(tavi::tray::ToolTip ToolTip READ toolTip)
    Q_PROPERTY(bool ItemIsMenu READ isMenu CONSTANT)
    Q_PROPERTY(QDBusObjectPath Menu READ menuPath CONSTANT)

public:
    /// The id is the name of the program's desktop entry.
    StatusItem(const QDBusConnection& sessionBus, const QString& id);
    ~StatusItem() override;

    void show(const StatusContent& content) override;
    void setActionHandler(std::function<void(int action)> handler) override;
    /// Whether a panel shows icons now.
    bool hasHost() const { return m_hasHost; }

    static QString category() { return QStringLiteral("ApplicationStatus"); }
    QString id() const { return m_id; }
    QString title() const { return m_content.title; }
    static QString status() { return QStringLiteral("Active"); }
    static int windowId() { return 0; }
    QString iconName() const { return m_content.iconName; }
    static QString none() { return {}; }
    tray::ToolTip toolTip() const { return {{}, {}, m_content.title, m_content.tip}; }
    static bool isMenu() { return false; }
    static QDBusObjectPath menuPath() { return QDBusObjectPath(QString(StatusMenu::kPath)); }

public Q_SLOTS:
    void Activate(int x, int y);
    void SecondaryActivate(int x, int y);
    void ContextMenu(int x, int y);
    void Scroll(int delta, const QString& orientation);

Q_SIGNALS:
    void NewTitle();
    void NewIcon();
    void NewToolTip();
    void NewStatus(const QString& status);

private:
    void announce();

    QDBusConnection m_bus;
    const QString m_id;
    const QString m_service;
    StatusMenu m_menu;
    QDBusServiceWatcher m_watcher;
    StatusContent m_content;
    std::function<void(int action)> m_handler;
    bool m_isShown = false;
    bool m_hasHost = false;
};

}  // namespace tavi
