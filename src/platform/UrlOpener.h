#pragma once

#include <QUrl>
#include <functional>

namespace tavi {

/// Hands addresses to whatever program of the user's opens them. Main thread only.
class UrlOpener {
public:
    virtual ~UrlOpener() = default;

    /// Finds out whether a program opens such addresses. The completion comes on the main thread, once, never before
    /// this returns, after some seconds at the latest, and not once the opener is gone.
    virtual void canOpenURL(const QUrl& url, std::function<void(bool canOpen)> completion) = 0;
    /// Has the address, or a file of this machine, opened; returns at once, and nobody tells how it went.
    virtual void openURL(const QUrl& url) = 0;
};

}  // namespace tavi
