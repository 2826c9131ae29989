#pragma once

#include <utility>
#include <vector>

#include "cloud/CloudConnection.h"
#include "platform/RunLoop.h"

namespace tavi::test {

/// A cloud's account as a test sets it; it says what was asked of it.
class FakeCloudConnection : public CloudConnection {
public:
    explicit FakeCloudConnection(RunLoop& runLoop) : m_runLoop(runLoop) {}

    CloudAccount account() const override { return place; }
    CloudCondition condition() const override { return how; }
    std::map<std::filesystem::path, CloudFile> files() const override { return known; }
    void connectTo(const CloudAccount& account, const QString& password, Completion completion) override {
        asked.push_back("connect " + account.token().toStdString() + ' ' + password.toStdString());
        m_runLoop.dispatchMain([this, account, completion = std::move(completion)] {
            if (answer) {
                place = account;
                how.state = CloudCondition::State::InStep;
                Q_EMIT conditionChanged();
            }
            completion(answer);
        });
    }
    void giveUp() override { asked.emplace_back("give up"); }
    void removeAccount() override {
        place = {};
        how = {};
        known.clear();
        asked.emplace_back("remove");
        Q_EMIT conditionChanged();
    }
    void settingsChanged() override { asked.emplace_back("settings"); }
    void syncNow() override { asked.emplace_back("sync"); }
    void download(const std::filesystem::path& name) override { asked.push_back("download " + name.native()); }
    void answerVanished(bool areRemoved) override { asked.emplace_back(areRemoved ? "vanished yes" : "vanished no"); }

    CloudAccount place;
    CloudCondition how;
    std::map<std::filesystem::path, CloudFile> known;
    /// What comes of the next attempt to connect.
    Result<void> answer;
    std::vector<std::string> asked;

private:
    RunLoop& m_runLoop;
};

}  // namespace tavi::test
