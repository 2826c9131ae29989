#include <gtest/gtest.h>

#include <QFile>
#include <cmath>
#include <numbers>

#include "adapters/ffmpeg/converting/FfmpegAudioTempo.h"
#include "adapters/player/FilePlayer.h"
#include "adapters/pulse/PulseAudioOutput.h"
#include "adapters/pulse/PulseConnection.h"
#include "adapters/qt/QtRunLoop.h"
#include "integration/SoundProbe.h"
#include "support/EventLoop.h"
#include "support/FakeExtAudioFile.h"
#include "support/PrivatePulse.h"

namespace tavi::test {
namespace {

constexpr int kRate = 48000;
constexpr double kTone = 440.0;
constexpr std::int64_t kBlock = kRate / 100;
/// The furthest that the tone goes from one sample to the next.
constexpr double kToneStep = 0.5 * 2.0 * std::numbers::pi * kTone / kRate;

/// Plays made-up recordings to a private sound server and listens to its speaker.
struct PlayerTest : ::testing::Test, AudioPlayerDelegate {
    void audioPlayerDidFinishPlaying(AudioPlayer& player, bool successfully) override {
        m_ends << (successfully ? QStringLiteral("whole") : player.error().text);
    }

    /// A player of as many seconds of a tone.
    std::unique_ptr<AudioPlayer> made(double seconds, int rate = kRate, std::size_t channels = 1) {
        m_sound = std::make_shared<FakeSound>();
        m_sound->rate = rate;
        std::vector<float> samples;
        for (double i = 0.0; i < seconds * rate; ++i) {
            samples.push_back(static_cast<float>(0.5 * std::sin(2.0 * std::numbers::pi * kTone * i / rate)));
        }
        m_sound->planes.assign(channels, samples);
        m_files.sounds["recording"] = m_sound;
        auto player = std::move(m_players.playerWithContentsOfURL("recording").value());
        player->setDelegate(this);
        player->setEnableRate(true);
        player->prepareToPlay();
        return player;
    }
    void listen() {
        m_path = m_folder.filePath(QStringLiteral("heard.raw"));
        m_listener.reset();
        m_listener = m_server.listen(m_path, 1);
    }
    /// All that the speaker played until now, once it has been silent for a moment.
    std::vector<float> heardUntilSilence() {
        std::vector<float> samples;
        EXPECT_TRUE(spinUntil([&] {
            QFile file(m_path);
            EXPECT_TRUE(file.open(QIODevice::ReadOnly));
            const QByteArray bytes = file.readAll();
            samples.resize(static_cast<std::size_t>(bytes.size()) / sizeof(float));
            std::memcpy(samples.data(), bytes.constData(), samples.size() * sizeof(float));
            const std::size_t pause = kRate / 5;
            return samples.size() > pause && levelOf(std::span(samples).last(pause)) < -100.0;
        }));
        return samples;
    }
    /// Runs of loud blocks: first sample and number of samples.
    static std::vector<std::pair<std::size_t, std::size_t>> soundsIn(const std::vector<float>& samples) {
        std::vector<std::pair<std::size_t, std::size_t>> runs;
        for (std::size_t at = 0; at + kBlock <= samples.size(); at += kBlock) {
            if (levelOf(std::span(samples).subspan(at, kBlock)) < -23.0) {
                continue;
            }
            if (!runs.empty() && runs.back().first + runs.back().second == at) {
                runs.back().second += kBlock;
            } else {
                runs.emplace_back(at, kBlock);
            }
        }
        return runs;
    }

    PrivatePulse m_server;
    QTemporaryDir m_folder;
    QString m_path;
    ProcessHandle m_listener;
    FakeExtAudioFiles m_files;
    FfmpegAudioTempos m_tempos;
    QtRunLoop m_runLoop;
    PulseAudioOutputs m_outputs{std::make_shared<PulseConnection>()};
    FilePlayers m_players{m_files, m_tempos, m_outputs, m_runLoop};
    std::shared_ptr<FakeSound> m_sound;
    /// How each playing has ended.
    QStringList m_ends;
};

TEST_F(PlayerTest, KeepsThePitchAndGoesOnInPlaceWithoutAClickWhereTheRateChanges) {
    for (const double rate : {2.0, 0.5}) {
        const auto player = made(3.0);
        listen();
        m_ends.clear();
        ASSERT_TRUE(player->play());
        ASSERT_TRUE(spinUntil([&] { return player->currentTime() >= 1.0; }));
        const double place = player->currentTime();
        player->setRate(static_cast<float>(rate));
        ASSERT_TRUE(spinUntil([&] { return !m_ends.isEmpty(); }));
        EXPECT_EQ(player->currentTime(), 3.0);
        const std::vector<float> samples = heardUntilSilence();
        EXPECT_EQ(m_ends, QStringList{QStringLiteral("whole")});
        std::size_t played = 0;
        std::pair<std::size_t, std::size_t> longest;
        const auto runs = soundsIn(samples);
        for (const auto& run : runs) {
            played += run.second;
            longest = run.second > longest.second ? run : longest;
        }
        EXPECT_NEAR(static_cast<double>(played) / kRate, place + (3.0 - place) / rate, 0.1) << rate;
        const auto [first, length] = longest;
        EXPECT_NEAR(frequencyOf(std::span(samples).subspan(first + kBlock, length - 2 * kBlock), kRate), kTone,
                    kTone * 0.01)
            << rate;
        // A machine that was too busy to play without gaps cannot tell.
        for (std::size_t i = 1; runs.size() == 1 && i < first + length - 2 * kBlock; ++i) {
            ASSERT_LT(std::abs(samples[i] - samples[i - 1]), 2.0 * kToneStep) << i - first;
        }
    }
    // More frames and channels than servers take.
    const auto large = made(0.5, 8 * kRate, 3);
    EXPECT_EQ(large->duration(), 0.5);
    m_ends.clear();
    ASSERT_TRUE(large->play());
    EXPECT_TRUE(spinUntil([&] { return m_ends == QStringList{QStringLiteral("whole")}; }));
}

TEST_F(PlayerTest, GoesOnElsewhereAndEndsWhenTheServerOrTheFileGivesUp) {
    const auto player = made(60.0);
    const auto playsOn = [&player] {
        const double before = player->currentTime();
        return player->play() && spinUntil([&] { return player->currentTime() >= before + 0.6; });
    };
    ASSERT_TRUE(playsOn());
    m_server.pactl("move-sink-input $(pactl list short sink-inputs | cut -f1) mic_sink");
    EXPECT_TRUE(playsOn());
    EXPECT_TRUE(m_ends.isEmpty());

    const auto endsWith = [&](const char* why) {
        const bool hasEnded = spinUntil([&] { return !m_ends.isEmpty(); });
        const QStringList ends = std::exchange(m_ends, {});
        return hasEnded && !player->isPlaying() && ends == QStringList{QLatin1String(why)};
    };
    m_server.freeze();
    EXPECT_TRUE(endsWith("error_sound_server_silent"));
    m_server.thaw();
    EXPECT_TRUE(playsOn());
    const double before = player->currentTime();
    m_server.kill();
    EXPECT_TRUE(endsWith("error_sound_server_stopped"));
    EXPECT_GE(player->currentTime(), before);
    ASSERT_TRUE(player->play());
    EXPECT_TRUE(endsWith("error_sound_server_missing"));

    m_server.start();
    EXPECT_TRUE(playsOn());
    m_sound->readable = static_cast<std::int64_t>(player->currentTime() + 5.0) * kRate;
    player->setCurrentTime(player->currentTime() + 4.0);
    EXPECT_TRUE(endsWith("error_recording_cut_short"));

    player->setCurrentTime(0.0);
    EXPECT_TRUE(playsOn());
    m_server.pactl("unload-module module-null-sink");
    EXPECT_TRUE(endsWith("error_output_missing"));
    ASSERT_TRUE(player->play());
    EXPECT_TRUE(endsWith("error_output_missing"));
}

}  // namespace
}  // namespace tavi::test
