#include "adapters/tray/StatusItem.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <utility>

namespace tavi {

namespace {

const QString kPath = QStringLiteral("/StatusNotifierItem");
const QString kWatcher = QStringLiteral("org.kde.StatusNotifierWatcher");

}  // namespace

StatusItem::StatusItem(const QDBusConnection& sessionBus, const QString& id)
    : m_bus(sessionBus),
      m_id(id),
      m_service(QStringLiteral("org.kde.StatusNotifierItem-%1-1").arg(QCoreApplication::applicationPid())),
      m_menu(sessionBus),
      m_watcher(kWatcher, sessionBus, QDBusServiceWatcher::WatchForOwnerChange) {
    m_bus.registerObject(
        kPath, this,
        QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals | QDBusConnection::ExportAllProperties);
    m_bus.registerService(m_service);
    connect(&m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString&, const QString& owner) {
                m_hasHost = false;
                if (m_isShown && !owner.isEmpty()) {
                    announce();
                }
            });
}

StatusItem::~StatusItem() {
    m_bus.unregisterService(m_service);
    m_bus.unregisterObject(kPath);
}

void StatusItem::setActionHandler(std::function<void(int action)> handler) {
    m_handler = std::move(handler);
    m_menu.setHandler(m_handler);
}

void StatusItem::show(const StatusContent& content) {
    const StatusContent former = std::exchange(m_content, content);
    m_menu.show(content.menu);
    if (!std::exchange(m_isShown, true)) {
        announce();
        return;
    }
    if (content.iconName != former.iconName) {
        Q_EMIT NewIcon();
    }
    if (content.title != former.title) {
        Q_EMIT NewTitle();
    }
    if (content.tip != former.tip) {
        Q_EMIT NewToolTip();
    }
}

void StatusItem::announce() {
    QDBusMessage call = QDBusMessage::createMethodCall(kWatcher, QStringLiteral("/StatusNotifierWatcher"), kWatcher,
                                                       QStringLiteral("RegisterStatusNotifierItem"));
    call << m_service;
    auto* answer = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        m_hasHost = !answer->isError();
        if (!m_hasHost) {
            qInfo("This desktop has no status area; the icon waits for one.");
        }
    });
}

void StatusItem::Activate(int, int) {
    if (m_handler) {
        m_handler(m_content.clickAction);
    }
}

// The menu is the panel's to show; a click of the middle button and the wheel do nothing, so that nothing is recorded
// by chance.
void StatusItem::SecondaryActivate(int, int) {}
void StatusItem::ContextMenu(int, int) {}
void StatusItem::Scroll(int, const QString&) {}

}  // namespace tavi
