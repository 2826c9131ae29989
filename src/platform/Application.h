#pragma once

#include <QList>
#include <QString>
#include <QUrl>
#include <algorithm>
#include <array>
#include <functional>
#include <optional>

namespace tavi {

/// A quick action that the desktop offers beside the program's icon.
struct ShortcutItem {
    QString type;
    QString localizedTitle;
    QString localizedSubtitle;
    QString icon;

    bool operator==(const ShortcutItem&) const = default;
};

/// The schemes of URLs by which companions ask for something, in lower case as QUrl has them.
inline constexpr std::array<QLatin1String, 3> kOwnSchemes = {
    QLatin1String("tavirecordstart"), QLatin1String("tavirecordstop"), QLatin1String("taviliteconnect")};

inline bool hasOwnScheme(const QUrl& url) {
    return std::find(kOwnSchemes.begin(), kOwnSchemes.end(), url.scheme()) != kOwnSchemes.end();
}

/// Whether a companion asks by it to start or stop recording, which it may while the program is locked.
inline bool isForRecording(const QUrl& url) {
    return hasOwnScheme(url) && url.scheme() != kOwnSchemes.back();
}

/// Names under which the life cycle is posted to the NotificationCenter, after the delegate has heard of it.
namespace applicationnotification {
inline const QString kDidFinishLaunching = QStringLiteral("UIApplicationDidFinishLaunchingNotification");
inline const QString kDidEnterBackground = QStringLiteral("UIApplicationDidEnterBackgroundNotification");
inline const QString kWillEnterForeground = QStringLiteral("UIApplicationWillEnterForegroundNotification");
}  // namespace applicationnotification

/// What the program was started for.
struct LaunchOptions {
    /// Type of the quick action, if one was chosen.
    std::optional<QString> shortcutType;
};

/// Receives the life cycle and what the desktop asks of the program. Main thread.
class ApplicationDelegate {
public:
    virtual ~ApplicationDelegate() = default;

    virtual void applicationDidBecomeActive() = 0;
    virtual void applicationWillResignActive() = 0;
    virtual void applicationDidEnterBackground() = 0;
    virtual void applicationWillEnterForeground() = 0;
    virtual void applicationWillTerminate() = 0;
    virtual bool applicationOpenURL(const QUrl& url) = 0;
    virtual void applicationPerformActionForShortcutItem(const ShortcutItem& item,
                                                         std::function<void(bool)> completionHandler) = 0;
};

/// The program as the desktop sees it. Main thread only.
///
/// It is active while its window has the focus, and in the background while the window is minimised or hidden, the
/// session is locked or the machine sleeps. A start is followed by applicationDidBecomeActive() even where the desktop
/// keeps the focus elsewhere.
class Application {
public:
    virtual ~Application() = default;

    virtual void setDelegate(ApplicationDelegate* delegate) = 0;
    virtual QList<ShortcutItem> shortcutItems() const = 0;
    virtual void setShortcutItems(const QList<ShortcutItem>& items) = 0;
};

}  // namespace tavi
