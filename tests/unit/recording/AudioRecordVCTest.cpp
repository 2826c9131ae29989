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

    void tapRecord() {
        screen.playAndPauseRecording(nullptr);
        session.answer(true);
        runLoop.drain();
    }
    void tapStop() {
        screen.stopAndSaveRecording(nullptr);
        runLoop.drain();
    }
    QStringList documents() const {
        return QDir(container.documentsPath()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    /// Recording, running, stop enabled, tab bar enabled, label hidden.
    std::vector<bool> state() const {
        return {screen.isRecording(), screen.isRecordingRunning(), screen.btnStop().enabled,
                tabBar.isUserInteractionEnabled(), screen.lblRecording().hidden};
    }
    QString lastAlert() const { return presenter.alerts.empty() ? QString() : presenter.alerts.back().message; }

    const std::vector<bool> kIdle{false, false, false, true, true};
    const std::vector<bool> kRecording{true, true, true, false, false};
    const std::vector<bool> kPaused{true, false, true, false, false};

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

TEST_F(AudioRecordVCTest, ASessionGoesThroughItsStatesAndIsSaved) {
    EXPECT_EQ(state(), kIdle);
    tapRecord();
    EXPECT_EQ(state(), kRecording);
    EXPECT_EQ(session.lastCategory, AudioSession::Category::PlayAndRecord);
    runLoop.advance(61.0);
    tapRecord();
    EXPECT_EQ(state(), kPaused);
    EXPECT_EQ(runLoop.activeTimers(), 0U);
    runLoop.advance(100.0);
    tapRecord();
    EXPECT_EQ(state(), kRecording);
    runLoop.advance(3600.0);
    EXPECT_EQ(screen.lblTimer().text, QStringLiteral("01:01:01"));
    screen.stopAndSaveRecording(nullptr);
    EXPECT_EQ(state(), kIdle);
    EXPECT_TRUE(documents().isEmpty()) << "moved before it was whole";
    runLoop.drain();
    EXPECT_EQ(documents(), QStringList{QStringLiteral("2024_Mar_05_15_06_40.m4a")});
    EXPECT_FALSE(QFile::exists(recorders.lastPath));
    runLoop.advance(2.0);
    EXPECT_TRUE(mail.messages.empty());
    tapRecord();
    EXPECT_EQ(screen.lblTimer().text, QStringLiteral("00:00:00"));
}

TEST_F(AudioRecordVCTest, WhatStandsInTheWayIsSaidInOneAlert) {
    enum Obstacle { Refused, NoCategory, NoRecorder, NoInput };
    // After a failed start the tab bar stays disabled and the label visible until the next successful stop.
    const std::vector<bool> abandoned(5, false);
    const struct {
        Obstacle obstacle;
        const char* alert;
        std::vector<bool> state;
    } cases[] = {{Refused, "access_device_microphone", kIdle},
                 {NoCategory, "no server", abandoned},
                 {NoRecorder, "no file", abandoned},
                 {NoInput, "audio_hardware_alert_message", abandoned}};
    std::size_t alerts = 0;
    for (const auto& row : cases) {
        SCOPED_TRACE(row.alert);
        session.categoryResult = row.obstacle == NoCategory ? failure(QStringLiteral("no server")) : Result<void>{};
        recorders.creation = row.obstacle == NoRecorder ? failure(QStringLiteral("no file")) : Result<void>{};
        session.inputAvailable = row.obstacle != NoInput;
        screen.playAndPauseRecording(nullptr);
        session.answer(row.obstacle != Refused);
        runLoop.drain();
        EXPECT_EQ(state(), row.state);
        EXPECT_EQ(lastAlert(), QLatin1String(row.alert));
        EXPECT_EQ(presenter.alerts.size(), ++alerts);
    }
    session.inputAvailable = true;
    tapRecord();
    EXPECT_EQ(state(), kRecording);
    tapStop();
    EXPECT_EQ(state(), kIdle);
    EXPECT_EQ(documents().size(), 1);
}

TEST_F(AudioRecordVCTest, ARecordingThatEndsByItselfIsSavedAndSaid) {
    tapRecord();
    recorders.last()->capture(100, -10.0F);
    recorders.last()->fail(Error{QStringLiteral("unplugged")});
    runLoop.drain();
    EXPECT_EQ(state(), kIdle);
    EXPECT_EQ(lastAlert(), QStringLiteral("unplugged"));
    EXPECT_EQ(presenter.alerts.size(), 1U);
    EXPECT_EQ(documents().size(), 1);

    runLoop.advance(5.0);
    tapRecord();
    recorders.last()->fail(Error{QStringLiteral("never there")});
    runLoop.drain();
    EXPECT_EQ(state(), kIdle);
    EXPECT_EQ(documents().size(), 1) << "an empty recording was saved";
}

TEST_F(AudioRecordVCTest, ANewSessionWaitsUntilTheLastOneIsInItsPlace) {
    tapRecord();
    screen.stopAndSaveRecording(nullptr);
    tapRecord();
    EXPECT_EQ(state(), kRecording);
    EXPECT_EQ(documents().size(), 1);
    runLoop.advance(1.0);
    screen.finishBeforeTermination();
    EXPECT_EQ(documents().size(), 2) << "the program ended without the recording";
}

TEST_F(AudioRecordVCTest, ASecondRecordingOfTheSameSecondReplacesNothing) {
    tapRecord();
    tapStop();
    // Its name is taken; on purpose it stays where the next start removes it.
    tapRecord();
    tapStop();
    EXPECT_EQ(documents().size(), 1);
    EXPECT_TRUE(QFile::exists(recorders.lastPath));
}

TEST_F(AudioRecordVCTest, MailsWhatIsNotTooLarge) {
    const struct {
        qint64 bytes;
        bool canSend;
        std::size_t mails, alerts;
    } cases[] = {{25 * 1024 * 1024, true, 1, 0}, {25 * 1024 * 1024 + 1, true, 1, 1}, {1, false, 1, 1}};
    settings.setQuickMailOn(true);
    for (const auto& row : cases) {
        SCOPED_TRACE(row.bytes);
        mail.canSend = row.canSend;
        tapRecord();
        QFile::resize(recorders.lastPath, row.bytes);
        tapStop();
        runLoop.advance(2.0);
        EXPECT_EQ(mail.messages.size(), row.mails);
        EXPECT_EQ(presenter.alerts.size(), row.alerts);
    }
    EXPECT_EQ(lastAlert(), QStringLiteral("file_size_msg"));
    EXPECT_EQ(mail.messages[0].attachments[0].mimeType, QStringLiteral("audio/m4a"));
}

TEST_F(AudioRecordVCTest, ListensToTheCompanionsOnceAChannelIsAttached) {
    struct Channel : MessageListening {
        void listenForMessageWithIdentifier(const QString& name, std::function<void(const QVariant&)> called) override {
            listeners[name] = std::move(called);
        }
        QMap<QString, std::function<void(const QVariant&)>> listeners;
    } channel;
    screen.setWormhole(&channel);
    screen.viewWillAppear();
    channel.listeners[QStringLiteral("Record")]({});
    session.answer(true);
    runLoop.drain();
    EXPECT_EQ(state(), kRecording);
    channel.listeners[QStringLiteral("Stop")]({});
    runLoop.drain();
    EXPECT_EQ(documents().size(), 1);
    EXPECT_FALSE(tabBar.isUserInteractionEnabled()) << "a stop from afar leaves the tab bar disabled";
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
