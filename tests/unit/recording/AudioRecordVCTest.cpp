#include "recording/AudioRecordVC.h"

#include <gmock/gmock.h>

#include <QDir>

#include "recording/AudioSettings.h"
#include "support/FakeAudioRecorder.h"
#include "support/Fakes.h"
#include "support/ManualRunLoop.h"
#include "support/TemporaryContainer.h"

namespace tavi::test {

namespace {

class FakeWormhole : public MessageListening {
public:
    void listenForMessageWithIdentifier(const QString& identifier,
                                        std::function<void(const QVariant&)> listener) override {
        listeners[identifier] = std::move(listener);
    }

    QMap<QString, std::function<void(const QVariant&)>> listeners;
};

class AudioRecordVCTest : public ::testing::Test {
protected:
    AudioRecordVCTest() {
        settings.writeFirstLaunchValues();
        screen.viewDidLoad();
        screen.waveViewMirror()->setFrameSize({300, 200});
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
    /// Recording, paused, image, stop enabled, tab bar enabled, label hidden: what the state table says.
    QString state() const {
        return QStringLiteral("%1%2 %3 %4%5%6")
            .arg(screen.isRecording())
            .arg(screen.isRecordingRunning())
            .arg(screen.btnRecord().image)
            .arg(screen.btnStop().enabled)
            .arg(tabBar.isUserInteractionEnabled())
            .arg(screen.lblRecording().hidden);
    }
    QString lastAlert() const {
        return presenter.alerts.empty()
                   ? QString()
                   : presenter.alerts.back().title + QLatin1Char('/') + presenter.alerts.back().message;
    }

    const QString kIdle = QStringLiteral("00 rec_normal.png 011");
    const QString kRecording = QStringLiteral("11 record_pause.png 100");
    const QString kPaused = QStringLiteral("10 rec_normal.png 100");

    FakeAudioSession session;
    ManualRunLoop runLoop;
    FakeAudioRecorders recorders{runLoop};
    FakeUserDefaults defaults;
    SettingsStore settings{defaults};
    TemporaryContainer container;
    FakePresenter presenter;
    FakeTabBar tabBar;
    FakeMailComposer mail;
    AudioRecordVC screen{{session, recorders, settings, container, runLoop, presenter, tabBar, mail}};
};

}  // namespace

TEST(AudioSettings, TypeAndQualityChooseTheFormat) {
    const struct {
        const char* type;
        const char* quality;
        std::uint32_t format;
        double rate;
        int channels;
        int level;
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
    EXPECT_EQ(screen.lblFileType().text, QStringLiteral("Medium - m4a"));
    EXPECT_EQ(screen.lblDate().text, QStringLiteral("05 Mar 2024"));
    tapRecord();
    EXPECT_EQ(state(), kRecording);
    EXPECT_EQ(session.lastCategory, AudioSession::Category::PlayAndRecord);
    runLoop.advance(61.0);
    EXPECT_EQ(screen.lblTimer().text, QStringLiteral("00:01:01"));
    tapRecord();
    EXPECT_EQ(state(), kPaused);
    EXPECT_EQ(screen.lblRecording().text, QStringLiteral("lbl_record_pause"));
    EXPECT_EQ(runLoop.activeTimers(), 0U);
    runLoop.advance(100.0);
    tapRecord();
    EXPECT_EQ(state(), kRecording);
    runLoop.advance(3600.0);
    EXPECT_EQ(screen.lblTimer().text, QStringLiteral("01:01:01"));
    EXPECT_TRUE(documents().isEmpty());
    screen.stopAndSaveRecording(nullptr);
    EXPECT_EQ(state(), kIdle);
    EXPECT_EQ(screen.lblTimer().text, QStringLiteral("00:00:00"));
    EXPECT_TRUE(documents().isEmpty()) << "moved before it was whole";
    runLoop.drain();
    EXPECT_EQ(documents(), QStringList{QStringLiteral("2024_Mar_05_15_06_40.m4a")});
    EXPECT_FALSE(QFile::exists(recorders.lastPath));
    runLoop.advance(2.0);
    EXPECT_TRUE(mail.messages.empty());

    tapRecord();
    EXPECT_EQ(screen.lblTimer().text, QStringLiteral("00:00:00"));
    runLoop.advance(1.0);
    EXPECT_EQ(screen.lblTimer().text, QStringLiteral("00:00:01"));
    EXPECT_EQ(clockText(360'000), QStringLiteral("100:00:00"));
}

TEST_F(AudioRecordVCTest, LevelsReachTheWaveTenTimesASecond) {
    int strips = 0;
    QObject::connect(screen.waveViewMirror(), &WaveView::needsDisplay, screen.waveViewMirror(),
                     [&strips] { ++strips; });
    tapRecord();
    recorders.last()->capture(4800, 0.0F);
    runLoop.advance(0.1);
    EXPECT_EQ(screen.waveViewMirror()->mirrorBar(), QRectF(0, 0, 1, 200));
    recorders.last()->capture(4800, -100.0F);
    runLoop.advance(0.95);
    EXPECT_EQ(screen.waveViewMirror()->mirrorBar(), QRectF(9, 99, 1, 2));
    EXPECT_EQ(strips, 10);
    tapStop();
    EXPECT_EQ(screen.waveViewMirror()->newPoint(), QPointF(0, 100));
}

TEST_F(AudioRecordVCTest, WhatStandsInTheWayIsSaidInOneAlert) {
    enum Obstacle { Refused, NoCategory, NoRecorder, NoInput };
    // After a failed start the tab bar stays disabled and the label visible until the next successful stop.
    const QString abandoned = QStringLiteral("00 rec_normal.png 000");
    const struct {
        Obstacle obstacle;
        QString alert;
        QString state;
    } cases[] = {{Refused, QStringLiteral("microphone_denied/access_device_microphone"), kIdle},
                 {NoCategory, QStringLiteral("alert_title/no server"), abandoned},
                 {NoRecorder, QStringLiteral("alert_title/no file"), abandoned},
                 {NoInput, QStringLiteral("audio_hardware_alert_title/audio_hardware_alert_message"), abandoned}};
    std::size_t alerts = 0;
    for (const auto& row : cases) {
        SCOPED_TRACE(row.alert.toStdString());
        session.categoryResult = row.obstacle == NoCategory ? failure(QStringLiteral("no server")) : Result<void>{};
        recorders.creation = row.obstacle == NoRecorder ? failure(QStringLiteral("no file")) : Result<void>{};
        session.inputAvailable = row.obstacle != NoInput;
        screen.playAndPauseRecording(nullptr);
        session.answer(row.obstacle != Refused);
        runLoop.drain();
        EXPECT_EQ(state(), row.state);
        EXPECT_EQ(lastAlert(), row.alert);
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
    EXPECT_EQ(lastAlert(), QStringLiteral("alert_title/unplugged"));
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
    screen.playAndPauseRecording(nullptr);
    session.answer(true);
    runLoop.drain();
    EXPECT_EQ(state(), kRecording);
    EXPECT_EQ(documents().size(), 1);
    runLoop.advance(1.0);
    screen.finishBeforeTermination();
    EXPECT_EQ(documents().size(), 2) << "the program ended without the recording";
}

TEST_F(AudioRecordVCTest, FollowsTheSettingsOfTheMoment) {
    settings.setAudioFileType(QStringLiteral("wav"));
    settings.setAudioQualityType(QStringLiteral("Low"));
    tapRecord();
    EXPECT_EQ(recorders.lastPath, container.cachesPath() + QStringLiteral("/vexmosounds.wav"));
    EXPECT_EQ(recorders.lastSettings.formatID, kAudioFormatLinearPCM);
    tapStop();
    EXPECT_EQ(documents(), QStringList{QStringLiteral("2024_Mar_05_14_03_59.wav")});
    // A second recording of the same second finds its name taken; on purpose it stays where the next start removes it.
    tapRecord();
    tapStop();
    EXPECT_EQ(documents().size(), 1);
    EXPECT_TRUE(QFile::exists(recorders.lastPath));
    EXPECT_TRUE(presenter.alerts.empty());
}

TEST_F(AudioRecordVCTest, MailsWhatIsNotTooLarge) {
    const struct {
        qint64 bytes;
        bool canSend;
        std::size_t mails;
        std::size_t alerts;
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
    EXPECT_EQ(lastAlert(), QStringLiteral("alert_error/file_size_msg"));
    EXPECT_EQ(mail.messages[0].attachments[0].mimeType, QStringLiteral("audio/m4a"));
    EXPECT_EQ(mail.messages[0].attachments[0].fileName, QStringLiteral("2024_Mar_05_14_03_59.m4a"));
}

TEST_F(AudioRecordVCTest, ListensToTheCompanionsOnceAChannelIsAttached) {
    FakeWormhole wormhole;
    screen.setWormhole(&wormhole);
    screen.viewWillAppear();
    wormhole.listeners[QStringLiteral("Stop")]({});
    runLoop.drain();
    EXPECT_TRUE(documents().isEmpty());
    wormhole.listeners[QStringLiteral("Record")]({});
    session.answer(true);
    runLoop.drain();
    EXPECT_EQ(state(), kRecording);
    wormhole.listeners[QStringLiteral("Stop")]({});
    runLoop.drain();
    EXPECT_EQ(state(), QStringLiteral("00 rec_normal.png 001")) << "a stop from afar leaves the tab bar disabled";
    EXPECT_EQ(documents().size(), 1);
    wormhole.listeners[QStringLiteral("ChangeRecord")](QStringLiteral("hello"));
    EXPECT_EQ(lastAlert(), QStringLiteral("hello/"));
}

}  // namespace tavi::test
