#pragma once

#include <QStringList>
#include <map>
#include <utility>
#include <vector>

#include "platform/CoordinatedFiles.h"
#include "platform/NotifyCenter.h"
#include "platform/WatchSession.h"

namespace tavi::test {

/// Notifications within the test, delivered at once.
class FakeNotifyCenter : public NotifyCenter {
public:
    void postNotification(const QString& name) override {
        posted.append(name);
        const auto now = observers;
        for (const auto& [key, callback] : now) {
            if (key.second == name) {
                callback(name);
            }
        }
    }
    void addObserver(const void* observer, const QString& name,
                     std::function<void(const QString& name)> callback) override {
        ++added;
        observers[{observer, name}] = std::move(callback);
    }
    void removeObserver(const void* observer, const QString& name) override { observers.erase({observer, name}); }
    void removeEveryObserver(const void* observer) override {
        std::erase_if(observers, [observer](const auto& item) { return item.first.first == observer; });
    }

    std::map<std::pair<const void*, QString>, std::function<void(const QString& name)>> observers;
    QStringList posted;
    int added = 0;
};

/// Files that one program has for itself while a test says so.
class FakeCoordinatedFiles : public CoordinatedFiles {
public:
    bool coordinate(const std::filesystem::path& file, const std::function<void()>& accessor) override {
        files.push_back(file);
        if (!isHeld) {
            accessor();
        }
        return !isHeld;
    }

    bool isHeld = false;
    std::vector<std::filesystem::path> files;
};

/// One end of a session; what it sends is kept, and what it receives a test brings.
class FakeWatchSession : public WatchSession {
public:
    void setDelegate(WatchSessionDelegate* newDelegate) override { delegate = newDelegate; }
    void activateSession() override { isActive = true; }
    bool isReachable() const override { return reachable; }
    QVariantMap applicationContext() const override { return context; }
    QVariantMap receivedApplicationContext() const override { return received; }
    Result<void> updateApplicationContext(const QVariantMap& newContext) override {
        context = newContext;
        return {};
    }
    Result<void> sendMessage(const QVariantMap& message) override {
        messages.push_back(message);
        return {};
    }
    Result<void> transferFile(const std::filesystem::path& file, const QVariantMap& metadata) override {
        files.emplace_back(file, metadata);
        return {};
    }

    WatchSessionDelegate* delegate = nullptr;
    bool isActive = false;
    bool reachable = false;
    QVariantMap context;
    QVariantMap received;
    std::vector<QVariantMap> messages;
    std::vector<std::pair<std::filesystem::path, QVariantMap>> files;
};

}  // namespace tavi::test
