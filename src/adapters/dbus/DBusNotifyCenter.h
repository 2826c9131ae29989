#pragma once

#include <QDBusConnection>
#include <QObject>
#include <map>
#include <utility>

#include "platform/NotifyCenter.h"

namespace tavi {

/// Notifications as signals on the session bus, "Posted" of com.quillfen.voicerecorder.Notify with the name,
/// percent-encoded. The bus
/// wakes a program only for names that it observes. Without a bus only this program's observers hear.
class DBusNotifyCenter final : public QObject, public NotifyCenter {
    Q_OBJECT

public:
    explicit DBusNotifyCenter(const QDBusConnection& sessionBus) : m_bus(sessionBus) {}

    void postNotification(const QString& name) override;
    void addObserver(const void* observer, const QString& name,
                     std::function<void(const QString& name)> callback) override;
    void removeObserver(const void* observer, const QString& name) override;
    void removeEveryObserver(const void* observer) override;

private Q_SLOTS:
    void onPosted(const QString& encodedName);

private:
    bool isObserved(const QString& name) const;
    void listen(const QString& name, bool isWanted);

    QDBusConnection m_bus;
    std::map<std::pair<QString, const void*>, std::function<void(const QString& name)>> m_observers;
};

}  // namespace tavi
