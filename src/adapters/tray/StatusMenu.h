#pragma once

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>
#include <functional>

#include "adapters/tray/StatusTypes.h"
#include "platform/StatusIcon.h"

namespace tavi {

/// The icon's menu on the bus: com.canonical.dbusmenu, version 3. Entry 0 holds all others, which are counted from 1.
/// Main thread.
class StatusMenu : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.canonical.dbusmenu")
    Q_PROPERTY(uint Version READ version CONSTANT)
    Q_PROPERTY(QString TextDirection READ textDirection CONSTANT)
    Q_PROPERTY(QString Status READ status CONSTANT)
    Q_PROPERTY(QStringList IconThemePath READ iconThemePath CONSTANT)

public:
    static constexpr QLatin1String kPath{"/MenuBar"};

    explicit StatusMenu(const QDBusConnection& sessionBus);
    ~StatusMenu() override;

    void show(const QList<StatusEntry>& entries);
    void setHandler(std::function<void(int action)> handler) { m_handler = std::move(handler); }

    static uint version() { return 3; }
    static QString textDirection() { return QStringLiteral("ltr"); }
    static QString status() { return QStringLiteral("normal"); }
    static QStringList iconThemePath() { return {}; }

public Q_SLOTS:
    uint GetLayout(int parentId, int recursionDepth, const QStringList& propertyNames, tavi::tray::Layout& layout);
    QList<tavi::tray::Item> GetGroupProperties(const QList<int>& ids, const QStringList& propertyNames);
    QDBusVariant GetProperty(int id, const QString& name);
    void Event(int id, const QString& eventId, const QDBusVariant& data, uint timestamp);
    QList<int> EventGroup(const QList<tavi::tray::Event>& events);
    bool AboutToShow(int id);
    QList<int> AboutToShowGroup(const QList<int>& ids, QList<int>& idErrors);

Q_SIGNALS:
    void ItemsPropertiesUpdated(const QList<tavi::tray::Item>& updated, const QList<tavi::tray::RemovedItem>& removed);
    void LayoutUpdated(uint revision, int parent);
    void ItemActivationRequested(int id, uint timestamp);

private:
    bool hasItem(int id) const { return id >= 0 && id <= m_entries.size(); }
    QVariantMap propertiesOf(int id) const;

    QDBusConnection m_bus;
    std::function<void(int action)> m_handler;
    QList<StatusEntry> m_entries;
    uint m_revision = 1;
};

}  // namespace tavi
