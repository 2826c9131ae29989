#pragma once

#include <QDBusConnection>
#include <QObject>
#include <functional>
#include <memory>
#include <vector>

#include "adapters/dbus/LifeCycle.h"
#include "platform/Application.h"
#include "platform/LockState.h"
#include "platform/NotificationCenter.h"
#include "platform/RecorderState.h"
#include "platform/SystemSleep.h"

class QWindow;

namespace tavi {

class ApplicationObject;
class RecordingObject;
class SessionLock;
class WindowState;

/// The program as org.freedesktop.Application on the session bus, with the life cycle of its window.
///
/// What callers ask before the launch has finished waits until then. Actions are named without regard to case: the type
/// of a shortcut item; or "record" and "library", the shortcuts "Record" and "Recordings"; or "stop", the URL
/// TaviRecordStop:; or "refresh", for whoever has changed the recordings. Without a session bus everything but the
/// calls from outside works all the same. Main thread.
class DBusApplication final : public QObject, public Application {
    Q_OBJECT

public:
    enum class Claim {
        First,
        /// Another process has the name: hand over to it.
        AlreadyRunning,
        /// There is no session bus.
        NoBus,
    };

    /// Where the life cycle comes from beside the buses, and where it goes; both must outlive this.
    struct Services {
        SystemSleep& systemSleep;
        NotificationCenter& notifications;
    };

    /// busName is that of busNameForContainer(). Either bus may be unconnected.
    DBusApplication(const QDBusConnection& sessionBus, const QDBusConnection& systemBus, const QString& busName,
                    const Services& services);
    ~DBusApplication() override;

    /// By which callers are refused what would show the library. It outlives this. Once, before claim().
    void setLockState(const LockState& lockState);
    /// Puts the object on the bus and asks for the name.
    Claim claim();
    /// What companions are told of the recording.
    void setRecorderState(const RecorderState& state);
    /// The main window, whose state makes the life cycle. Needs a QGuiApplication. The window may go before this does.
    void setWindow(QWindow* window);
    /// The delegate is ready: delivers what has been asked so far, then follows the life cycle.
    void launchFinished();

    void setDelegate(ApplicationDelegate* delegate) override;
    QList<ShortcutItem> shortcutItems() const override { return m_shortcutItems; }
    void setShortcutItems(const QList<ShortcutItem>& items) override { m_shortcutItems = items; }

    /// The URL that a caller means: a URL as it is, an absolute path as a file URL; an invalid one for anything else.
    static QUrl urlFromText(const QString& text);

Q_SIGNALS:
    /// Another process has changed the recordings.
    void refreshRequested();

private:
    friend class ApplicationObject;

    void whenLaunched(std::function<void()> call);
    void activate(const QString& activationToken);
    void open(const QList<QUrl>& urls);
    bool isAction(const QString& name) const;
    static bool isRefresh(const QString& name);
    bool isRecordingAction(const QString& name) const;
    bool isLocked() const { return m_lockState != nullptr && m_lockState->isLocked(); }
    void performAction(const QString& name);
    const ShortcutItem* shortcutItemFor(const QString& action) const;
    /// Looks at window and session once the events at hand have been dealt with: what changes only for a moment, as
    /// when a window system hides and shows a window to alter it, is no change.
    void updateLifeCycleSoon();
    void updateLifeCycle();
    void deliver(const std::vector<LifeCycle::Event>& events);
    void tellDelegate(LifeCycle::Event event);
    void prepareForSleep(const std::shared_ptr<void>& delay);
    void onWindowChanged();

    QDBusConnection m_sessionBus;
    QString m_busName;
    Services m_services;
    ApplicationDelegate* m_delegate = nullptr;
    const LockState* m_lockState = nullptr;
    QList<ShortcutItem> m_shortcutItems;
    bool m_launched = false;
    bool m_hadFocus = false;
    bool m_isAsleep = false;
    bool m_updateIsComing = false;
    std::vector<std::function<void()>> m_waiting;
    LifeCycle m_lifeCycle;
    std::unique_ptr<ApplicationObject> m_busObject;
    /// On that object.
    RecordingObject* m_recordingObject = nullptr;
    std::unique_ptr<SessionLock> m_sessionLock;
    std::unique_ptr<WindowState> m_window;
};

}  // namespace tavi
