#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QDBusUnixFileDescriptor>
#include <QHash>
#include <QObject>
#include <QVariantMap>
#include <chrono>
#include <filesystem>
#include <functional>

#include "platform/Error.h"

class QDBusMessage;
class QDBusPendingCallWatcher;

namespace tavi {

/// What is asked of the desktop portal (org.freedesktop.portal.Desktop): methods that begin a request, to which the
/// user answers when he likes. Main thread; never waits.
class PortalRequests : public QObject {
    Q_OBJECT

public:
    enum class Outcome {
        Done,
        /// The user thought better of it.
        Cancelled,
        /// The portal does not offer this, or has not begun with it in time: another way may be tried.
        Unavailable,
        Failed,
    };
    /// The outcome, and what the portal says about it.
    using Completion = std::function<void(Outcome outcome, const QVariantMap& results)>;

    /// The bus may be unconnected. The patience is for the portal to begin; the user has all the time there is.
    explicit PortalRequests(const QDBusConnection& sessionBus,
                            std::chrono::milliseconds patience = std::chrono::seconds(10));

    /// Calls that method of an interface below org.freedesktop.portal: with the window that its dialog belongs to, the
    /// arguments and the options. The completion comes once, after this has returned, and not once this is gone. A
    /// portal that dies has failed.
    void ask(const QString& interface, const QString& method, const QVariantList& arguments, QVariantMap options,
             const Completion& completion);
    /// Asks for the version of such an interface; 0 where there is none. As often as the portal comes or goes.
    void watchVersion(const QString& interface, const std::function<void(quint32 version)>& completion);

    /// The window that dialogs belong to, as the portal names windows: "x11:" and the number in hexadecimal digits.
    void setParentWindow(const QString& window) { m_parentWindow = window; }

    /// A file as the portal takes it, open for reading.
    static Result<QDBusUnixFileDescriptor> openedFile(const std::filesystem::path& path);

private Q_SLOTS:
    /// org.freedesktop.portal.Request::Response; 0 is success, 1 the user's cancelling, anything else a failure.
    void onResponse(quint32 response, const QVariantMap& results, const QDBusMessage& message);

private:
    void onOwnerChanged(const QString& oldOwner, const QString& newOwner);
    void askVersion(const QString& interface);
    void onAnswer(const QString& expectedPath, QDBusPendingCallWatcher& answer);
    void expectResponse(const QString& path, const Completion& completion);
    void finish(const QString& path, Outcome outcome, const QVariantMap& results = {});

    QDBusConnection m_bus;
    int m_patience;
    QDBusServiceWatcher m_watcher;
    QString m_parentWindow;
    quint32 m_lastToken = 0;
    /// By object path of the portal's request.
    QHash<QString, Completion> m_requests;
    /// By interface: who wants to know its version.
    QHash<QString, std::function<void(quint32)>> m_versions;
};

}  // namespace tavi
