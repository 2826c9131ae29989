#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <sstream>

#include "library/PlayerRules.h"
#include "support/FakeLibrary.h"

namespace tavi::test {
namespace {

template <class... Parts>
std::string text(const Parts&... parts) {
    std::ostringstream all;
    (all << ... << parts);
    return all.str();
}

/// A library with four files in this order: a.m4a of 60 s, b.m4a of 40 s, c.txt, and d.wav of 3725 s.
struct World : FakeServices {
    World() {
        players.seconds = {{"a.m4a", 60.0}, {"b.m4a", 40.0}, {"d.wav", 3725.0}};
        for (const char* name : {"a.m4a", "b.m4a", "c.txt", "d.wav"}) {
            container.addDocument(name, name);
        }
        defaults.setObject(2, settingskey::kSort);
        settings.setRewindSeconds(7.0);
        settings.setForwardSeconds(12.0);
        // Without the cloud's list the row's own recording is what plays.
        settings.setCloudSyncOn(true);
        vc.viewDidLoad();
        session.lastCategory = AudioSession::Category::PlayAndRecord;
        QObject::connect(&vc, &VoiceMemoVC::raiseRequested, [this] { asked += "raise"; });
        QObject::connect(&vc, &VoiceMemoVC::quitRequested, [this] { asked += "quit"; });
        QObject::connect(&player, &PlayerPanel::progressChanged, [this] { ++moves; });
    }

    void act(const std::string& words);

    /// What the user and the ports get to see, as "what=value"; and whether it fits together.
    std::vector<std::string> state() {
        const FakeAudioPlayer* made = players.last();
        const bool isHeard = made != nullptr && made->isPlaying();
        NowPlayingInfo told;
        if (made != nullptr) {
            using State = NowPlayingInfo::PlaybackState;
            told = {remote.info.identifier, vc.playingName(), made->duration(),
                    isHeard ? State::Playing : State::Paused, made->effectiveRate()};
        }
        EXPECT_TRUE(remote.info == told) << "the desktop says something else";
        EXPECT_EQ(remote.isReceiving, made != nullptr);
        const auto image = isHeard ? QStringLiteral("pause_Player.png") : QStringLiteral("play_player.png");
        EXPECT_TRUE(player.btnPlay().image == image && player.btnplaypuas().image == image);
        EXPECT_EQ(runLoop.activeTimers(), isHeard ? 2U : 0U) << "the tick and the fake player's end";
        EXPECT_EQ(player.slider_player().value, player.currentTime());
        EXPECT_EQ(player.lblSongMinTime().text, playerrules::timeText(player.currentTime()));
        const auto route = player.speakerButton();
        const bool isPlayback = session.lastCategory == AudioSession::Category::Playback;
        return {
            text("row=", vc.selectedIndex(), "/", vc.selectRow()),
            text("panel=", vc.isPanelShown(), vc.isPlaying()),
            text("file=", vc.playingName().toStdString()),
            text("heard=", made == nullptr ? "none"
                           : isHeard       ? "yes"
                                           : "no"),
            text("at=", player.currentTime()),
            text("of=", player.lblSongMaxTime().text.toStdString(), "/", player.slider_player().maximumValue),
            text("rate=", made == nullptr ? 0.0 : made->effectiveRate()),
            text("steps=", player.lblBackwardSec().text.toStdString(), "/", player.lblForwardSec().text.toStdString()),
            text("lit=", player.btnSlow().selected, player.btnMedium().selected, player.btnFastPlay().selected),
            text("on=", player.btnplaypuas().selected, player.btnPlay().selected),
            text("route=", route.image.toStdString(), route.tintColor.toStdString(), player.ishandset()),
            text("session=", isPlayback ? "play" : "record", session.overrides.size()),
            text("override=",
                 !session.overrides.empty() && session.overrides.back() == AudioSession::PortOverride::Speaker),
            text("jumps=", remote.jumps),
            text("asked=", asked),
            text("trimmer=", trimmers.screen() == nullptr ? "" : trimmers.screen()->input().getFileName.string()),
            text("notices=", notices.posted.size(), notices.posted.empty() ? "" : notices.posted[0].text.toStdString()),
        };
    }

    FakeLibrary library{*this};
    VoiceMemoVC& vc = library.vc;
    RecordingTable& table = library.table;
    PlayerPanel& player = library.player;
    std::string asked;
    int moves = 0;
};

/// What is pressed, by a number where one is wanted.
const std::map<std::string, std::function<void(World&, double)>> kActions = {
    {"tap", [](World& w, double row) { w.vc.didSelectRowAtIndexPath(0, static_cast<int>(row)); }},
    {"play", [](World& w, double) { w.vc.playAudio(w.vc.selectedIndex(), w.player.btnplaypuas().selected); }},
    {"space", [](World& w, double row) { w.vc.spacePressed(0, static_cast<int>(row)); }},
    {"trim",
     [](World& w, double row) {
         w.library.actions.aim(QStringLiteral("0"), static_cast<int>(row), {});
         w.library.actions.trimAudio();
     }},
    {"rerecord",
     [](World& w, double) {
         w.assets.files["originalRecording.wav"] = {{11025, 11025}, 1, {}};
         w.trimmers.screen()->btnStartRecordingTapped();
         w.trimmers.screen()->btnStopRecordingTapped();
         w.runLoop.drain();
         w.trimmers.screen()->btnCancelTapped();
     }},
    {"sort", [](World& w, double) { w.table.sortByName(&w.vc); }},
    {"slider", [](World& w, double seconds) { w.player.progressSliderMoved(seconds); }},
    {"slow", [](World& w, double) { w.player.slowAudio(&w.vc); }},
    {"medium", [](World& w, double) { w.player.mediumAudio(&w.vc); }},
    {"fast", [](World& w, double) { w.player.fastAudio(&w.vc); }},
    {"wait", [](World& w, double seconds) { w.runLoop.advance(seconds); }},
    {"cloud", [](World& w, double) { w.settings.setCloudSyncOn(false); }},
    {"fail", [](World& w, double) { w.players.last()->fail({QStringLiteral("gone")}); }},
    {"add", [](World& w, double) { w.container.addDocument("aa.wav", "aa"); }},
    {"removeB", [](World& w, double) { std::filesystem::remove(w.container.documentsPath() / "b.m4a"); }},
    {"removeD", [](World& w, double) { std::filesystem::remove(w.container.documentsPath() / "d.wav"); }},
};
/// What the desktop asks for, in the order of RemoteControlEvent::Subtype.
const std::vector<std::string> kRemote = {"Play", "Pause",       "PlayPause", "Stop",  "Next", "Previous",
                                          "Seek", "SetPosition", "Rate",      "Raise", "Quit"};

/// Actions one after another, each with a number where it wants one, such as "tap 1 fast"; or slots by their names.
void World::act(const std::string& words) {
    std::istringstream stream(words);
    for (std::string name; stream >> name;) {
        double number = 0.0;
        if (std::isalpha((stream >> std::ws).peek()) == 0) {
            stream >> number;
        }
        const auto event = std::find(kRemote.begin(), kRemote.end(), name);
        if (const auto action = kActions.find(name); action != kActions.end()) {
            action->second(*this, number);
        } else if (event != kRemote.end()) {
            remote.send(static_cast<RemoteControlEvent::Subtype>(event - kRemote.begin()), number);
        } else {
            QObject* target =
                vc.metaObject()->indexOfSlot((name + "()").c_str()) < 0 ? static_cast<QObject*>(&player) : &vc;
            EXPECT_TRUE(QMetaObject::invokeMethod(target, name.c_str())) << name;
        }
    }
}

/// b.m4a is at 20 s, which lets both skips pass.
const char* const kPlaying = "tap 1 slider 20";
const char* const kPaused = "tap 1 slider 20 play";
const char* const kEnded = "tap 1 slider 39.5 wait 1";
/// The row is closed, and its sound goes on.
const char* const kCollapsed = "tap 1 slider 20 viewWillAppear";
const char* const kUnplayable = "tap 2";

const struct {
    const char* given;
    const char* action;
    /// All that is different then.
    const char* changes;
} kLines[] = {
    {"", "tap 1", "row=1/1 panel=11 file=b.m4a heard=yes of=00:40/40 rate=1 steps=7 Sec/12 Sec on=11 session=play0"},
    {"", "tap 2", "row=2/2 panel=11 file=c.txt steps=7 Sec/12 Sec on=11 session=play0"},
    {"", "tap 4 tap -1", ""},
    {"", "space 3",
     "row=3/3 panel=11 file=d.wav heard=yes of=62:05/3725 rate=1 steps=7 Sec/12 Sec on=11 session=play0"},
    {kPlaying, "wait 1.5", "at=21.5"},
    {kPlaying, "tap 1", "row=-1/500 panel=00 file= heard=none at=0 rate=0"},
    {kPlaying, "fast tap 3", "row=3/3 file=d.wav at=0 of=62:05/3725 on=01"},
    {kPlaying, "tap 2", "row=2/2 file=c.txt heard=none at=0 of=00:00/0 rate=0 on=01"},
    {kPlaying, "removeD tap 3", "row=3/3 panel=10 file= heard=none at=0 rate=0"},
    {kPlaying, "play", "heard=no on=01"},
    {kPlaying, "space 3 space 0 space 2", "heard=no on=01"},
    {kPlaying, "wait 20.5", "row=-1/1 heard=no at=40 on=00"},
    {kPlaying, "fail", "row=-1/1 heard=no on=01 notices=1gone"},
    {kPlaying, "fail play wait 0", "row=-1/1 heard=no on=01 notices=2gone"},
    {kPlaying, "playerClose", "row=-1/500 panel=00 file= heard=none at=0 rate=0 on=10"},
    {kPlaying, "viewWillAppear", "row=-1/1"},
    {kPlaying, "fast fast", ""},
    {kPlaying, "fast slow", "rate=0.5 lit=100"},
    {kPlaying, "fast medium", "lit=010"},
    {kPlaying, "slowAudio mediumAudio fastAudio", "rate=2"},
    {kPlaying, "faster slower slower", "rate=0.5 lit=100"},
    {kPlaying, "slower faster faster", "rate=2 lit=001"},
    {kPlaying, "playerSpeaker", "route=speaker.png#c8252c1 session=record1"},
    {kPlaying, "playerSpeaker playerSpeaker", "route=headset.png#c8252c0 session=record2 override=1"},
    {kPlaying, "playerSpeaker tap 0", "row=0/0 file=a.m4a at=0 of=01:00/60 on=01 session=play1"},
    {kPlaying, "trim 3", "row=-1/500 panel=00 file= heard=none at=0 rate=0 trimmer=d.wav"},
    {kPlaying, "removeD trim 3", "notices=1action_gone"},
    {"tap 1 playerSpeaker trim 3", "rerecord", "route=headset.png0 session=play1 trimmer="},
    {kPlaying, "sort", "row=2/2"},
    {kPlaying, "add reloadData", "row=2/2"},
    {kPlaying, "removeB reloadData", "row=-1/500"},
    {kPlaying, "Play", ""},
    {kPlaying, "Pause", "heard=no on=01"},
    {kPlaying, "Stop", "row=-1/500 panel=00 file= heard=none at=0 rate=0"},
    {kPlaying, "Next", "at=32 jumps=2"},
    {kPlaying, "Previous", "at=13 jumps=2"},
    {kPlaying, "Seek -5", "at=15 jumps=2"},
    {kPlaying, "SetPosition 5", "at=5 jumps=2"},
    {kPlaying, "fast Rate 1.5", "rate=1.5"},
    {kPlaying, "medium Rate 2", "rate=2 lit=001"},
    {kPlaying, "Raise Quit", "asked=raisequit"},
    {kPaused, "wait 1.5", ""},
    {kPaused, "slider 33.25", "at=33.25 jumps=2"},
    {kPaused, "Pause Play PlayPause PlayPause", "heard=yes on=11"},
    {kEnded, "play wait 0.5", "heard=yes at=0.5 on=10"},
    {kEnded, "tap 0", "row=0/0 file=a.m4a heard=yes at=0 of=01:00/60 on=11"},
    {kCollapsed, "tap 0", "row=0/0 file=a.m4a at=0 of=01:00/60 on=01"},
    {kCollapsed, "tap 2", "row=2/2 file=c.txt heard=none at=0 of=00:00/0 rate=0 on=01"},
    {kUnplayable, "play", "on=01"},
    {kUnplayable, "slider 33.25 backSkip forwardSkip fast", "lit=001"},
    {kUnplayable, "playerClose", "row=-1/500 panel=00 file= on=10"},
    // The setting asks the cloud's list, which has no such row; what the row has loaded plays.
    {"cloud", "tap 3 wait 1.5",
     "row=3/3 panel=11 file=d.wav heard=yes at=1.5 of=62:05/3725 rate=1 steps=7 Sec/12 Sec on=11 session=play0"},
    {kUnplayable, "tap 1", "row=1/1 file=b.m4a heard=yes of=00:40/40 rate=1 on=01"},
};

TEST(PlayerPanelTest, everyControlDoesWhatItSaysAndNothingElse) {
    for (const auto& line : kLines) {
        SCOPED_TRACE(text(line.given, ": ", line.action));
        World world;
        world.act(line.given);
        const auto before = world.state();
        world.act(line.action);
        const auto after = world.state();
        std::string changes;
        for (std::size_t i = 0; i < after.size(); ++i) {
            changes += before[i] == after[i] ? "" : (changes.empty() ? "" : " ") + after[i];
        }
        EXPECT_EQ(changes, line.changes);
    }
}

TEST(PlayerPanelTest, stepsAndTheirLabelsFallBackEachByItsOwnRule) {
    const struct {
        double rewind, forward, from;
        const char* labels;
        double back, ahead;
    } rows[] = {{0.0, 0.0, 10.0, "10 Sec/30 Sec", 0.0, 40.0},
                {0.0, 15.0, 9.5, "10 Sec/30 Sec", 9.5, 24.5},
                {2.5, 0.0, 10.5, "2 Sec/0 Sec", 8.0, 10.5},
                {7.6, 5.25, 35.0, "8 Sec/5 Sec", 27.4, 35.0}};
    for (const auto& row : rows) {
        World w;
        w.settings.setRewindSeconds(row.rewind);
        w.settings.setForwardSeconds(row.forward);
        w.act(kPaused);
        EXPECT_EQ(text(w.player.lblBackwardSec().text.toStdString(), "/", w.player.lblForwardSec().text.toStdString()),
                  row.labels);
        for (const auto& [press, place] : {std::pair{"backSkip", row.back}, {"forwardSkip", row.ahead}}) {
            w.player.progressSliderMoved(row.from);
            w.act(press);
            EXPECT_NEAR(w.player.currentTime(), place, 1e-6) << row.labels;
        }
    }
    for (const auto& [seconds, shown] : {std::pair{59.999, "00:59"}, {-1.0, "00:00"}, {std::nan(""), "00:00"}}) {
        EXPECT_EQ(playerrules::timeText(seconds), QLatin1String(shown));
    }
}

TEST(PlayerPanelTest, theSliderMovesAsOftenAsThatCanBeSeen) {
    for (const auto& [row, most] : {std::pair{"tap 1", 50}, {"tap 3", 2}}) {
        World w;
        w.act(row);
        EXPECT_EQ(w.player.updateTimers(), 2) << "the row loads, and its play button";
        w.moves = 0;
        w.act("wait 1");
        EXPECT_TRUE(w.moves >= most && w.moves <= 2 * most) << row << w.moves;
    }
}

TEST(PlayerPanelTest, theWaveformIsThatOfWhatIsLoaded) {
    World w;
    for (const auto& [name, level] : {std::pair{"b.m4a", 0.25F}, {"d.wav", 0.5F}}) {
        const auto sound = std::make_shared<FakeSound>();
        sound->planes.assign(1, std::vector<float>(44100, level));
        w.files.sounds[w.container.documentsPath() / name] = sound;
    }
    const struct {
        const char* actions;
        double highest;
    } steps[] = {{"tap 1 wait 0", 0.92},
                 {"tap 2 wait 0", 0.0},
                 {"tap 1 tap 3", 0.0},
                 {"wait 0", 0.92},
                 {"tap 1 playerClose wait 0", 0.0}};
    for (const auto& step : steps) {
        w.act(step.actions);
        const QList<qreal>& points = w.player.waveform();
        const double highest = points.isEmpty() ? 0.0 : *std::max_element(points.begin(), points.end());
        EXPECT_NEAR(highest, step.highest, 1e-3) << step.actions;
    }
}

TEST(PlayerPanelTest, headphonesAreToldByTheRoutesName) {
    World w;
    for (const auto& [route, isWorn] : {std::pair{"Headphones", true}, {"Headset", true}, {"Ahead", false}}) {
        w.session.route = QLatin1String(route);
        EXPECT_EQ(w.player.isHeadsetPluggedIn(), isWorn) << route;
    }
    w.session.route = failure(QStringLiteral("no server"));
    EXPECT_FALSE(w.player.isHeadsetPluggedIn());
}

}  // namespace
}  // namespace tavi::test
