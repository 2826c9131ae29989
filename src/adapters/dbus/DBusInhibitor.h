#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QString>
#include <QVariantList>

namespace tavi {

/// Keeps the desktop from doing something: through the portal's Inhibit, else through a service of the session bus that
/// has "Inhibit" with a cookie for its result. Main thread.
///
/// Everything is asked without waiting. Where a service comes (or comes back) later, it is asked then.
class DBusInhibitor final : public QObject {
    Q_OBJECT

public:
    struct Kind {
        /// For the user.
        QString reason;
        /// Of org.freedesktop.portal.Inhibit.
        quint32 portalFlag = 0;
        /// The other service, whose interface has its name; what its "Inhibit" is given, and the method that takes the
        /// cookie back.
        QString service;
        QString path;
        QVariantList arguments;
        QString release;
        /// Logged, once, where there is neither.
        const char* missing = "";
    };

    /// The bus may be unconnected.
    DBusInhibitor(const QDBusConnection& sessionBus, const Kind& kind);
    /// Gives back what is held, also when the answer to a question is still to come.
    ~DBusInhibitor() override;

    void setWanted(bool wanted);
    bool isWanted() const { return m_isWanted; }

private Q_SLOTS:
    void onOwnerChanged(const QString& service, const QString& oldOwner, const QString& newOwner);

private:
    enum class State { Released, Asking, HeldByPortal, HeldByService };

    void askPortal();
    void askService();
    /// Gives back what is held.
    void release();
    void releaseIfUnwanted();

    QDBusConnection m_bus;
    Kind m_kind;
    bool m_isWanted = false;
    bool m_isMissingSaid = false;
    State m_state = State::Released;
    /// Object path of the portal's request.
    QString m_request;
    /// The other service's.
    quint32 m_cookie = 0;
};

}  // namespace tavi
