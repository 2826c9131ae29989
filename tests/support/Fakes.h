#pragma once

#include <QList>
#include <QMap>
#include <QStringList>
#include <filesystem>
#include <map>
#include <stop_token>
#include <utility>

#include "files/FileMove.h"
#include "files/FileNames.h"
#include "files/PathText.h"
#include "platform/Application.h"
#include "platform/AudioDuration.h"
#include "platform/AudioRecorder.h"
#include "platform/AudioSession.h"
#include "platform/IdleTimer.h"
#include "platform/MailComposer.h"
#include "platform/Notices.h"
#include "platform/Presenter.h"
#include "platform/ProgressView.h"
#include "platform/Reachability.h"
#include "platform/RemoteControl.h"
#include "platform/SessionEnd.h"
#include "platform/TabBar.h"
#include "platform/Trash.h"
#include "platform/UserDefaults.h"
#include "support/Printers.h"

namespace tavi::test {

/// Settings in memory, with a record of the writes in their order.
struct FakeUserDefaults : UserDefaults {
    QVariant objectForKey(const QString& key) const override { return m_values.value(key); }
    void setObject(const QVariant& value, const QString& key) override {
        m_values.insert(key, value);
        writes.append(key);
    }
    void removeObjectForKey(const QString& key) override { m_values.remove(key); }
    bool synchronize() override {
        writes.append(QStringLiteral("synchronize"));
        return canWrite;
    }

    /// Keys written, and "synchronize" where that was called.
    QStringList writes;
    bool canWrite = true;

private:
    QMap<QString, QVariant> m_values;
};

/// Records what was presented; a test answers by calling an action's handler.
struct FakePresenter : Presenter {
    void presentAlert(Alert alert) override { alerts.push_back(std::move(alert)); }
    void presentActionSheet(Alert sheet) override { sheets.push_back(std::move(sheet)); }
    void updateActionSheet(Alert sheet) override {
        if (!sheets.empty() && sheets.back().title == sheet.title) {
            sheets.back() = std::move(sheet);
        }
    }

    /// Titles and messages of the alerts since it was last asked.
    std::string said() {
        QStringList texts;
        for (const Alert& alert : std::exchange(alerts, {})) {
            texts << alert.title + QLatin1Char('|') + alert.message;
        }
        return texts.join(QLatin1Char(' ')).toStdString();
    }

    std::vector<Alert> alerts;
    std::vector<Alert> sheets;
};

/// Keeps the notices in their order; a test chooses an action by calling it.
struct FakeNotices : Notices {
    /// What is said about work that goes on; it goes with the work.
    struct Work : ProgressNotice {
        Work(FakeNotices& line, Notice what) : notices(line), notice(std::move(what)) { notices.works.push_back(this); }
        ~Work() override { std::erase(notices.works, this); }
        void setProgress(double fraction) override {
            progress = fraction;
            notices.shares.push_back(fraction);
        }

        FakeNotices& notices;
        Notice notice;
        double progress = 0.0;
    };

    void postNotice(Notice notice) override { posted.push_back(std::move(notice)); }

    std::unique_ptr<ProgressNotice> postProgress(Notice notice) override {
        return std::make_unique<Work>(*this, std::move(notice));
    }
    /// What has been posted since it was last asked.
    std::string said() {
        QStringList texts;
        for (const Notice& notice : std::exchange(posted, {})) {
            texts << notice.text;
        }
        return texts.join(QLatin1Char(' ')).toStdString();
    }

    std::vector<Notice> posted;
    std::vector<Work*> works;
    /// What any work has said of its progress.
    std::vector<double> shares;
};

struct FakeReachability : Reachability {
    std::optional<ReachabilityFlags> flagsOfZeroAddress() const override { return flags; }
    bool isOffline() const override { return isGone; }
    void setObserver(std::function<void()> newObserver) override { observer = std::move(newObserver); }

    std::optional<ReachabilityFlags> flags;
    bool isGone = false;
    std::function<void()> observer;
};

struct FakeProgressView : ProgressView {
    void show(Progress newProgress) override { progress = std::move(newProgress); }
    void setShare(double newShare) override { share = newShare; }
    void hide() override { progress.reset(); }

    /// What is shown.
    std::optional<Progress> progress;
    double share = 0.0;
};

struct FakeTabBar : TabBar {
    int selectedIndex() const override { return index; }
    void setSelectedIndex(int newIndex) override { index = newIndex; }
    bool isUserInteractionEnabled() const override { return isEnabled; }
    void setUserInteractionEnabled(bool enabled) override { isEnabled = enabled; }

    int index = 0;
    bool isEnabled = true;
};

/// A trash in a folder of its own, where there is one.
struct FakeTrash : Trash {
    explicit FakeTrash(std::filesystem::path trashFolder) : folder(std::move(trashFolder)) {
        std::filesystem::create_directories(folder);
    }

    Result<std::filesystem::path> moveToTrash(const std::filesystem::path& path) override {
        return isThere ? moved(path, freePath(folder / path.filename())) : failure(QStringLiteral("no trash"));
    }
    Result<std::filesystem::path> putBack(const std::filesystem::path& trashed,
                                          const std::filesystem::path& path) override {
        return moved(trashed, freePath(path));
    }

    std::filesystem::path folder;
    bool isThere = true;

private:
    static Result<std::filesystem::path> moved(const std::filesystem::path& from, const std::filesystem::path& to) {
        const auto result = moveItem(from, to);
        return result ? Result<std::filesystem::path>(to) : tl::unexpected(errorOf(result.error()));
    }
};

/// A sound system that answers as it is told.
struct FakeAudioSession : AudioSession {
    void requestRecordPermission(std::function<void(bool)> answer) override { questions.push_back(std::move(answer)); }
    Result<void> setCategory(Category category, CategoryOption option) override {
        lastCategory = category;
        lastOption = option;
        return categoryResult;
    }
    Result<void> setActive(bool active) override {
        isActive = active;
        return {};
    }
    bool isInputAvailable() const override { return inputAvailable; }
    std::vector<AudioSessionPort> availableInputs() const override { return inputs; }
    AudioSessionPort currentInput() const override {
        const auto preferred =
            std::find_if(inputs.begin(), inputs.end(), [this](const auto& port) { return port.uid == preferredInput; });
        return preferred != inputs.end() ? *preferred : inputs.empty() ? AudioSessionPort{} : inputs.front();
    }
    void setPreferredInput(const QString& uid) override { preferredInput = uid; }
    void setInputsListener(std::function<void()> listener) override { inputsListener = std::move(listener); }
    /// Microphones come and go; the first is the system's default.
    void setInputs(const std::vector<AudioSessionPort>& newInputs) {
        inputs = newInputs;
        inputsListener ? inputsListener() : void();
    }
    Result<QString> currentRoute() const override { return route; }
    QString serverName() const override { return server; }
    Result<void> overrideOutputAudioPort(PortOverride port) override {
        overrides.push_back(port);
        return categoryResult;
    }

    /// Answers every open question.
    void answer(bool granted) {
        for (const auto& question : std::exchange(questions, {})) {
            question(granted);
        }
    }

    std::vector<std::function<void(bool)>> questions;
    Category lastCategory = Category::Playback;
    CategoryOption lastOption = CategoryOption::None;
    Result<void> categoryResult;
    bool isActive = false;
    bool inputAvailable = true;
    std::vector<AudioSessionPort> inputs{{QStringLiteral("desk"), QStringLiteral("Desk")}};
    QString preferredInput;
    std::function<void()> inputsListener;
    Result<QString> route = QStringLiteral("Speaker");
    QString server = QStringLiteral("Sound 1.0");
    /// What was asked for, in its order.
    std::vector<PortOverride> overrides;
};

struct FakeIdleTimer : IdleTimer {
    void setIdleTimerDisabled(bool disabled) override { isDisabled = disabled; }
    bool isIdleTimerDisabled() const override { return isDisabled; }

    bool isDisabled = false;
};

struct FakeSessionEnd : SessionEnd {
    void setHeldUp(bool heldUp) override { isHeldUp = heldUp; }

    bool isHeldUp = false;
};

struct FakeMailComposer : MailComposer {
    bool canSendMail() const override { return canSend; }
    void compose(const MailMessage& message, Completion completion) override {
        messages.push_back(message);
        completion(result);
    }

    bool canSend = true;
    Result<MailComposeResult> result = MailComposeResult::HandedOver;
    std::vector<MailMessage> messages;
};

struct FakeApplication : Application {
    void setDelegate(ApplicationDelegate*) override {}
    QList<ShortcutItem> shortcutItems() const override { return items; }
    void setShortcutItems(const QList<ShortcutItem>& newItems) override { items = newItems; }

    QList<ShortcutItem> items;
};

/// Keeps what the desktop would show; a test sends what a user would press there.
struct FakeRemoteControl : RemoteControl {
    void setDelegate(RemoteControlDelegate* newDelegate) override { delegate = newDelegate; }
    void beginReceivingRemoteControlEvents() override { isReceiving = true; }
    void endReceivingRemoteControlEvents() override { isReceiving = false; }
    void setNowPlayingInfo(const NowPlayingInfo& newInfo) override { info = newInfo; }
    void currentTimeDidJump() override { ++jumps; }

    /// What the user presses; nothing happens where no events are received.
    void send(RemoteControlEvent::Subtype subtype, double value = 0.0) {
        if (isReceiving && delegate != nullptr) {
            delegate->remoteControlReceivedWithEvent({subtype, value});
        }
    }

    RemoteControlDelegate* delegate = nullptr;
    bool isReceiving = false;
    NowPlayingInfo info;
    int jumps = 0;
};

/// Durations by file name; 0 for any other.
struct FakeAudioDuration : AudioDuration {
    double durationOfFile(const std::filesystem::path& path, const std::stop_token& stop = {}) const override {
        if (onQuestion) {
            onQuestion(stop);
        }
        const auto found = seconds.find(path.filename());
        return found == seconds.end() ? 0.0 : found->second;
    }

    std::map<std::filesystem::path, double> seconds;
    /// What is to happen while a file is read.
    std::function<void(const std::stop_token& stop)> onQuestion;
};

}  // namespace tavi::test
