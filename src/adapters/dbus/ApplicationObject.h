#pragma once

#include <QDBusContext>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

namespace tavi {

class DBusApplication;

/// The program's object on the bus: turns the methods of org.freedesktop.Application (Desktop Entry 1.5 of
/// freedesktop.org) into calls of the application. While that is locked, what would show the library answers with
/// kLockedError, and the window is shown all the same. Main thread.
class ApplicationObject : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    /// The application owns this.
    explicit ApplicationObject(DBusApplication& application) : m_application(application) {}

public Q_SLOTS:
    void Activate(const QVariantMap& platformData);
    /// Answers with an error, and opens none of them, if one is neither a URL nor an absolute path. Files are imported
    /// later: what becomes of them is shown in the window.
    void Open(const QStringList& uris, const QVariantMap& platformData);
    /// Answers with an error if there is no such action. "refresh" alone does not show the window.
    void ActivateAction(const QString& name, const QVariantList& parameter, const QVariantMap& platformData);

private:
    void refuse(const QString& why);
    void refuseLocked(const QString& activationToken);

    DBusApplication& m_application;
};

}  // namespace tavi
