#include "support/FakeRecording.h"

#include <gmock/gmock.h>

#include <QDir>

#include "recording/AudioSettings.h"

namespace tavi::test {

namespace {

class AudioRecordVCTest : public ::testing::Test, protected FakeServices {
protected:
    AudioRecordVCTest() {
        settings.writeFirstLaunchValues();
        screen.viewDidLoad();
        screen.viewWillAppear();
    }

    void tapRecord(bool isGranted = true) {
        screen.playAndPauseRecording(nullptr);
        session.answer(isGranted);
        runLoop.drain();
    }
    void tapStop() {
        screen.stopAndSaveRecording(nullptr);
        runLoop.drain();
    }
    void finishSaving() {
        runLoop.holdBackground(false);
        runLoop.drain();
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
    /// The state's letter, and whether the tab bar is enabled. All else that the state decides has to agree with it.
    std::string state() const {
        const struct {
            char letter;
            bool isRecording, isRunning;
            const char *image, *text;
        } looks[] = {{'I', false, false, "rec_normal.png", "record_hint"},
                     {'T', false, false, "rec_normal.png", "record_starting"},
                     {'R', true, true, "record_pause.png", "lbl_recording"},
                     {'P', true, false, "rec_normal.png", "lbl_record_pause"},
                     {'S', false, false, "rec_normal.png", "record_saving"},
                     {'F', false, false, "rec_normal.png", "lbl_recording"}};
        const auto& look = looks[static_cast<std::size_t>(screen.state())];
        EXPECT_EQ(screen.isRecording(), look.isRecording);
        EXPECT_EQ(screen.isReset(), !look.isRecording);
        EXPECT_EQ(screen.btnStop().enabled, look.isRecording);
        EXPECT_EQ(screen.isRecordingRunning(), look.isRunning);
        EXPECT_EQ(recorders.last() != nullptr && recorders.last()->isRecording(), look.isRunning);
        EXPECT_EQ(screen.btnRecord().image, QLatin1String(look.image));
        const bool isHeld = look.letter != 'I' && look.letter != 'F';
        EXPECT_EQ(formatHold.isHeld(), isHeld);
        EXPECT_EQ(FormatHold::leaveToChange(container).has_value(), !isHeld);
        const bool isHidden = screen.lblRecording().hidden;
        EXPECT_EQ(isHidden, !look.isRecording && look.letter != 'F');
        EXPECT_EQ(isHidden ? screen.hint() : screen.lblRecording().text, QLatin1String(look.text));
        return std::string(1, look.letter) + (tabBar.isUserInteractionEnabled() ? '+' : '-');
    }
    QStringList documents() const {
        return QDir(container.documentsPath()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    QString lastAlert() const { return presenter.alerts.empty() ? QString() : presenter.alerts.back().message; }

    struct Channel : MessageListening {
        void listenForMessageWithIdentifier(const QString& name, std::function<void(const QVariant&)> called) override {
            listeners[name] = std::move(called);
        }
        QMap<QString, std::function<void(const QVariant&)>> listeners;
    } channel;
    FakePresenter presenter;
    FakeTabBar tabBar;
    FakeRecording recording{*this, presenter, tabBar};
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
        SCOPED_TRACE(row.type);
        const AudioRecordSettings settings =
            generateAudioSettings(QString::fromLatin1(row.type), QString::fromLatin1(row.quality));
        EXPECT_EQ(settings,
                  (AudioRecordSettings{row.format, row.rate, row.channels, row.level, row.level, 8, false, false}));
    }
}

TEST_F(AudioRecordVCTest, EveryActionInEveryState) {
    const std::function<void()> actions[] = {
        [&] { tapRecord(); },
        [&] { tapRecord(false); },
        [&] { tapStop(); },
        [&] { channel.listeners[QStringLiteral("Stop")]({}), runLoop.drain(); },
        [&] {
            recorders.last() != nullptr ? recorders.last()->fail({QStringLiteral("gone")}) : void(), runLoop.drain();
        },
        [&] { finishSaving(); },
        [&] { screen.viewWillAppear(); },
    };
    const struct {
        char from;
        /// The state, the tab bar, and how many recordings there are in the end: after a tap on the record button that
        /// is permitted, one that is refused, the stop button, a companion's stop, the end of the microphone, the end
        /// of the saving, and the screen's appearing.
        const char* to[7];
    } cases[] = {{'I', {"R-1", "I+0", "I+0", "I+0", "I+0", "I+0", "I+0"}},
                 {'R', {"P-1", "R-1", "S+1", "S-1", "S+1", "R-1", "R-1"}},
                 {'P', {"R-1", "P-1", "S+1", "S-1", "S+1", "P-1", "P-1"}},
                 {'S', {"T+2", "S+1", "S+1", "S+1", "S+1", "I+1", "S+1"}},
                 {'T', {"T+2", "T+2", "S+1", "T+2", "T+2", "R-2", "T+2"}},
                 {'F', {"R-1", "F-0", "I+0", "F-0", "F-0", "F-0", "F-0"}}};
    screen.setWormhole(&channel);
    screen.viewWillAppear();
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
    int readings = 0;
    screen.waveViewMirror()->setFrameSize({1000.0, 90.0});
    QObject::connect(screen.waveViewMirror(), &WaveView::needsDisplay, &notifications, [&] { ++readings; });
    EXPECT_TRUE(std::filesystem::is_directory(container.groupContainerPath(kApplicationGroup) / "user_abc"));
    for (const auto& row : cases) {
        SCOPED_TRACE(row.type);
        // Set while the screen is seen, as by the command line.
        settings.setAudioFileType(QLatin1String(row.type));
        settings.setAudioQualityType(QLatin1String(row.quality));
        tapRecord();
        EXPECT_EQ(screen.lblFileType(), (LabelOutlet{QLatin1String(row.label), QStringLiteral("#c8252c"), false}));
        EXPECT_EQ(recorders.lastSettings.formatID, row.format);
        EXPECT_EQ(recorders.lastPath, container.cachesPath() / (std::string("vexmosounds.") + row.type));
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
                EXPECT_NEAR(screen.waveViewMirror()->mirrorBar().height(), 90.0 + 2.0 * power, 0.01);
            }
            EXPECT_EQ(screen.lblTimer().text, QLatin1String(text));
            EXPECT_EQ(readings, seconds * 10.0);
            const QPointF newest = screen.waveViewMirror()->newPoint();
            screen.viewWillAppear();
            EXPECT_EQ(screen.waveViewMirror()->newPoint(), newest) << "the strip begins anew";
            tapRecord();
            readings = 0;
            runLoop.advance(100.0);
            EXPECT_EQ(screen.lblTimer().text, QLatin1String(text));
            EXPECT_EQ(readings, 0);
            tapRecord();
        }
        screen.stopAndSaveRecording(nullptr);
        EXPECT_EQ(screen.lblTimer().text, QStringLiteral("00:00:00"));
        EXPECT_FALSE(documents().contains(QLatin1String(row.name))) << "moved before it was whole";
        runLoop.drain();
        EXPECT_TRUE(documents().contains(QLatin1String(row.name))) << qPrintable(documents().join(QLatin1Char(' ')));
        EXPECT_FALSE(std::filesystem::exists(recorders.lastPath));
        EXPECT_EQ(screen.waveViewMirror()->newPoint().x(), 0.0);
    }
    runLoop.advance(86400.0);
    EXPECT_EQ(screen.lblDate(), (LabelOutlet{QStringLiteral("05 Mar 2024"), QStringLiteral("#aaaaaa"), false}));
    screen.viewWillAppear();
    EXPECT_EQ(screen.lblDate().text, QStringLiteral("06 Mar 2024"));
}

TEST_F(AudioRecordVCTest, AnEditedTypeStrandsNoRecording) {
    // The type is edited while a session runs, and the screen may appear after that; something may lie at the path
    // that the type now names.
    const struct {
        bool appears, hasLeftover;
        const char* typeAtStop;
        QStringList saved;
    } cases[] = {
        {true, false, "wav", {QStringLiteral("2024_Mar_05_14_04_00.m4a")}},
        {true, true, "wav", {QStringLiteral("2024_Mar_05_14_04_03.m4a"), QStringLiteral("2024_Mar_05_14_04_03.wav")}},
        {true, true, "m4a", {QStringLiteral("2024_Mar_05_14_04_06.m4a")}},
        {false, false, "wav", {QStringLiteral("2024_Mar_05_14_04_09.wav")}}};
    settings.setQuickMailOn(true);
    for (const auto& row : cases) {
        settings.setAudioFileType(QStringLiteral("m4a"));
        const QStringList before = documents();
        tapRecord();
        settings.setAudioFileType(QStringLiteral("wav"));
        QFile leftover(container.cachesPath() / "vexmosounds.wav");
        EXPECT_TRUE(row.hasLeftover ? leftover.open(QIODevice::WriteOnly) : !leftover.exists() || leftover.remove());
        if (row.appears) {
            screen.viewWillAppear();
        }
        settings.setAudioFileType(QLatin1String(row.typeAtStop));
        runLoop.advance(1.0);
        tapStop();
        QStringList saved = documents();
        saved.removeIf([&](const QString& name) { return before.contains(name); });
        EXPECT_EQ(saved, row.saved);
        runLoop.advance(2.0);
        EXPECT_EQ(mail.messages.back().attachments[0].fileName, row.saved.front());
        EXPECT_GT(std::filesystem::file_size(container.documentsPath() / row.saved.front().toStdString()), 0U);
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
        SCOPED_TRACE(row.message);
        session.categoryResult = row.obstacle == NoCategory ? failure(QStringLiteral("no server")) : Result<void>{};
        recorders.creation = row.obstacle == NoRecorder ? failure(QStringLiteral("no file")) : Result<void>{};
        session.inputAvailable = row.obstacle != NoInput;
        tapRecord(row.obstacle != Refused);
        EXPECT_EQ(state(), row.state);
        ASSERT_EQ(presenter.alerts.size(), ++alerts);
        EXPECT_EQ(presenter.alerts.back().title, QLatin1String(row.title));
        EXPECT_EQ(lastAlert(), QLatin1String(row.message));
    }
    session.inputAvailable = true;
    tapRecord();
    EXPECT_EQ(state(), "R-");
    tapStop();
    EXPECT_EQ(state(), "I+");
    EXPECT_EQ(documents().size(), 1);
}

TEST_F(AudioRecordVCTest, ARecordingThatEndsByItselfIsSavedAndSaid) {
    // When the input or the disk gives up, which may be at the stop; whether there is something to save then.
    const struct {
        char state;
        bool hasSound;
        qsizetype saved;
    } cases[] = {{'R', true, 1}, {'P', true, 1}, {'R', false, 0}, {'S', false, 1}, {'R', true, 1}};
    for (const auto& row : cases) {
        const qsizetype before = documents().size();
        const std::size_t alerts = presenter.alerts.size();
        tapRecord();
        recorders.last()->capture(row.hasSound ? 100 : 0, -10.0F);
        if (row.state == 'P') {
            tapRecord();
        }
        recorders.last()->fail({QStringLiteral("unplugged")});
        if (row.state == 'S') {
            tapStop();
        }
        runLoop.drain();
        EXPECT_EQ(state(), "I+");
        EXPECT_EQ(lastAlert(), QStringLiteral("unplugged"));
        EXPECT_EQ(presenter.alerts.size(), alerts + 1);
        EXPECT_EQ(documents().size(), before + row.saved);
        runLoop.advance(5.0);
    }
}

TEST_F(AudioRecordVCTest, ALateAnswerTakesEffectWhereItIsSeenAndNotAfterAStop) {
    const auto answer = [this] { session.answer(true), runLoop.drain(); };
    screen.playAndPauseRecording(nullptr);
    tabBar.setSelectedIndex(1);
    answer();
    EXPECT_EQ(state(), "R-");
    EXPECT_EQ(tabBar.selectedIndex(), 0);

    tapRecord();
    tabBar.setSelectedIndex(1);
    tapRecord();
    EXPECT_EQ(tabBar.selectedIndex(), 0) << "recorded unseen after a pause";

    // A pause that the stop overtakes does not start the next recording.
    screen.playAndPauseRecording(nullptr);
    tapStop();
    answer();
    EXPECT_EQ(state(), "I+");
    screen.playAndPauseRecording(nullptr);
    tapStop();
    answer();
    EXPECT_EQ(state(), "I+");

    runLoop.advance(1.0);
    reach('T');
    tabBar.setSelectedIndex(2);
    finishSaving();
    EXPECT_EQ(state(), "R-");
    EXPECT_EQ(tabBar.selectedIndex(), 0);
}

TEST_F(AudioRecordVCTest, ASecondRecordingOfTheSameSecondReplacesNothing) {
    tapRecord();
    tapStop();
    // Its name is taken; it stays where the next start removes it, on purpose.
    tapRecord();
    tapStop();
    EXPECT_EQ(documents().size(), 1);
    EXPECT_TRUE(std::filesystem::exists(recorders.lastPath));
    runLoop.advance(1.0);
    tapRecord();
    tapStop();
    EXPECT_EQ(documents().size(), 2);
}

TEST_F(AudioRecordVCTest, MailsWhatIsNotTooLarge) {
    const struct {
        qint64 bytes;
        bool isOn, canSend;
        std::size_t mails, alerts;
    } cases[] = {{25 * 1024 * 1024, true, true, 1, 0},
                 {25 * 1024 * 1024 + 1, true, true, 1, 1},
                 {1, true, false, 1, 1},
                 {1, false, true, 1, 1}};
    for (const auto& row : cases) {
        SCOPED_TRACE(row.bytes);
        settings.setQuickMailOn(row.isOn);
        mail.canSend = row.canSend;
        const std::size_t before = mail.messages.size();
        tapRecord();
        std::filesystem::resize_file(recorders.lastPath, row.bytes);
        tapStop();
        runLoop.advance(1.99);
        EXPECT_EQ(mail.messages.size(), before);
        runLoop.advance(0.01);
        EXPECT_EQ(mail.messages.size(), row.mails);
        EXPECT_EQ(presenter.alerts.size(), row.alerts);
    }
    EXPECT_EQ(lastAlert(), QStringLiteral("file_size_msg"));
    EXPECT_EQ(mail.messages[0].attachments[0].mimeType, QStringLiteral("audio/m4a"));
}

TEST_F(AudioRecordVCTest, ListensToTheCompanionsOnceAChannelIsAttached) {
    screen.setWormhole(&channel);
    screen.viewWillAppear();
    channel.listeners[QStringLiteral("ChangeRecord")](QStringLiteral("from afar"));
    EXPECT_EQ(presenter.alerts.back().title, QStringLiteral("from afar"));
    channel.listeners[QStringLiteral("Record")]({});
    session.answer(true);
    runLoop.drain();
    EXPECT_EQ(state(), "R-");
    channel.listeners[QStringLiteral("Stop")]({});
    runLoop.drain();
    EXPECT_EQ(documents().size(), 1);
    EXPECT_EQ(state(), "I-") << "a stop from afar leaves the tab bar disabled";
}

TEST_F(AudioRecordVCTest, TheLibraryIsToldOfEveryRecordingThatIsInItsPlace) {
    std::vector<qsizetype> told;
    QObject::connect(&notifications, &NotificationCenter::posted, &notifications, [&](const QString& name) {
        EXPECT_EQ(name, QStringLiteral("DataUpdated"));
        told.push_back(documents().size());
    });
    for (int i = 0; i < 2; ++i) {
        tapRecord();
        runLoop.advance(1.0);
        tapStop();
    }
    EXPECT_EQ(told, (std::vector<qsizetype>{1, 2}));
}

TEST_F(AudioRecordVCTest, TheEndOfTheProgramWaitsForTheRecording) {
    // How far the session is when the program ends: it runs, it is paused, its file is not whole, its file is to be
    // moved, and another one waits behind it.
    enum Progress { Running, Paused, Stopped, Whole, Awaited };
    for (const Progress progress : {Running, Paused, Stopped, Whole, Awaited}) {
        const qsizetype before = documents().size();
        runLoop.holdBackground(true);
        tapRecord();
        runLoop.advance(1.0);
        if (progress == Paused) {
            tapRecord();
        }
        if (progress >= Stopped) {
            screen.stopAndSaveRecording(nullptr);
        }
        if (progress >= Whole) {
            runLoop.drain();
        }
        if (progress == Awaited) {
            tapRecord();
        }
        screen.finishBeforeTermination();
        EXPECT_EQ(documents().size(), before + 1) << progress;
        runLoop.holdBackground(false);
        runLoop.drain();
        EXPECT_EQ(documents().size(), before + 1) << progress;
    }
}

}  // namespace tavi::test
