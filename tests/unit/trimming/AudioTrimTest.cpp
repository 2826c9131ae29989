#include "trimming/AudioTrim.h"

#include <gmock/gmock.h>

#include "support/FakeServices.h"
#include "support/Printers.h"

namespace tavi::test {
namespace {

class AudioTrimTest : public ::testing::Test, protected FakeServices {
protected:
    AudioTrimTest() {
        assets.files["talk.wav"] = {{20 * 44100, 44100}, 1, {}};
        players.seconds["talk.wav"] = 20.0;
    }

    std::unique_ptr<AudioTrim> open(const char* section, const char* name = "talk.wav") {
        auto screen = std::make_unique<AudioTrim>(AudioTrim::Services{.exports = assets,
                                                                      .readers = assets,
                                                                      .players = players,
                                                                      .settings = settings,
                                                                      .container = container,
                                                                      .presenter = presenter,
                                                                      .runLoop = runLoop},
                                                  QFile::encodeName(container.documentsPath()) + '/' + name,
                                                  QLatin1String(section));
        screen->setTrimDelegate([this] { ++reloads; });
        screen->setSaveToCloud([this](const QByteArray&, const QString& file) { saved.append(file); });
        QObject::connect(screen.get(), &AudioTrim::closed, screen.get(), [this] { ++closings; });
        screen->viewDidLoad();
        // 10 points a second.
        screen->rangeSlider()->setFrame({0.0, 0.0, 240.0, 120.0});
        for (const auto& [from, to] : {std::pair{40.0, 47.0}, {200.0, 119.0}}) {
            screen->rangeSlider()->press(from, 60.0);
            screen->rangeSlider()->drag(to, 60.0);
            screen->rangeSlider()->release();
        }
        return screen;
    }

    FakePresenter presenter;
    int reloads = 0;
    int closings = 0;
    QStringList saved;
};

TEST_F(AudioTrimTest, ExportsWholeSecondsAsM4aAndClosesOrSavesToTheCloud) {
    struct Case {
        bool isCloudOn;
        const char* section;
        bool saves;
    };
    const QString output = QStringLiteral("Trim_2024_Mar_05_14_03_59.wav");
    // The setting is on where nothing goes to the cloud; only a recording of the cloud's is saved there.
    for (const auto& [isCloudOn, section, saves] : {Case{true, "1", true}, {true, "0", false}, {false, "1", false}}) {
        SCOPED_TRACE(::testing::Message() << isCloudOn << section);
        settings.setCloudSyncOn(isCloudOn);
        closings = reloads = 0;
        saved.clear();
        const auto screen = open(section);
        EXPECT_NEAR(screen->leftValue(), 2.7, 1e-5);
        EXPECT_NEAR(screen->rightValue(), 9.9, 1e-5);
        screen->trimAudio();
        EXPECT_EQ(closings, saves ? 0 : 1);
        EXPECT_EQ(assets.sessions.back()->preset, AssetExportPreset::AppleM4A);
        EXPECT_EQ(assets.sessions.back()->outputFileType, AssetFileType::AppleM4A) << "whatever the name";
        EXPECT_EQ(assets.sessions.back()->timeRange, (AssetTimeRange{{2, 1}, {7, 1}}));
        runLoop.advance(0.6);
        EXPECT_EQ(reloads, 2) << "when it is exported, and half a second after the start";
        EXPECT_TRUE(saved.isEmpty());
        runLoop.advance(1.5);
        EXPECT_EQ(saved, saves ? QStringList(output) : QStringList());
    }
}

TEST_F(AudioTrimTest, PlaysWhatWasCutAndAsksBeforeItLeaves) {
    settings.setCloudSyncOn(true);
    const auto screen = open("1");
    screen->playTrimmedAudio();
    EXPECT_TRUE(screen->btnPlay().selected) << "the recording, as nothing is cut";
    screen->playOriginalAudio();
    EXPECT_EQ(runLoop.activeTimers(), 0U);
    screen->trimAudio();
    runLoop.drain();
    players.seconds[screen->outputPath().split('/').back()] = 7.0;
    screen->playTrimmedAudio();
    EXPECT_EQ(screen->lblDuration(), QStringLiteral("00:07"));
    runLoop.advance(7.5);
    EXPECT_FALSE(screen->btnPlay().selected) << "the end";
    screen->backButtonpressed();
    EXPECT_EQ(closings, 0);
    presenter.alerts.at(0).actions[0].handler();
    EXPECT_EQ(closings, 1);
}

TEST_F(AudioTrimTest, WithoutSoundExportsNothingAndClosesAsAfterATrim) {
    const auto screen = open("0", "text.txt");
    screen->playOriginalAudio();
    screen->trimAudio();
    EXPECT_TRUE(assets.sessions.empty());
    EXPECT_EQ(closings, 1);
}

}  // namespace
}  // namespace tavi::test
