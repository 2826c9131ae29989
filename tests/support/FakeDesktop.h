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

/// A desktop on a private bus, as far as the program talks with one: portal (mail, open, save, inhibit), file manager,
/// screen saver, session manager, login manager. Which of them exist is the set of names that a test lets it own.
struct FakeDesktop : QDBusVirtualObject {
    static QString portal() { return QStringLiteral("org.freedesktop.portal.Desktop"); }
    static QString fileManager() { return QStringLiteral("org.freedesktop.FileManager1"); }
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
        const bool isRequest = kRequests.contains(message.member());
        if (isRequest && isSilent) {
            message.setDelayedReply(true);
            return true;
        }
        const std::optional<QVariantList> answered = answer(message);
        if (!answered) {
            return false;
        }
        connection.send(message.createReply(*answered));
        if (isRequest && !holdsRequests) {
            respond();
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
    QString sleepInhibitor;

    /// Whether the login session's lock has been asked for, by one who listens to its signals.
    bool isWatched = false;
    /// What is inhibited at present: paths of portal requests, cookies of the screen saver and the session manager.
    QSet<QString> inhibitions;
    quint32 inhibitFlags = 0;
    QString inhibitReason;

    quint32 mailVersion = 4;
    /// The portal's answer to requests: mails, files to open and to save.
    quint32 response = 0;
    QVariantMap results;
    bool refusesRequests = false;
    /// Whether it does not even say that it has begun.
    bool isSilent = false;
    /// Whether the response is the test's to send, by respond(). It goes to the last request.
    bool holdsRequests = false;
    void respond() {
        const QString interface = QStringLiteral("org.freedesktop.portal.Request");
        QDBusMessage signal = QDBusMessage::createSignal(m_request, interface, QStringLiteral("Response"));
        m_bus.send(signal << response << results);
    }
    /// As portals of old did.
    bool namesRequestsItself = false;
    /// The last request: its method with the arguments that are texts, its options, and the contents of its files.
    QStringList request;
    QVariantMap options;
    QList<QByteArray> files;
    /// How many requests were given up.
    int closed = 0;
    /// What the file manager shows.
    QStringList shown;

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
            const auto wishes = qdbus_cast<QVariantMap>(in.at(2));
            const QString inhibition = requestPath(message, wishes);
            inhibitFlags = in.at(1).toUInt();
            inhibitReason = wishes.value(QStringLiteral("reason")).toString();
            inhibitions.insert(inhibition);
            return QVariantList{path(inhibition)};
        }
        if (is("portal.Request.Close")) {
            inhibitions.remove(message.path());
            ++closed;
            return QVariantList();
        }
        if (is("FileManager1.ShowItems")) {
            shown = in.at(0).toStringList();
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
            sleepInhibitor =
                in.at(0).toString() + QLatin1Char(' ') + in.at(2).toString() + QLatin1Char(' ') + in.at(3).toString();
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
        if (kRequests.contains(message.member()) && !refusesRequests) {
            takeRequest(message);
            return QVariantList{path(m_request)};
        }
        return std::nullopt;
    }
    QString requestPath(const QDBusMessage& message, const QVariantMap& wishes) {
        const QString own = QStringLiteral("own%1").arg(++m_lastNumber);
        const QString token = wishes.value(QStringLiteral("handle_token"), own).toString();
        const QString sender = message.service().mid(1).replace(QLatin1Char('.'), QLatin1Char('_'));
        return QStringLiteral("/org/freedesktop/portal/desktop/request/%1/%2")
            .arg(sender, namesRequestsItself ? own : token);
    }
    void takeRequest(const QDBusMessage& message) {
        request = QStringList{message.member()};
        files.clear();
        for (const QVariant& argument : message.arguments()) {
            if (argument.canConvert<QDBusUnixFileDescriptor>()) {
                takeFile(argument.value<QDBusUnixFileDescriptor>());
            } else if (argument.typeId() == QMetaType::QString) {
                request << argument.toString();
            }
        }
        options = qdbus_cast<QVariantMap>(message.arguments().constLast());
        const auto attached =
            qdbus_cast<QList<QDBusUnixFileDescriptor>>(options.value(QStringLiteral("attachment_fds")));
        std::for_each(attached.begin(), attached.end(), [this](const auto& descriptor) { takeFile(descriptor); });
        m_request = requestPath(message, options);
    }
    void takeFile(const QDBusUnixFileDescriptor& descriptor) {
        QFile file;
        if (file.open(descriptor.fileDescriptor(), QIODevice::ReadOnly)) {
            files.append(file.readAll());
        }
    }

    inline static const QStringList kRequests{QStringLiteral("ComposeEmail"), QStringLiteral("OpenFile"),
                                              QStringLiteral("OpenURI"), QStringLiteral("SaveFile")};
    inline static const QStringList kPaths{QStringLiteral("/org/freedesktop"), QStringLiteral("/org/gnome")};
    inline static const QString kSessionPath = QStringLiteral("/org/freedesktop/login1/session/_31");
    inline static const QString kSession = QStringLiteral("org.freedesktop.login1.Session");

    QDBusConnection m_bus;
    QString m_request;
    bool m_screenSaverActive = false;
    bool m_lockedHint = false;
    /// The end of a pipe whose other end is the delay.
    FileDescriptor m_sleepDelay;
    /// Of what was asked for; cookies and paths are made of it.
    quint32 m_lastNumber = 0;
};

}  // namespace tavi::test
