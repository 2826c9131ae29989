#include "adapters/dbus/ApplicationObject.h"

#include <QDBusError>
#include <algorithm>

#include "adapters/dbus/DBusApplication.h"
#include "adapters/dbus/LockObject.h"

namespace tavi {

namespace {

QString activationToken(const QVariantMap& platformData) {
    return platformData.value(QStringLiteral("activation-token")).toString();
}

}  // namespace

void ApplicationObject::Activate(const QVariantMap& platformData) {
    m_application.whenLaunched([app = &m_application, token = activationToken(platformData)] { app->activate(token); });
}

void ApplicationObject::Open(const QStringList& uris, const QVariantMap& platformData) {
    QList<QUrl> urls;
    for (const QString& uri : uris) {
        urls.append(DBusApplication::urlFromText(uri));
        if (!urls.last().isValid()) {
            refuse(QStringLiteral("“%1” is neither a URL nor an absolute path.").arg(uri));
            return;
        }
    }
    const auto isForLibrary = [](const QUrl& url) { return hasOwnScheme(url) && !isForRecording(url); };
    if (m_application.isLocked() && !urls.isEmpty() && std::all_of(urls.begin(), urls.end(), isForLibrary)) {
        refuseLocked(activationToken(platformData));
        return;
    }
    m_application.whenLaunched([app = &m_application, urls, token = activationToken(platformData)] {
        app->activate(token);
        app->open(urls);
    });
    // The window is shown all the same, as the user has asked for something.
    const auto canOpen = [](const QUrl& url) { return hasOwnScheme(url) || url.isLocalFile(); };
    if (std::none_of(urls.begin(), urls.end(), canOpen)) {
        refuse(urls.isEmpty() ? QStringLiteral("There is nothing to open.")
                              : QStringLiteral("The recorder does not open “%1”.").arg(uris.first()));
    }
}

void ApplicationObject::ActivateAction(const QString& name, const QVariantList&, const QVariantMap& platformData) {
    // Before the launch has finished the shortcut items are not known yet.
    if (m_application.m_launched && !m_application.isAction(name)) {
        refuse(QStringLiteral("There is no action “%1”.").arg(name));
        return;
    }
    if (DBusApplication::isRefresh(name)) {
        m_application.whenLaunched([app = &m_application] { Q_EMIT app->refreshRequested(); });
        return;
    }
    if (m_application.isLocked() && !m_application.isRecordingAction(name)) {
        refuseLocked(activationToken(platformData));
        return;
    }
    m_application.whenLaunched([app = &m_application, name, token = activationToken(platformData)] {
        app->activate(token);
        app->performAction(name);
    });
}

void ApplicationObject::refuseLocked(const QString& token) {
    // Where the passcode can be entered.
    m_application.whenLaunched([app = &m_application, token] { app->activate(token); });
    if (calledFromDBus()) {
        sendErrorReply(kLockedError, QStringLiteral("The recorder is locked. Enter the passcode in its window."));
    }
}

void ApplicationObject::refuse(const QString& why) {
    if (calledFromDBus()) {
        sendErrorReply(QDBusError::InvalidArgs, why);
    }
}

}  // namespace tavi
