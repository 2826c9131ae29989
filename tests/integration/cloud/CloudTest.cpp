#include "Cloud.h"

#include <gmock/gmock.h>

#include <fstream>

#include "CloudCommands.h"
#include "CloudPlace.h"
#include "adapters/qt/QtRunLoop.h"
#include "platform/Application.h"
#include "support/EventLoop.h"
#include "support/FakeKeychain.h"
#include "support/Fakes.h"
#include "support/PrivateDav.h"
#include "support/TemporaryContainer.h"

namespace tavi::test {
namespace {

using State = CloudCondition::State;

/// Does later what it is asked to, and a hundred times sooner.
class QuickRunLoop : public QtRunLoop {
public:
    void dispatchAfter(double seconds, std::function<void()> callback) override {
        QtRunLoop::dispatchAfter(seconds / 100.0, std::move(callback));
    }
};

class CloudTest : public ::testing::Test {
protected:
    void start() {
        cloud = std::make_unique<Cloud>(
            Cloud::Services{container, defaults, settings, runLoop, notifications, keychain, reachability});
    }
    bool becomes(State state) {
        return spinUntil([&] { return cloud->condition().state == state; });
    }
    std::string connected(const char* password) {
        std::optional<Result<void>> answer;
        cloud->connectTo(account, QLatin1String(password), [&](const Result<void>& given) { answer = given; });
        EXPECT_FALSE(answer);
        EXPECT_TRUE(spinUntil([&] { return answer.has_value(); }));
        return answer && *answer ? "" : answer->error().text.toStdString();
    }
    void record(const char* name) {
        std::ofstream(mirrorFolder(account, container) / kUbiquityDocumentsFolder / name) << "sound";
    }
    bool arrives(const char* name) {
        return spinUntil([&] { return existsAt(server.files() / name); });
    }

    PrivateDav server{QStringLiteral("rclone")};
    CloudAccount account = CloudAccount::server(server.url().toString().chopped(1), QStringLiteral("u"));
    TemporaryContainer container;
    FakeUserDefaults defaults;
    SettingsStore settings{defaults};
    QuickRunLoop runLoop;
    NotificationCenter notifications;
    FakeKeychain keychain;
    FakeReachability reachability;
    std::unique_ptr<Cloud> cloud;
};

TEST_F(CloudTest, AnAccountComesAndGoesAndItsSwitchStopsAndStartsIt) {
    start();
    EXPECT_EQ(cloud->condition(), CloudCondition());
    EXPECT_EQ(connected("wrong"), "error_cloud_refused");
    EXPECT_EQ(cloud->account(), CloudAccount());
    EXPECT_TRUE(keychain.items.isEmpty());
    EXPECT_EQ(connected("p"), "");
    EXPECT_TRUE(settings.isCloudSyncOn());
    EXPECT_TRUE(becomes(State::InStep));
    EXPECT_TRUE(cloud->condition().lastSync.isValid());
    int told = 0;
    QObject::connect(cloud.get(), &CloudConnection::conditionChanged, [&] { ++told; });
    record("a (conflict D x).m4a");
    EXPECT_TRUE(arrives("a (conflict D x).m4a"));
    EXPECT_TRUE(spinUntil([&] {
        return cloud->files() == std::map<std::filesystem::path, CloudFile>{
                                     {"a (conflict D x).m4a", {CloudFile::State::There, true, 0.0}}};
    }));
    EXPECT_TRUE(spinUntil([&] { return told > 1; })) << "as often as it changes";
    settings.setCloudSyncOn(false);
    cloud->settingsChanged();
    EXPECT_EQ(cloud->condition().state, State::Off);
    EXPECT_TRUE(spinUntil([&] { return takeCloudLock(container).isValid(); })) << "another process may";
    record("b");
    EXPECT_TRUE(spinUntil([&] { return cloud->files()["b"].state == CloudFile::State::Waiting; }));
    settings.setCloudSyncOn(true);
    cloud->settingsChanged();
    EXPECT_TRUE(arrives("b"));
    // What is recorded while nobody looks goes there, too.
    notifications.postNotification(applicationnotification::kDidEnterBackground);
    record("c");
    EXPECT_TRUE(arrives("c"));
    cloud->removeAccount();
    EXPECT_TRUE(keychain.items.isEmpty());
    EXPECT_EQ(cloud->condition(), CloudCondition());
    EXPECT_TRUE(spinUntil([&] { return takeCloudLock(container).isValid(); }));
    EXPECT_TRUE(existsAt(server.files() / "b")) << "what is there stays";
}

TEST_F(CloudTest, BeginsOnceTheKeyringIsThereAndNobodyElseLooksAfterIt) {
    account.store(defaults);
    settings.setCloudSyncOn(true);
    keepPassword(account, QStringLiteral("old"), keychain);
    keychain.troubleText = QStringLiteral("locked");
    FileDescriptor other = takeCloudLock(container);
    start();
    EXPECT_EQ(cloud->condition().error, QLatin1String("error_cloud_elsewhere"));
    int tries = 0;
    QObject::connect(cloud.get(), &CloudConnection::conditionChanged, [&] { ++tries; });
    EXPECT_TRUE(spinUntil([&] { return tries > 1; })) << "again and again";
    other = FileDescriptor();
    cloud->syncNow();
    EXPECT_EQ(cloud->condition().state, State::Troubled);
    EXPECT_EQ(cloud->condition().error, QLatin1String("error_cloud_password"));
    keychain.troubleText.clear();
    cloud->keychainChanged();
    EXPECT_TRUE(spinUntil([&] { return cloud->condition().error == QLatin1String("error_cloud_refused"); }));
    EXPECT_EQ(connected("p"), "") << "another password of the same account";
    EXPECT_TRUE(becomes(State::InStep));
    cloud.reset();
    EXPECT_NE(mirrorFolder(account, container),
              mirrorFolder(CloudAccount::server(account.address, QStringLiteral("v")), container));

    std::ofstream(server.files() / "far") << "sound";
    const std::filesystem::path here = mirrorFolder(account, container) / kUbiquityDocumentsFolder / "far";
    EXPECT_TRUE(syncCloud(account, {}, container, keychain));
    EXPECT_TRUE(std::filesystem::remove(here)) << "it has been fetched";
    EXPECT_TRUE(lookAtCloud(account, container).files.contains("far"));
    (*SyncJournal::open(journalPath(account, container)))->setRemovedHere("far", true);
    EXPECT_FALSE(lookAtCloud(account, container).files.contains("far"));
}

}  // namespace
}  // namespace tavi::test
