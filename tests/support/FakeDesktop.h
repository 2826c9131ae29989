#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QSet>
#include <QStringList>
#include <QVariantMap>

namespace tavi::test {

/// A desktop on a private bus, as far as the program talks with one: portal (mail, inhibit), screen saver, login
/// manager. Which of them exist is the set of names that a test lets it own.
class FakeDesktop : public QDBusVirtualObject {
public:
    static QString portal() { return QStringLiteral("org.freedesktop.portal.Desktop"); }
    static QString screenSaver() { return QStringLiteral("org.freedesktop.ScreenSaver"); }
    static QString login() { return QStringLiteral("org.freedesktop.login1"); }

    explicit FakeDesktop(const QDBusConnection& bus, const QStringList& names = {});
    ~FakeDesktop() override;

    /// Comes (back) with that name, or goes.
    void own(const QString& name);
    void disown(const QString& name) { m_bus.unregisterService(name); }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

    void setScreenSaverActive(bool active);
    void setLockedHint(bool locked);
    /// "Lock" or "Unlock" of the login session.
    void emitSessionSignal(const QString& name);

    /// Whether the login session's lock has been asked for, by one who listens to its signals.
    bool isWatched = false;
    /// What keeps the screen on at present: paths of portal requests, cookies of the screen saver.
    QSet<QString> inhibitions;
    quint32 inhibitFlags = 0;
    QString inhibitReason;

    /// The portal's answer to a mail.
    quint32 mailResponse = 0;
    quint32 mailVersion = 4;
    bool refusesMail = false;
    /// Whether the response to a mail is the test's to send, by respondToMail(). It goes to the last mail.
    bool holdsMail = false;
    void respondToMail();
    /// As portals of old did.
    bool namesRequestsItself = false;
    /// The last mail: its options, and the contents of its attachments.
    QVariantMap mail;
    QList<QByteArray> mailAttachments;

private:
    /// The results of a call, or nothing where it is not known.
    std::optional<QVariantList> answer(const QDBusMessage& message);
    QString requestPath(const QDBusMessage& message, const QVariantMap& options);
    void takeMail(const QDBusMessage& message);

    QDBusConnection m_bus;
    QString m_mailRequest;
    bool m_screenSaverActive = false;
    bool m_lockedHint = false;
    /// Of what was asked for; cookies and paths are made of it.
    quint32 m_lastNumber = 0;
};

}  // namespace tavi::test
