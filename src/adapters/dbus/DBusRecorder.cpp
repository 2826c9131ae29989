#include "adapters/dbus/DBusRecorder.h"

#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QProcess>
#include <limits>
#include <utility>

#include "adapters/dbus/BusNames.h"
#include "adapters/dbus/LockObject.h"
#include "adapters/dbus/RecordingObject.h"

namespace tavi {

namespace {

const QString kProperties = QStringLiteral("org.freedesktop.DBus.Properties");

bool isAbsence(const QDBusError& error) {
    return error.type() == QDBusError::ServiceUnknown ||
           error.name() == QLatin1String("org.freedesktop.DBus.Error.NameHasNoOwner");
}

}  // namespace

DBusRecorder::DBusRecorder(const QDBusConnection& sessionBus, const QString& busName, QStringList startCommand,
                           std::chrono::milliseconds patience)
    : m_bus(sessionBus),
      m_busName(busName),
      m_startCommand(std::move(startCommand)),
      m_patienceMs(static_cast<int>(patience.count())),
      m_watcher(busName, sessionBus, QDBusServiceWatcher::WatchForOwnerChange) {
    m_bus.connect(m_busName, kApplicationObjectPath, kProperties, QStringLiteral("PropertiesChanged"), this,
                  SLOT(onPropertiesChanged(QString, QVariantMap, QStringList)));
    connect(&m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString&, const QString& owner) {
                if (owner.isEmpty()) {
                    ++m_questions;
                    setState({});
                } else {
                    ask(m_patienceMs);
                }
            });
    ask(m_patienceMs);
}

void DBusRecorder::ask(int patienceMs) {
    if (!m_bus.isConnected()) {
        // A call that is never sent is never answered.
        QMetaObject::invokeMethod(
            this, [this] { setState({}); }, Qt::QueuedConnection);
        return;
    }
    QDBusMessage question =
        QDBusMessage::createMethodCall(m_busName, kApplicationObjectPath, kProperties, QStringLiteral("GetAll"));
    question.setAutoStartService(false);
    question << QString(kRecordingInterface);
    auto* answer = new QDBusPendingCallWatcher(m_bus.asyncCall(question, patienceMs), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer, number = ++m_questions] {
        answer->deleteLater();
        if (number == m_questions) {
            const QDBusPendingReply<QVariantMap> reply = *answer;
            if (reply.isValid() || isAbsence(reply.error())) {
                apply(reply.isValid() ? reply.value() : QVariantMap());
                return;
            }
            setState({.phase = RecorderState::Phase::Silent});
            if (reply.error().type() == QDBusError::NoReply) {
                // It may be busy. The bus keeps the question, so that nobody wakes to ask again.
                ask(std::numeric_limits<int>::max());
            }
        }
    });
}

void DBusRecorder::onPropertiesChanged(const QString& interface, const QVariantMap& changed, const QStringList&) {
    if (interface == kRecordingInterface) {
        // What was asked before this is older.
        ++m_questions;
        apply(changed);
    }
}

void DBusRecorder::apply(const QVariantMap& properties) {
    setState({.phase = phaseNamed(properties.value(QStringLiteral("State")).toString()),
              .seconds = properties.value(QStringLiteral("Seconds")).toLongLong()});
}

void DBusRecorder::setState(const RecorderState& state) {
    if (std::exchange(m_state, state) == state && std::exchange(m_isKnown, true)) {
        return;
    }
    m_isKnown = true;
    if (m_handler) {
        m_handler();
    }
}

bool DBusRecorder::start(const QUrl& url) const {
    QProcess process;
    process.setProgram(m_startCommand.first());
    process.setArguments(m_startCommand.mid(1) << url.toString());
    // It lives longer than this program, and than who reads what this one says.
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    return process.startDetached();
}

void DBusRecorder::open(const QUrl& url, std::function<void(Outcome outcome, const Error& error)> completion) {
    const auto startFor = [this, completion](const QUrl& asked) {
        completion(start(asked) ? Outcome::Opened : Outcome::Failed,
                   {QStringLiteral("The recorder cannot be started as “%1”.").arg(m_startCommand.first())});
    };
    if (!m_bus.isConnected()) {
        startFor(url);
        return;
    }
    QDBusMessage call = QDBusMessage::createMethodCall(m_busName, kApplicationObjectPath, kApplicationInterface,
                                                       QStringLiteral("Open"));
    call.setAutoStartService(false);
    call << QStringList{url.toString()} << QVariantMap();
    auto* answer = new QDBusPendingCallWatcher(m_bus.asyncCall(call, m_patienceMs), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [answer, url, startFor, completion] {
        answer->deleteLater();
        if (!answer->isError()) {
            completion(Outcome::Opened, {});
        } else if (isAbsence(answer->error())) {
            startFor(url);
        } else {
            const bool isLocked = answer->error().name() == kLockedError;
            const bool isSilent = answer->error().type() == QDBusError::NoReply;
            completion(isLocked ? Outcome::Locked : Outcome::Failed,
                       {isSilent ? QStringLiteral("The recorder does not answer.") : answer->error().message()});
        }
    });
}

}  // namespace tavi
