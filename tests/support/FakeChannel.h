#pragma once

#include <QStringList>
#include <filesystem>
#include <map>
#include <set>
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

/// Files that one at a time is at: who is called for one, and a test for all of them.
class FakeCoordinatedFiles : public CoordinatedFiles {
public:
    bool coordinate(const std::filesystem::path& file, const std::function<void()>& accessor) override {
        files.push_back(file);
        if (isHeld || !held.insert(file).second) {
            return false;
        }
        accessor();
        held.erase(file);
        return true;
    }

    bool isHeld = false;
    std::set<std::filesystem::path> held;
    std::vector<std::filesystem::path> files;
};

/// One end of a session. What it sends is kept; a test brings what it receives, or gives it a peer.
class FakeWatchSession : public WatchSession {
public:
    void setDelegate(WatchSessionDelegate* newDelegate) override { delegate = newDelegate; }
    void activateSession() override {
        isActive = true;
        if (peer != nullptr && peer->isActive) {
            reachable = peer->reachable = true;
            hear(peer->context);
            peer->hear(context);
        }
    }
    bool isReachable() const override { return reachable; }
    QVariantMap applicationContext() const override { return context; }
    QVariantMap receivedApplicationContext() const override { return received; }
    Result<void> updateApplicationContext(const QVariantMap& newContext) override {
        context = newContext;
        if (peer != nullptr && reachable) {
            peer->hear(context);
        }
        return {};
    }
    Result<void> sendMessage(const QVariantMap& message) override {
        if (!reachable || message.first().toByteArray().size() > (17 << 20)) {
            return failure({});
        }
        messages.push_back(message);
        if (peer != nullptr) {
            peer->delegate->sessionDidReceiveMessage(message);
        }
        return {};
    }
    Result<void> transferFile(const std::filesystem::path& file, const QVariantMap& metadata) override {
        std::error_code error;
        if (!reachable || std::filesystem::file_size(file, error) > (256U << 20) || error) {
            return failure({});
        }
        files.emplace_back(file, metadata);
        if (peer != nullptr) {
            peer->delegate->sessionDidReceiveFile(file, metadata);
        }
        return {};
    }
    /// The program of this end ends, and its contexts stay.
    void leave() { isActive = reachable = peer->reachable = false; }

    WatchSessionDelegate* delegate = nullptr;
    FakeWatchSession* peer = nullptr;
    bool isActive = false;
    bool reachable = false;
    QVariantMap context;
    QVariantMap received;
    std::vector<QVariantMap> messages;
    std::vector<std::pair<std::filesystem::path, QVariantMap>> files;

private:
    void hear(const QVariantMap& told) {
        if (std::exchange(received, told) != told) {
            delegate->sessionDidReceiveApplicationContext(told);
        }
    }
};

}  // namespace tavi::test
