#pragma once

#include <QObject>
#include <QString>
#include <QVariant>

namespace tavi {

/// Notifications inside the process: whoever posts does not know who listens. Main thread only.
class NotificationCenter : public QObject {
    Q_OBJECT

public:
    void postNotification(const QString& name, const QVariant& object = {}) { Q_EMIT posted(name, object); }

Q_SIGNALS:
    void posted(const QString& name, const QVariant& object);
};

}  // namespace tavi
