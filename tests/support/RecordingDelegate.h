#pragma once

#include <QStringList>

#include "platform/Application.h"

namespace tavi::test {

/// A delegate that writes down what it is told: the life cycle by the calls' last word, URLs and shortcuts as they are.
class RecordingDelegate : public ApplicationDelegate {
public:
    void applicationDidBecomeActive() override { calls << QStringLiteral("active"); }
    void applicationWillResignActive() override { calls << QStringLiteral("resign"); }
    void applicationDidEnterBackground() override { calls << QStringLiteral("background"); }
    void applicationWillEnterForeground() override { calls << QStringLiteral("foreground"); }
    void applicationWillTerminate() override { calls << QStringLiteral("terminate"); }
    bool applicationOpenURL(const QUrl& url) override {
        calls << QStringLiteral("open ") + url.toString();
        return true;
    }
    void applicationPerformActionForShortcutItem(const ShortcutItem& item,
                                                 std::function<void(bool)> completionHandler) override {
        calls << QStringLiteral("shortcut ") + item.type;
        completionHandler(false);
    }

    /// The calls so far; forgets them.
    QStringList take() { return std::exchange(calls, {}); }

    QStringList calls;
};

}  // namespace tavi::test
