#include <gmock/gmock.h>

#include "companion/CompanionCommands.h"
#include "companion/CompanionIcon.h"
#include "companion/CompanionLine.h"
#include "companion/CompanionMenu.h"
#include "support/ManualRunLoop.h"

namespace tavi::test {
namespace {

using Phase = RecorderState::Phase;

struct FakeRecorder : Recorder {
    RecorderState state() const override { return told; }
    void setStateHandler(std::function<void()>) override {}
    void open(const QUrl& url, std::function<void(Outcome, const Error&)> completion) override {
        opened << url.scheme();
        completion(outcome, {QStringLiteral("why")});
    }
    RecorderState told;
    Outcome outcome = Outcome::Opened;
    QStringList opened;
};

struct FakeIcon : StatusIcon {
    void show(const StatusContent& content) override { shown = content; }
    void setActionHandler(std::function<void(int)> newHandler) override { handler = std::move(newHandler); }
    /// What the first line says, and which of recording and stopping can be chosen.
    std::string menu() const {
        return (shown.menu[0].label + QLatin1Char('|') + shown.menu[2].label).toStdString() +
               (shown.menu[3].isEnabled ? "|stop" : "");
    }
    StatusContent shown;
    std::function<void(int)> handler;
};

TEST(CompanionIcon, ShowsWhatTheRecorderTellsAndCountsOn) {
    FakeRecorder recorder;
    FakeIcon icon;
    ManualRunLoop runLoop;
    CompanionCommands commands({.recorder = recorder});
    QStringList troubles;
    CompanionIcon companion({.recorder = recorder,
                             .icon = icon,
                             .runLoop = runLoop,
                             .commands = commands,
                             .quit = [] {},
                             .tell = [&troubles](const Error& error) { troubles << error.text; }});
    // Texts show as their ids here.
    const std::pair<RecorderState, const char*> cases[] = {
        {{Phase::Absent, 0}, "companion_absent|companion_record"},
        {{Phase::Silent, 0}, "companion_silent|companion_record_or_pause|stop"},
        {{Phase::Locked, 0}, "companion_locked|companion_record_or_pause|stop"},
        {{Phase::Idle, 0}, "companion_idle|companion_record"},
        {{Phase::Recording, 9}, "companion_recording|companion_pause|stop"},
        {{Phase::Paused, 9}, "companion_paused|companion_resume|stop"},
    };
    for (const auto& [state, expected] : cases) {
        recorder.told = state;
        companion.stateChanged();
        EXPECT_EQ(icon.menu(), expected);
        icon.handler(static_cast<int>(CompanionAction::Stop));
        // Nothing wakes a program that has nothing to count.
        EXPECT_EQ(runLoop.activeTimers(), state.phase == Phase::Recording ? 1U : 0U);
    }
    EXPECT_EQ(recorder.opened.size(), 5);
    EXPECT_EQ(troubles, QStringList(QStringLiteral("companion_not_running")));
    EXPECT_EQ(companionClock(359'999 + 3600), QStringLiteral("100:59:59"));
}

TEST(CompanionLine, IsUnderstoodOrSaysWhatIsWrong) {
    const auto meaning = [](const QByteArray& line) {
        const auto parsed = parseCompanionLine(line.isEmpty() ? QList<QByteArray>() : line.split('|'));
        return !parsed
                   ? "! " + parsed.error().text.toStdString()
                   : std::to_string(parsed->task.index()) + parsed->container.string() + parsed->text.toStdString() +
                         (parsed->channel ? kTransitingTypeNames[static_cast<std::size_t>(*parsed->channel)] : "");
    };
    EXPECT_EQ(meaning(""), "0");
    EXPECT_EQ(meaning("--container|/a b|--channel|record"), "1/a bfile");
    EXPECT_EQ(meaning("--channel=transfer|say|a text"), "1a texttransfer");
    EXPECT_EQ(meaning("--channel|say|gr\xC3\xBC\xC3\x9F"),
              "1gr\xC3\xBC\xC3\x9F"
              "file");
    EXPECT_EQ(meaning("--version"), "2");
    EXPECT_EQ(meaning("say|a text"), "! say needs --channel");
    EXPECT_EQ(meaning("--container=|record"), "! --container= needs a value");
    for (const char* wrong : {"fly", "--channel=pigeon|stop", "record|stop", "--channel|say"}) {
        EXPECT_EQ(meaning(wrong).substr(0, 2), "! ") << wrong;
    }
}

}  // namespace
}  // namespace tavi::test
