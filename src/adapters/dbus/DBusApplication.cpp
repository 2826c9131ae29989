#include "adapters/dbus/DBusApplication.h"

#include <QCoreApplication>
#include <QDir>
#include <QTimer>
#include <utility>

#include "adapters/dbus/ApplicationObject.h"
#include "adapters/dbus/BusNames.h"
#include "adapters/dbus/LockObject.h"
#include "adapters/dbus/RecordingObject.h"
#include "adapters/dbus/SessionLock.h"
#include "adapters/dbus/WindowState.h"
#include "files/FileUri.h"
#include "files/PathText.h"

namespace tavi {

namespace {

constexpr QLatin1String kStopAction("stop");
constexpr std::chrono::milliseconds kTimeToDraw(200);

bool isSame(const QString& a, QLatin1String b) {
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

}  // namespace

DBusApplication::DBusApplication(const QDBusConnection& sessionBus, const QDBusConnection& systemBus,
                                 const QString& busName, const Services& services)
    : m_sessionBus(sessionBus),
      m_busName(busName),
      m_services(services),
      m_busObject(std::make_unique<ApplicationObject>(*this)),
      m_sessionLock(std::make_unique<SessionLock>(sessionBus, systemBus)) {
    connect(m_sessionLock.get(), &SessionLock::changed, this, &DBusApplication::updateLifeCycleSoon);
    connect(&m_services.systemSleep, &SystemSleep::willSleep, this, &DBusApplication::prepareForSleep);
    connect(&m_services.systemSleep, &SystemSleep::hasWoken, this, [this] {
        m_isAsleep = false;
        updateLifeCycleSoon();
    });
    connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this, [this] {
        if (m_launched) {
            deliver(m_lifeCycle.terminate());
        }
    });
}

DBusApplication::~DBusApplication() {
    if (m_sessionBus.isConnected()) {
        m_sessionBus.unregisterService(m_busName);
        m_sessionBus.unregisterObject(kApplicationObjectPath);
    }
}

void DBusApplication::setLockState(const LockState& lockState) {
    m_lockState = &lockState;
    new LockObject(m_busObject.get(), lockState);
    m_recordingObject = new RecordingObject(m_busObject.get(), lockState, m_sessionBus);
}

void DBusApplication::setRecorderState(const RecorderState& state) {
    if (m_recordingObject != nullptr) {
        m_recordingObject->setState(state);
    }
}

DBusApplication::Claim DBusApplication::claim() {
    if (!m_sessionBus.isConnected()) {
        return Claim::NoBus;
    }
    // The object comes first: with the name come the calls.
    m_sessionBus.registerObject(kApplicationObjectPath, m_busObject.get(),
                                QDBusConnection::ExportAllSlots | QDBusConnection::ExportAdaptors);
    return m_sessionBus.registerService(m_busName) ? Claim::First : Claim::AlreadyRunning;
}

void DBusApplication::setWindow(QWindow* window) {
    m_window = std::make_unique<WindowState>(window);
    connect(m_window.get(), &WindowState::changed, this, &DBusApplication::onWindowChanged);
    onWindowChanged();
}

void DBusApplication::launchFinished() {
    m_services.notifications.postNotification(applicationnotification::kDidFinishLaunching);
    m_launched = true;
    for (const auto& call : std::exchange(m_waiting, {})) {
        call();
    }
    updateLifeCycle();
}

void DBusApplication::setDelegate(ApplicationDelegate* delegate) {
    m_delegate = delegate;
}

QUrl DBusApplication::urlFromText(const QString& text) {
    if (QDir::isAbsolutePath(text)) {
        return QUrl::fromEncoded(QByteArray::fromStdString(fileUri(nativePath(text))));
    }
    const QUrl url(text, QUrl::StrictMode);
    return url.scheme().isEmpty() ? QUrl() : url;
}

void DBusApplication::whenLaunched(std::function<void()> call) {
    if (m_launched) {
        call();
    } else {
        m_waiting.push_back(std::move(call));
    }
}

void DBusApplication::activate(const QString& activationToken) {
    if (m_window) {
        m_window->present(activationToken);
    }
}

void DBusApplication::open(const QList<QUrl>& urls) {
    for (const QUrl& url : urls) {
        if (m_delegate != nullptr) {
            m_delegate->applicationOpenURL(url);
        }
    }
}

bool DBusApplication::isAction(const QString& name) const {
    return isSame(name, kStopAction) || isRefresh(name) || shortcutItemFor(name) != nullptr;
}

bool DBusApplication::isRefresh(const QString& name) {
    return isSame(name, kRefreshAction);
}

bool DBusApplication::isRecordingAction(const QString& name) const {
    return isSame(name, kStopAction) || isSame(name, QLatin1String("record"));
}

void DBusApplication::performAction(const QString& name) {
    const ShortcutItem* item = shortcutItemFor(name);
    if (item != nullptr && m_delegate != nullptr) {
        // A copy: the delegate may change the list. The caller on the bus is not told how it went.
        m_delegate->applicationPerformActionForShortcutItem(ShortcutItem(*item), [](bool) {});
    } else if (isSame(name, kStopAction)) {
        open({QUrl(QStringLiteral("TaviRecordStop:"))});
    } else {
        qWarning("There is no action “%s”.", qUtf8Printable(name));
    }
}

const ShortcutItem* DBusApplication::shortcutItemFor(const QString& action) const {
    const QString type = isSame(action, QLatin1String("library")) ? QStringLiteral("Recordings") : action;
    for (const ShortcutItem& item : m_shortcutItems) {
        if (item.type.compare(type, Qt::CaseInsensitive) == 0) {
            return &item;
        }
    }
    return nullptr;
}

void DBusApplication::onWindowChanged() {
    const bool focused = m_window->hasFocus();
    if (focused && !std::exchange(m_hadFocus, focused)) {
        m_sessionLock->userIsBack();
    }
    m_hadFocus = focused;
    updateLifeCycleSoon();
}

void DBusApplication::updateLifeCycleSoon() {
    if (!std::exchange(m_updateIsComing, true)) {
        QMetaObject::invokeMethod(this, &DBusApplication::updateLifeCycle, Qt::QueuedConnection);
    }
}

void DBusApplication::updateLifeCycle() {
    m_updateIsComing = false;
    if (m_launched && m_window) {
        deliver(m_lifeCycle.update({m_window->isShown(), m_window->hasFocus(), m_sessionLock->isLocked(), m_isAsleep}));
    }
}

void DBusApplication::prepareForSleep(const std::shared_ptr<void>& delay) {
    // Now, and not soon: afterwards nothing is done any more.
    m_isAsleep = true;
    updateLifeCycle();
    // What the window shows from then on is drawn before.
    QTimer::singleShot(kTimeToDraw, this, [delay] {});
}

void DBusApplication::deliver(const std::vector<LifeCycle::Event>& events) {
    for (const LifeCycle::Event event : events) {
        if (m_delegate != nullptr) {
            tellDelegate(event);
        }
        if (event == LifeCycle::Event::DidEnterBackground) {
            m_services.notifications.postNotification(applicationnotification::kDidEnterBackground);
        } else if (event == LifeCycle::Event::WillEnterForeground) {
            m_services.notifications.postNotification(applicationnotification::kWillEnterForeground);
        }
    }
}

void DBusApplication::tellDelegate(LifeCycle::Event event) {
    switch (event) {
        case LifeCycle::Event::DidBecomeActive:
            m_delegate->applicationDidBecomeActive();
            break;
        case LifeCycle::Event::WillResignActive:
            m_delegate->applicationWillResignActive();
            break;
        case LifeCycle::Event::DidEnterBackground:
            m_delegate->applicationDidEnterBackground();
            break;
        case LifeCycle::Event::WillEnterForeground:
            m_delegate->applicationWillEnterForeground();
            break;
        case LifeCycle::Event::WillTerminate:
            m_delegate->applicationWillTerminate();
            break;
    }
}

}  // namespace tavi
