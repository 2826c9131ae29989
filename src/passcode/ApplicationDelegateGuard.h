#pragma once

#include <QList>
#include <QObject>
#include <utility>

#include "platform/Application.h"
#include "platform/LockState.h"

namespace tavi {

/// Hands everything on, but what is to be opened while the program is locked: files and the library wait until it is
/// unlocked, 10,000 at most. Recording starts and stops at once, as companions must work. Main thread only.
class ApplicationDelegateGuard final : public QObject, public ApplicationDelegate {
    Q_OBJECT

public:
    /// Both outlive this.
    ApplicationDelegateGuard(ApplicationDelegate& delegate, const LockState& lockState)
        : m_delegate(delegate), m_lockState(lockState) {
        connect(&lockState, &LockState::changed, this, &ApplicationDelegateGuard::openWaiting);
    }

    void applicationDidBecomeActive() override { m_delegate.applicationDidBecomeActive(); }
    void applicationWillResignActive() override { m_delegate.applicationWillResignActive(); }
    void applicationDidEnterBackground() override { m_delegate.applicationDidEnterBackground(); }
    void applicationWillEnterForeground() override { m_delegate.applicationWillEnterForeground(); }
    void applicationWillTerminate() override { m_delegate.applicationWillTerminate(); }
    bool applicationOpenURL(const QUrl& url) override {
        if (m_lockState.isLocked() && !isForRecording(url)) {
            if (m_waiting.size() >= kMostWaiting || url.toString().size() > kMostCharacters) {
                return false;
            }
            m_waiting.append(url);
            return true;
        }
        return m_delegate.applicationOpenURL(url);
    }
    void applicationPerformActionForShortcutItem(const ShortcutItem& item,
                                                 std::function<void(bool)> completionHandler) override {
        m_delegate.applicationPerformActionForShortcutItem(item, std::move(completionHandler));
    }

public Q_SLOTS:
    /// Files that were dropped on the window.
    void openUrls(const QList<QUrl>& urls) {
        for (const QUrl& url : urls) {
            applicationOpenURL(url);
        }
    }

private:
    void openWaiting() {
        if (!m_lockState.isLocked()) {
            for (const QUrl& url : std::exchange(m_waiting, {})) {
                m_delegate.applicationOpenURL(url);
            }
        }
    }

    /// More than anybody hands over by hand, and longer than any path with each byte as three characters.
    static constexpr qsizetype kMostWaiting = 10'000;
    static constexpr qsizetype kMostCharacters = 16 * 1024;

    ApplicationDelegate& m_delegate;
    const LockState& m_lockState;
    QList<QUrl> m_waiting;
};

}  // namespace tavi
