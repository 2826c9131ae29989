#pragma once

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusUnixFileDescriptor>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QFile>
#include <QSet>
#include <QStringList>
#include <QVariantMap>

#include "files/FileDescriptor.h"

namespace tavi::test {

/// A desktop on a private bus, as far as the program talks with one: portal (mail, inhibit), screen saver, session
/// manager, login manager. Which of them exist is the set of names that a test lets it own.
class FakeDesktop : public QDBusVirtualObject {
public:
    static QString portal() { return QStringLiteral("org.freedesktop.portal.Desktop"); }
    static QString screenSaver() { return QStringLiteral("org.freedesktop.ScreenSaver"); }
    static QString sessionManager() { return QStringLiteral("org.gnome.SessionManager"); }
    static QString login() { return QStringLiteral("org.freedesktop.login1"); }

    explicit FakeDesktop(const QDBusConnection& bus, const QStringList& names = {}) : m_bus(bus) {
        for (const QString& path : kPaths) {
            m_bus.registerVirtualObject(path, this, QDBusConnection::SubPath);
        }
        std::for_each(names.begin(), names.end(), [this](const QString& name) { own(name); });
    }
    ~FakeDesktop() override {
        for (const QString& path : kPaths) {
            m_bus.unregisterObject(path, QDBusConnection::UnregisterTree);
        }
    }

    /// Comes (back) with that name, or goes.
    void own(const QString& name) {
        if (!m_bus.registerService(name)) {
            qFatal("%s is taken", qPrintable(name));
        }
    }
    void disown(const QString& name) { m_bus.unregisterService(name); }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        const std::optional<QVariantList> results = answer(message);
        if (!results) {
            return false;
        }
        connection.send(message.createReply(*results));
        if (message.member() == QLatin1String("ComposeEmail") && !holdsMail) {
            respondToMail();
        }
        return true;
    }

    void setScreenSaverActive(bool active) {
        m_screenSaverActive = active;
        QDBusMessage signal =
            QDBusMessage::createSignal(QStringLiteral("/ScreenSaver"), screenSaver(), QStringLiteral("ActiveChanged"));
        m_bus.send(signal << active);
    }
    void setLockedHint(bool locked) {
        m_lockedHint = locked;
        QDBusMessage signal = QDBusMessage::createSignal(
            kSessionPath, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("PropertiesChanged"));
        m_bus.send(signal << kSession << QVariantMap{{QStringLiteral("LockedHint"), locked}} << QStringList());
    }
    /// "Lock" or "Unlock" of the login session.
    void emitSessionSignal(const QString& name) {
        m_bus.send(QDBusMessage::createSignal(kSessionPath, kSession, name));
    }

    /// The machine is about to sleep, or has woken.
    void prepareForSleep(bool begins) {
        QDBusMessage signal =
            QDBusMessage::createSignal(QStringLiteral("/org/freedesktop/login1"), login() + QStringLiteral(".Manager"),
                                       QStringLiteral("PrepareForSleep"));
        m_bus.send(signal << begins);
    }
    /// Whether somebody holds up the machine's sleep.
    bool isSleepDelayed() const {
        pollfd end{m_sleepDelay.get(), POLLIN, 0};
        return m_sleepDelay.isValid() && ::poll(&end, 1, 0) == 0;
    }
    /// What was said to the login manager when its delay was asked for.
    QStringList sleepInhibitor;

    /// Whether the login session's lock has been asked for, by one who listens to its signals.
    bool isWatched = false;
    /// What is inhibited at present: paths of portal requests, cookies of the screen saver and the session manager.
    QSet<QString> inhibitions;
    quint32 inhibitFlags = 0;
    QString inhibitReason;

    /// The portal's answer to a mail.
    quint32 mailResponse = 0;
    quint32 mailVersion = 4;
    bool refusesMail = false;
    /// Whether the response to a mail is the test's to send, by respondToMail(). It goes to the last mail.
    bool holdsMail = false;
    void respondToMail() {
        const QString interface = QStringLiteral("org.freedesktop.portal.Request");
        QDBusMessage response = QDBusMessage::createSignal(m_mailRequest, interface, QStringLiteral("Response"));
        m_bus.send(response << mailResponse << QVariantMap());
    }
    /// As portals of old did.
    bool namesRequestsItself = false;
    /// The last mail: its options, and the contents of its attachments.
    QVariantMap mail;
    QList<QByteArray> mailAttachments;

private:
    /// The results of a call, or nothing where it is not known.
    std::optional<QVariantList> answer(const QDBusMessage& message) {
        const QString call = message.interface() + QLatin1Char('.') + message.member();
        const auto is = [&call](const char* name) {
            return call == QLatin1String("org.freedesktop.") + QLatin1String(name);
        };
        const auto path = [](const QString& name) { return QVariant::fromValue(QDBusObjectPath(name)); };
        const auto property = [](const QVariant& value) { return QVariant::fromValue(QDBusVariant(value)); };
        const QVariantList in = message.arguments();
        if (is("portal.Inhibit.Inhibit")) {
            const auto options = qdbus_cast<QVariantMap>(in.at(2));
            const QString request = requestPath(message, options);
            inhibitFlags = in.at(1).toUInt();
            inhibitReason = options.value(QStringLiteral("reason")).toString();
            inhibitions.insert(request);
            return QVariantList{path(request)};
        }
        if (is("portal.Request.Close")) {
            inhibitions.remove(message.path());
            return QVariantList();
        }
        if (is("ScreenSaver.Inhibit")) {
            inhibitReason = in.at(1).toString();
            inhibitions.insert(QString::number(++m_lastNumber));
            return QVariantList{m_lastNumber};
        }
        if (call == QLatin1String("org.gnome.SessionManager.Inhibit") && message.signature() == QLatin1String("susu")) {
            inhibitReason = in.at(2).toString();
            inhibitFlags = in.at(3).toUInt();
            inhibitions.insert(QString::number(++m_lastNumber));
            return QVariantList{m_lastNumber};
        }
        if (is("ScreenSaver.UnInhibit") || call == QLatin1String("org.gnome.SessionManager.Uninhibit")) {
            inhibitions.remove(in.at(0).toString());
            return QVariantList();
        }
        if (is("ScreenSaver.GetActive")) {
            return QVariantList{m_screenSaverActive};
        }
        if (is("login1.Manager.GetSession")) {
            return QVariantList{path(kSessionPath)};
        }
        if (is("login1.Manager.Inhibit")) {
            int ends[2] = {};
            if (::pipe2(ends, O_CLOEXEC) != 0) {
                return std::nullopt;
            }
            m_sleepDelay = FileDescriptor(ends[0]);
            sleepInhibitor = QStringList{in.at(0).toString(), in.at(2).toString(), in.at(3).toString()};
            const FileDescriptor theirs(ends[1]);
            return QVariantList{QVariant::fromValue(QDBusUnixFileDescriptor(theirs.get()))};
        }
        if (is("DBus.Properties.Get") && in.at(0) == kSession) {
            isWatched = true;
            return QVariantList{property(m_lockedHint)};
        }
        if (is("DBus.Properties.Get") && mailVersion > 0) {
            return QVariantList{property(mailVersion)};
        }
        if (is("portal.Email.ComposeEmail") && !refusesMail) {
            takeMail(message);
            return QVariantList{path(m_mailRequest)};
        }
        return std::nullopt;
    }
    QString requestPath(const QDBusMessage& message, const QVariantMap& options) {
        const QString own = QStringLiteral("own%1").arg(++m_lastNumber);
        const QString token = options.value(QStringLiteral("handle_token"), own).toString();
        const QString sender = message.service().mid(1).replace(QLatin1Char('.'), QLatin1Char('_'));
        return QStringLiteral("/org/freedesktop/portal/desktop/request/%1/%2")
            .arg(sender, namesRequestsItself ? own : token);
    }
    void takeMail(const QDBusMessage& message) {
        mail = qdbus_cast<QVariantMap>(message.arguments().at(1));
        m_mailRequest = requestPath(message, mail);
        mailAttachments.clear();
        const auto files = qdbus_cast<QList<QDBusUnixFileDescriptor>>(mail.value(QStringLiteral("attachment_fds")));
        for (const QDBusUnixFileDescriptor& descriptor : files) {
            QFile file;
            if (file.open(descriptor.fileDescriptor(), QIODevice::ReadOnly)) {
                mailAttachments.append(file.readAll());
            }
        }
    }

    inline static const QStringList kPaths{QStringLiteral("/org/freedesktop"), QStringLiteral("/org/gnome")};
    inline static const QString kSessionPath = QStringLiteral("/org/freedesktop/login1/session/_31");
    inline static const QString kSession = QStringLiteral("org.freedesktop.login1.Session");

    QDBusConnection m_bus;
    QString m_mailRequest;
    bool m_screenSaverActive = false;
    bool m_lockedHint = false;
    /// The end of a pipe whose other end is the delay.
    FileDescriptor m_sleepDelay;
    /// Of what was asked for; cookies and paths are made of it.
    quint32 m_lastNumber = 0;
};

}  // namespace tavi::test
