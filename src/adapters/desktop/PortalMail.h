#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QHash>
#include <QObject>
#include <QVariantMap>
#include <functional>

#include "platform/MailComposer.h"

class QDBusPendingCallWatcher;

namespace tavi {

/// Mail through the interface org.freedesktop.portal.Email of the desktop portal. Main thread; never waits.
class PortalMail : public QObject {
    Q_OBJECT

public:
    enum class Outcome {
        /// The mail program has it.
        Done,
        /// The user thought better of it.
        Cancelled,
        /// The portal offers no mail after all.
        Unavailable,
        Failed,
    };

    /// The bus may be unconnected.
    explicit PortalMail(const QDBusConnection& sessionBus);

    /// Whether the portal has answered that it offers mail; it is asked when this is built, and whenever it comes.
    bool isAvailable() const { return m_version > 0; }
    /// Hands over the mail with open files in place of names. The outcome comes later, on the main thread; never after
    /// this is gone. Fails when an attachment cannot be opened.
    Result<void> compose(const MailMessage& message, const std::function<void(Outcome)>& completion);

private Q_SLOTS:
    /// org.freedesktop.portal.Request::Response; 0 is success, 1 the user's cancelling, anything else a failure.
    void onResponse(quint32 response, const QVariantMap& results, const QDBusMessage& message);

private:
    void onOwnerChanged(const QString& newOwner);
    void askVersion();
    void expectResponse(const QString& path, const std::function<void(Outcome)>& completion);
    void onComposeAnswer(const QString& expectedPath, QDBusPendingCallWatcher& answer);
    void finish(const QString& path, Outcome outcome);

    QDBusConnection m_bus;
    QDBusServiceWatcher m_watcher;
    quint32 m_version = 0;
    quint32 m_lastToken = 0;
    /// By object path of the portal's request.
    QHash<QString, std::function<void(Outcome)>> m_requests;
};

}  // namespace tavi
