#include "support/FakeRecording.h"

#include <gmock/gmock.h>

#include <QDir>
#include <fstream>

#include "recording/AudioSettings.h"

namespace tavi::test {

namespace {

struct AudioRecordVCTest : ::testing::Test, FakeServices {
    AudioRecordVCTest() {
        settings.writeFirstLaunchValues();
        screen.setWormhole(&channel);
        screen.viewDidLoad();
        screen.viewWillAppear();
    }

    void answer(bool isGranted) {
        session.answer(isGranted);
        runLoop.drain();
    }
    void tapRecord(bool isGranted = true) {
        screen.playAndPauseRecording();
        answer(isGranted);
    }
    void tapStop() {
        screen.stopAndSaveRecording();
        runLoop.drain();
    }
    void hearFromCompanion(const char* message, const char* text = "") {
        channel.listeners[QLatin1String(message)](QLatin1String(text));
        answer(true);
    }
    void edit(const char* type, const char* quality = "Medium") {
        settings.setAudioFileType(QLatin1String(type));
        settings.setAudioQualityType(QLatin1String(quality));
    }
    /// From Idle into the state of that letter, with a disk so slow that nothing is saved before finishSaving().
    void reach(char letter) {
        runLoop.holdBackground(true);
        recorders.creation = letter == 'F' ? failure(QStringLiteral("no file")) : Result<void>{};
        const std::map<char, std::string> steps{{'I', ""},    {'F', "r"},   {'R', "rx"},
                                                {'P', "rxr"}, {'S', "rxs"}, {'T', "rxsr"}};
        for (const char step : steps.at(letter)) {
            step == 'r' ? tapRecord() : step == 's' ? tapStop() : recorders.last()->capture(100, -10.0F);
        }
        recorders.creation = {};
    }
    void finishSaving() {
        runLoop.holdBackground(false);
        runLoop.drain();
    }
    /// The state's letter, and whether the tab bar is enabled. All else that the state decides has to agree with it.
    std::string state() const {
        const char letter = "ITRPSF"[static_cast<int>(screen.state())];
        const bool isRunning = letter == 'R';
        const bool isSession = isRunning || letter == 'P';
        const bool isHeld = letter != 'I' && letter != 'F';
        const std::map<char, const char*> texts{{'I', "record_hint"},   {'T', "record_starting"},
                                                {'R', "lbl_recording"}, {'P', "lbl_record_pause"},
                                                {'S', "record_saving"}, {'F', "lbl_recording"}};
        const LabelOutlet label = screen.lblRecording();
        EXPECT_EQ(label.hidden, !isSession && letter != 'F');
        EXPECT_EQ(label.hidden ? screen.hint() : label.text, QLatin1String(texts.at(letter)));
        EXPECT_EQ(screen.btnRecord().image, QLatin1String(isRunning ? "record_pause.png" : "rec_normal.png"));
        EXPECT_EQ((std::vector{screen.isRecording(), screen.btnStop().enabled, !screen.isReset()}),
                  std::vector(3, isSession));
        EXPECT_EQ((std::vector{screen.isRecordingRunning(), recorders.last() && recorders.last()->isRecording()}),
                  std::vector(2, isRunning));
        EXPECT_EQ(
            (std::vector{formatHold.isHeld(), !FormatHold::leaveToChange(container), recording.sessionEnd.isHeldUp}),
            std::vector(3, isHeld));
        return std::string(1, letter) + (tabBar.isUserInteractionEnabled() ? '+' : '-');
    }
    QStringList documents() const { return QDir(container.documentsPath()).entryList(QDir::Files | QDir::Hidden); }
    std::string lastAlert() const { return presenter.alerts.back().message.toStdString(); }

    struct Channel : MessageListening {
        void listenForMessageWithIdentifier(const QString& name, std::function<void(const QVariant&)> called) override {
            listeners[name] = std::move(called);
        }
        QMap<QString, std::function<void(const QVariant&)>> listeners;
    } channel;
    FakeRecording recording{*this};
    FakeMailComposer& mail = recording.mail;
    AudioRecordVC& screen = recording.vc;
};

}  // namespace

TEST(AudioSettings, TypeAndQualityChooseTheFormat) {
    const struct {
        const char *type, *quality;
        std::uint32_t format;
        double rate;
        int channels, level;
    } cases[] = {{"m4a", "Low", kAudioFormatAppleLossless, 8000, 1, 0},
                 {"wav", "Medium", kAudioFormatLinearPCM, 16000, 2, 64},
                 {"caf", "High", kAudioFormatAppleIMA4, 44100, 2, 127},
                 {"mp4", "Mittel", kAudioFormatMPEG4AAC, 44100, 2, 127},
                 {"aac", "low", kAudioFormatMPEG4AAC, 44100, 2, 127},
                 {"WAV", "Medium", kAudioFormatAppleLossless, 16000, 2, 64}};
    for (const auto& row : cases) {
        EXPECT_EQ(generateAudioSettings(QLatin1String(row.type), QLatin1String(row.quality)),
                  (AudioRecordSettings{row.format, row.rate, row.channels, row.level, row.level, 8, false, false}))
            << row.type;
    }
}

TEST_F(AudioRecordVCTest, EveryActionInEveryState) {
    const std::function<void()> actions[] = {
        [&] { tapRecord(); },
        [&] { tapRecord(false); },
        [&] { tapStop(); },
        [&] { hearFromCompanion("Stop"); },
        [&] { recorders.last() ? recorders.last()->fail({QStringLiteral("gone")}) : void(), runLoop.drain(); },
        [&] { finishSaving(); },
        [&] { screen.viewWillAppear(); },
        [&] { hearFromCompanion("Record"); },
    };
    const struct {
        char from;
        /// The state, the tab bar, and how many recordings there are in the end: after a tap on the record button that
        /// is permitted, one that is refused, the stop button, a companion's stop, the end of the microphone, the end
        /// of the saving, the screen's appearing, and a companion's tap.
        const char* to[8];
    } cases[] = {{'I', {"R-1", "I+0", "I+0", "I+0", "I+0", "I+0", "I+0", "R-1"}},
                 {'R', {"P-1", "R-1", "S+1", "S-1", "S+1", "R-1", "R-1", "P-1"}},
                 {'P', {"R-1", "P-1", "S+1", "S-1", "S+1", "P-1", "P-1", "R-1"}},
                 {'S', {"T+2", "S+1", "S+1", "S+1", "S+1", "I+1", "S+1", "T+2"}},
                 {'T', {"T+2", "T+2", "S+1", "T+2", "T+2", "R-2", "T+2", "T+2"}},
                 {'F', {"R-1", "F-0", "I+0", "F-0", "F-0", "F-0", "F-0", "R-1"}}};
    qsizetype told = 0;
    QObject::connect(&notifications, &NotificationCenter::posted, &notifications, [&](const QString& name) {
        told = name == QLatin1String("DataUpdated") ? documents().size() : -1;
    });
    for (const auto& row : cases) {
        for (std::size_t action = 0; action < std::size(actions); ++action) {
            SCOPED_TRACE(::testing::Message() << row.from << " " << action);
            const qsizetype before = documents().size();
            reach(row.from);
            actions[action]();
            const std::string reached = state();
            runLoop.advance(1.0);
            finishSaving();
            tapStop();
            EXPECT_EQ(reached + std::to_string(documents().size() - before), row.to[action]);
            EXPECT_EQ(state(), "I+") << "the screen is not ready for the next session";
            EXPECT_EQ(told, documents().size()) << "the library is not told of what is in its place";
            runLoop.advance(1.0);
        }
    }
}

TEST_F(AudioRecordVCTest, EachSessionHasItsClockItsLevelItsFormatAndItsName) {
    const struct {
        const char *type, *quality;
        std::uint32_t format;
        const char *label, *name;
    } cases[] = {{"m4a", "Medium", kAudioFormatAppleLossless, "Medium - m4a", "2024_Mar_05_15_10_00.m4a"},
                 {"caf", "Low", kAudioFormatAppleIMA4, "Low - caf", "2024_Mar_05_16_16_01.caf"}};
    WaveView& wave = *screen.waveViewMirror();
    int readings = 0;
    wave.setFrameSize({1000.0, 90.0});
    QObject::connect(&wave, &WaveView::needsDisplay, &notifications, [&] { ++readings; });
    EXPECT_TRUE(std::filesystem::is_directory(container.groupContainerPath(kApplicationGroup) / "user_abc"));
    for (const auto& row : cases) {
        SCOPED_TRACE(row.type);
        // While the screen is seen, as by the command line.
        edit(row.type, row.quality);
        tapRecord();
        EXPECT_EQ(screen.lblFileType(), (LabelOutlet{QLatin1String(row.label), QStringLiteral("#c8252c"), false}));
        EXPECT_EQ(recorders.lastSettings.formatID, row.format);
        const std::filesystem::path link = container.cachesPath() / (std::string("vexmosounds.") + row.type);
        EXPECT_NE(recorders.lastPath, link) << "where anybody may clear it away";
        EXPECT_TRUE(std::filesystem::equivalent(recorders.lastPath, link));
        EXPECT_EQ(session.lastCategory, AudioSession::Category::PlayAndRecord);
        EXPECT_EQ(session.lastOption, AudioSession::CategoryOption::DefaultToSpeaker);
        EXPECT_TRUE(session.isActive);
        EXPECT_EQ(screen.lblTimer().text, QStringLiteral("00:00:00"));
        for (const auto& [seconds, text] : {std::pair{61.0, "00:01:01"}, {3599.0, "01:01:00"}, {1.0, "01:01:01"}}) {
            readings = 0;
            // The upper 45 decibels take half of the height.
            for (const auto& [power, span] : {std::pair{-35.0F, 0.1}, {-5.0F, seconds - 0.1}}) {
                recorders.last()->capture(100, power);
                runLoop.advance(span);
                EXPECT_NEAR(wave.mirrorBar().height(), 90.0 + 2.0 * power, 0.01);
            }
            EXPECT_EQ(readings, seconds * 10.0);
            const QPointF newest = wave.newPoint();
            screen.viewWillAppear();
            tapRecord();
            runLoop.advance(100.0);
            EXPECT_EQ(screen.lblTimer().text, QLatin1String(text));
            EXPECT_EQ(readings, seconds * 10.0);
            EXPECT_EQ(wave.newPoint(), newest) << "the strip begins anew";
            tapRecord();
        }
        screen.stopAndSaveRecording();
        EXPECT_EQ(screen.lblTimer().text, QStringLiteral("00:00:00"));
        EXPECT_FALSE(documents().contains(QLatin1String(row.name))) << "moved before it was whole";
        runLoop.drain();
        EXPECT_TRUE(documents().contains(QLatin1String(row.name))) << qPrintable(documents().join(QLatin1Char(' ')));
        EXPECT_FALSE(std::filesystem::exists(recorders.lastPath.parent_path()) || std::filesystem::exists(link));
        EXPECT_EQ(wave.newPoint().x(), 0.0);
    }
    runLoop.advance(86400.0);
    EXPECT_EQ(screen.lblDate(), (LabelOutlet{QStringLiteral("05 Mar 2024"), QStringLiteral("#aaaaaa"), false}));
    screen.viewWillAppear();
    EXPECT_EQ(screen.lblDate().text, QStringLiteral("06 Mar 2024"));
}

TEST_F(AudioRecordVCTest, AnEditedTypeStrandsNoRecording) {
    // The type is edited while a session runs, and the screen may appear after that; something may lie at the path
    // that the type then names.
    const struct {
        bool appears, hasLeftover;
        const char* typeAtStop;
        std::vector<std::string> saved;
    } cases[] = {{true, false, "wav", {"2024_Mar_05_14_04_00.m4a"}},
                 {true, true, "wav", {"2024_Mar_05_14_04_03.m4a", "2024_Mar_05_14_04_03.wav"}},
                 {true, true, "m4a", {"2024_Mar_05_14_04_06.m4a"}},
                 {false, false, "wav", {"2024_Mar_05_14_04_09.wav"}}};
    settings.setQuickMailOn(true);
    for (const auto& row : cases) {
        const auto before = static_cast<std::size_t>(documents().size());
        const std::filesystem::path leftover = container.cachesPath() / "vexmosounds.wav";
        std::filesystem::remove(leftover);
        edit("m4a");
        tapRecord();
        recorders.last()->capture(100, -10.0F);
        edit("wav");
        EXPECT_TRUE(!row.hasLeftover || QFile(leftover).open(QIODevice::WriteOnly));
        row.appears ? screen.viewWillAppear() : void();
        edit(row.typeAtStop);
        runLoop.advance(1.0);
        tapStop();
        EXPECT_EQ(static_cast<std::size_t>(documents().size()), before + row.saved.size());
        for (const std::string& name : row.saved) {
            EXPECT_TRUE(documents().contains(QString::fromStdString(name))) << name;
        }
        EXPECT_GT(std::filesystem::file_size(container.documentsPath() / row.saved.front()), 0U);
        runLoop.advance(2.0);
        EXPECT_EQ(mail.messages.back().attachments[0].fileName.toStdString(), row.saved.front());
    }
}

TEST_F(AudioRecordVCTest, WhatStandsInTheWayIsSaidInOneAlert) {
    enum Obstacle { Refused, NoCategory, NoRecorder, NoInput };
    // After a failed start the tab bar stays disabled and the label visible until the next successful stop.
    const struct {
        Obstacle obstacle;
        const char *title, *message, *state;
    } cases[] = {{Refused, "microphone_denied", "access_device_microphone", "I+"},
                 {NoCategory, "alert_title", "no server", "F-"},
                 {NoRecorder, "alert_title", "no file", "F-"},
                 {NoInput, "audio_hardware_alert_title", "audio_hardware_alert_message", "F-"},
                 {Refused, "microphone_denied", "access_device_microphone", "F-"}};
    std::size_t alerts = 0;
    for (const auto& row : cases) {
        session.categoryResult = row.obstacle == NoCategory ? failure(QStringLiteral("no server")) : Result<void>{};
        recorders.creation = row.obstacle == NoRecorder ? failure(QStringLiteral("no file")) : Result<void>{};
        session.inputAvailable = row.obstacle != NoInput;
        tapRecord(row.obstacle != Refused);
        EXPECT_EQ(state(), row.state);
        ASSERT_EQ(presenter.alerts.size(), ++alerts);
        EXPECT_EQ(presenter.alerts.back().title, QLatin1String(row.title));
        EXPECT_EQ(lastAlert(), row.message);
    }
    hearFromCompanion("ChangeRecord", "from afar");
    EXPECT_EQ(presenter.alerts.back().title, QStringLiteral("from afar"));
    hearFromCompanion("ChangeRecord", std::string(1 << 20, 'x').c_str());
    EXPECT_EQ(presenter.alerts.back().title.size(), 1000);
}

TEST_F(AudioRecordVCTest, ARecordingThatEndsByItselfIsSavedAndSaid) {
    // Whether the input or the disk gives up as the user stops; whether there is something to save.
    const struct {
        bool stops, hasSound;
        qsizetype saved;
    } cases[] = {{false, false, 0}, {false, true, 1}, {true, false, 1}, {true, true, 2}};
    for (const auto& row : cases) {
        presenter.alerts.clear();
        tapRecord();
        recorders.last()->capture(row.hasSound ? 100 : 0, -10.0F);
        recorders.last()->fail({QStringLiteral("unplugged")});
        row.stops ? tapStop() : runLoop.drain();
        EXPECT_EQ(state(), "I+");
        ASSERT_EQ(presenter.alerts.size(), 1U);
        EXPECT_EQ(presenter.alerts.back().title, qtTrId(row.hasSound ? "record_ended_title" : "alert_title"));
        EXPECT_EQ(lastAlert(), row.hasSound ? "record_ended" : "unplugged");
        EXPECT_EQ(documents().size(), row.saved);
        ASSERT_EQ(notices.posted.size(), static_cast<std::size_t>(row.saved));
        EXPECT_TRUE(!row.hasSound || notices.posted.back().text == qtTrId(row.stops ? "record_saved" : "record_kept"));
        runLoop.advance(1.0);
    }
}

TEST_F(AudioRecordVCTest, WhatIsTooLoudOrNotHeardIsSaidForAWhile) {
    tapRecord();
    const auto hear = [this](int tenths, float power) {
        recorders.last()->capture(100, power);
        runLoop.advance(tenths * 0.1);
        return std::pair(screen.level()->isClipping(), screen.level()->isSilent());
    };
    EXPECT_EQ(hear(1, 0.0F), std::pair(true, false));
    EXPECT_EQ(hear(14, -30.0F), std::pair(true, false));
    EXPECT_EQ(hear(1, -30.0F), std::pair(false, false));
    EXPECT_EQ(hear(99, -70.0F), std::pair(false, false));
    EXPECT_EQ(hear(1, -70.0F), std::pair(false, true));
    EXPECT_EQ(hear(1, -30.0F), std::pair(false, false));
    EXPECT_EQ(hear(120, -70.0F), std::pair(false, true));
    tapRecord();
    EXPECT_FALSE(screen.level()->isSilent()) << "paused";
}

TEST_F(AudioRecordVCTest, AMicrophoneThatStopsOrIsAnotherIsSaidInPassing) {
    const auto said = [this](double seconds, int frames) {
        runLoop.advance(seconds);
        recorders.last()->capture(frames, -30.0F);
        runLoop.advance(0.1);
        return notices.said();
    };
    const auto sleepFor = [this](double seconds) { Q_EMIT recording.systemSleep.hasWoken(seconds); };
    Q_EMIT recording.systemSleep.willSleep(nullptr);
    sleepFor(60.0);
    tapRecord();
    EXPECT_EQ(said(2.5, 100), "");
    EXPECT_EQ(said(0.8, 100), "");
    auto delay = std::make_shared<int>();
    const std::weak_ptr<int> isDelayed = delay;
    Q_EMIT recording.systemSleep.willSleep(std::exchange(delay, nullptr));
    EXPECT_FALSE(isDelayed.expired()) << "asleep before all is on the disk";
    sleepFor(0.2);
    EXPECT_EQ(said(2.5, 100), "") << "no time to wake";
    EXPECT_TRUE(isDelayed.expired());
    sleepFor(60.0);
    EXPECT_EQ(said(2.5, 100), "record_slept");
    EXPECT_EQ(said(1.0, 0), "microphone_stopped");
    EXPECT_EQ(screen.lblTimer().text, QStringLiteral("00:00:09")) << "the clock goes on";
    EXPECT_EQ(said(9.0, 100), "microphone_back");
    tapRecord();
    sleepFor(60.0);
    EXPECT_EQ(said(5.0, 0), "") << "nothing is missed in a pause";
    tapRecord();
    recorders.last()->input = QStringLiteral("Headset");
    EXPECT_EQ(said(0.1, 100), "microphone_changed");
    EXPECT_EQ(said(0.1, 100), "");
    tapStop();
    runLoop.advance(1.0);
    notices.posted.clear();
    tapRecord();
    EXPECT_EQ(said(0.1, 100), "") << "another recording, with whatever microphone";
}

TEST_F(AudioRecordVCTest, TheMicrophoneIsNamedAndChosenAndKeptUntilItIsAbsent) {
    const AudioSessionPort desk{QStringLiteral("desk"), QStringLiteral("Desk")};
    const AudioSessionPort headset{QStringLiteral("head"), QStringLiteral("Headset")};
    MicrophoneChoice& microphone = *screen.microphone();
    std::string told;
    QObject::connect(&microphone, &MicrophoneChoice::nameChanged, &notifications,
                     [&] { told = microphone.name().toStdString(); });
    // What is there once the sheet is open, the sheet, the choice that is taken, the name, and whether it is another.
    const struct {
        std::vector<AudioSessionPort> there;
        const char* sheet;
        int taken;
        const char* name;
        bool isAbsent;
    } cases[] = {{{headset, desk}, "*microphone_default Headset Desk Cancel", 2, "Desk", false},
                 {{headset}, "*microphone_default Headset Cancel", 2, "Headset", true},
                 {{headset, desk}, "microphone_default Headset *Desk Cancel", 3, "Desk", false},
                 {{headset, desk}, "microphone_default Headset *Desk Cancel", 0, "Headset", false}};
    for (const auto& row : cases) {
        microphone.choose();
        session.setInputs(row.there);
        runLoop.drain();
        QStringList titles;
        for (const AlertAction& action : presenter.sheets.back().actions) {
            titles.append(QLatin1String(action.isChosen.value_or(false) ? "*" : "") + action.title);
        }
        EXPECT_EQ(titles.join(QLatin1Char(' ')).toStdString(), row.sheet);
        const auto choose = presenter.sheets.back().actions[static_cast<std::size_t>(row.taken)].handler;
        if (choose) {
            choose();
            EXPECT_EQ(told, row.name) << "before it records";
        }
        // As in another run of the program.
        session.preferredInput.clear();
        notices.posted.clear();
        tapRecord();
        EXPECT_EQ(session.currentInput().portName, QLatin1String(row.name));
        EXPECT_EQ(notices.posted.size(), row.isAbsent ? 1U : 0U);
        recorders.last()->input = QStringLiteral("Other");
        runLoop.advance(0.1);
        EXPECT_EQ(told, "Other") << "the system has put the recording there";
        tapStop();
        EXPECT_EQ(told, row.name);
        runLoop.advance(1.0);
    }
}

TEST_F(AudioRecordVCTest, ALateAnswerTakesEffectWhereItIsSeenAndNotAfterAStop) {
    // A start, a pause, and a resume; then what a stop overtakes: a pause, and a start.
    for (const char* expected : {"R-0", "P-1", "R-0"}) {
        screen.playAndPauseRecording();
        tabBar.setSelectedIndex(1);
        answer(true);
        EXPECT_EQ(state() + std::to_string(tabBar.selectedIndex()), expected);
    }
    for (int i = 0; i < 2; ++i) {
        screen.playAndPauseRecording();
        tapStop();
        answer(true);
        EXPECT_EQ(state(), "I+");
    }
    runLoop.advance(1.0);
    reach('T');
    tabBar.setSelectedIndex(2);
    finishSaving();
    EXPECT_EQ(state() + std::to_string(tabBar.selectedIndex()), "R-0");
}

TEST_F(AudioRecordVCTest, WhatCannotBeSavedAndWhatLiesInTheWayIsRescued) {
    // The second recording of a second, whose name is taken; then an older one at the path that a session records to.
    // No mail is about what was not saved under its own name.
    const std::filesystem::path older = container.cachesPath() / "vexmosounds.m4a";
    settings.setQuickMailOn(true);
    for (const qsizetype saved : {1, 2, 4}) {
        if (saved == 4) {
            runLoop.advance(1.0);
            std::ofstream(older) << "sound";
        }
        tapRecord();
        recorders.last()->capture(100, -10.0F);
        tapStop();
        EXPECT_EQ(documents().size(), saved);
        EXPECT_TRUE(std::filesystem::is_empty(container.unsavedPath()));
        EXPECT_EQ(documents().filter(QStringLiteral("Recovered_2024_Mar_05_14_03_59.m4a")).size(), saved > 1 ? 1 : 0);
    }
    const std::vector<std::string> expected{"record_saved", "rescue_saved", "rescue_saved", "record_saved"};
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(notices.posted.at(i).text, qtTrId(expected.at(i).c_str()));
    }
    runLoop.advance(2.0);
    EXPECT_EQ(mail.messages.size(), 2U);
}

TEST_F(AudioRecordVCTest, WithoutAFolderOfItsOwnARecordingGrowsInTheCachesFolder) {
    std::ofstream(container.root() / "Unsaved") << "in the way";
    tapRecord();
    EXPECT_EQ(recorders.lastPath, container.cachesPath() / "vexmosounds.m4a");
    tapStop();
    EXPECT_EQ(documents().size(), 1);
}

TEST_F(AudioRecordVCTest, MailsWhatIsNotTooLarge) {
    const struct {
        std::uintmax_t bytes;
        bool isOn, canSend;
        std::size_t mails, alerts;
    } cases[] = {{25 << 20, true, true, 1, 0},
                 {(25 << 20) + 1, true, true, 0, 1},
                 {1, true, false, 0, 0},
                 {1, false, true, 0, 0}};
    for (const auto& row : cases) {
        settings.setQuickMailOn(row.isOn);
        mail.canSend = row.canSend;
        tapRecord();
        std::filesystem::resize_file(recorders.lastPath, row.bytes);
        tapStop();
        runLoop.advance(1.99);
        EXPECT_EQ(mail.messages.size() + presenter.alerts.size(), 0U) << "too early";
        runLoop.advance(0.01);
        EXPECT_EQ(presenter.alerts.size(), row.alerts);
        EXPECT_TRUE(row.alerts == 0 || lastAlert() == "file_size_msg");
        ASSERT_EQ(mail.messages.size(), row.mails);
        EXPECT_TRUE(row.mails == 0 || mail.messages[0].attachments[0].mimeType == QLatin1String("audio/m4a"));
        mail.messages.clear();
        presenter.alerts.clear();
    }
}

TEST_F(AudioRecordVCTest, WhatIsSavedGoesToTheCloudWhileThatIsOn) {
    EXPECT_EQ(cloud.setups, 0) << "off at first";
    for (const int round : {0, 1, 2}) {
        settings.setCloudSyncOn(round > 0);
        screen.viewDidLoad();
        EXPECT_EQ(std::pair(cloud.setups, cloud.isVerboseLogging), std::pair(round, round > 0));
        // Once the end of the program is faster than the cloud.
        cloud.hasAccount = round < 2;
        tapRecord();
        recorders.last()->capture(100, -10.0F);
        tapStop();
        runLoop.manualClock().advance(round);
    }
    // The second one's name was taken, so that it was rescued.
    EXPECT_THAT(cloud.saves, ::testing::ElementsAre("Recovered_2024_Mar_05_14_03_59.m4a", "2024_Mar_05_14_04_00.m4a"));
    // The other one goes there again at the next start, once.
    cloud.saves.clear();
    cloud.hasAccount = true;
    settings.setCloudPending(container.documentsPath() / "gone.m4a", true);
    for (int starts = 0; starts < 2; ++starts) {
        screen.viewDidLoad();
        runLoop.drain();
    }
    EXPECT_THAT(cloud.saves, ::testing::ElementsAre("2024_Mar_05_14_04_00.m4a"));
    ASSERT_NE(cloud.delegate(), nullptr);
    cloud.delegate()->iCloudAvailabilityDidChangeToState(true, {}, {});
    EXPECT_TRUE(presenter.alerts.empty());
    cloud.delegate()->iCloudAvailabilityDidChangeToState(false, {}, {});
    EXPECT_EQ(lastAlert(), "signin_icloud_account");
}

TEST_F(AudioRecordVCTest, ShowsTheNewestRecordingThatPlays) {
    namespace fs = std::filesystem;
    const fs::path folder = container.documentsPath();
    const auto at = [](int hour) { return fs::file_time_type(std::chrono::hours(hour)); };
    for (const auto& [name, hour] : {std::pair{"a.wav", 2}, {"b.wav", 3}, {"c.wav", 1}, {".d.wav", 4}}) {
        std::ofstream(folder / name) << "sound";
        fs::last_write_time(folder / name, at(hour));
    }
    fs::create_directory(folder / "e.wav");
    durations.seconds = {{"a.wav", 7.0}, {"b.wav", 3725.6}, {".d.wav", 1.0}};
    auto sound = std::make_shared<FakeSound>();
    sound->rate = 100;
    sound->planes = {std::vector<float>(9000, 0.25F)};
    std::fill_n(sound->planes[0].begin(), 4500, 1.0F);
    files.sounds[folder / "b.wav"] = sound;
    LastRecording& last = recording.last;
    const auto seen = [&] {
        screen.viewWillAppear();
        runLoop.advance(1.0);
        return last.name() + QLatin1Char(' ') + last.time();
    };
    EXPECT_EQ(seen(), QStringLiteral("b.wav 01:02:06"));
    EXPECT_EQ(std::pair(last.shape().first(), last.shape().last()), std::pair(1.0, 0.5));
    QString played;
    QObject::connect(&screen, &AudioRecordVC::playRequested, &screen,
                     [&played](const QString& name) { played = name; });
    last.play();
    EXPECT_EQ(played, QStringLiteral("b.wav"));
    fs::remove(folder / "b.wav");
    EXPECT_EQ(seen(), QStringLiteral("a.wav 00:00:07"));
    // What is saved meanwhile is newer than what a search finds.
    screen.viewWillAppear();
    last.show(QStringLiteral("new"), QStringLiteral("00:00:01"));
    runLoop.advance(1.0);
    EXPECT_EQ(last.name(), QStringLiteral("new"));
    fs::last_write_time(folder / "c.wav", at(9));
    EXPECT_EQ(seen(), QStringLiteral(" ")) << "plays not";
}

TEST_F(AudioRecordVCTest, TheEndOfTheProgramWaitsForTheRecording) {
    // While it runs, is paused, is stopped but not whole (W), waits to be moved, and has another one waiting behind it.
    qsizetype saved = 0;
    for (const char letter : {'R', 'P', 'W', 'S', 'T'}) {
        reach(letter == 'W' ? 'R' : letter);
        letter == 'W' ? screen.stopAndSaveRecording() : void();
        screen.finishBeforeTermination();
        EXPECT_EQ(documents().size(), ++saved) << letter;
        runLoop.advance(1.0);
        finishSaving();
        EXPECT_EQ(documents().size(), saved) << letter;
    }
    for (int removals = 0; removals < 2; ++removals) {
        screen.removeFile(documents().first().toStdString() + (removals == 1 ? ".none" : ""));
        EXPECT_EQ(documents().size(), saved - 1);
    }
}

}  // namespace tavi::test
