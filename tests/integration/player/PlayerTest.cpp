#include <gtest/gtest.h>

#include <QFile>
#include <cmath>
#include <numbers>

#include "adapters/ffmpeg/FfmpegAudioTempo.h"
#include "adapters/player/FilePlayer.h"
#include "adapters/pulse/PulseAudioOutput.h"
#include "adapters/pulse/PulseConnection.h"
#include "adapters/qt/QtRunLoop.h"
#include "support/EventLoop.h"
#include "support/FakeExtAudioFile.h"
#include "support/PrivatePulse.h"
#include "support/SoundProbe.h"

namespace tavi::test {
namespace {

constexpr int kRate = 48000;
constexpr double kTone = 440.0;
constexpr std::int64_t kBlock = kRate / 100;
/// A tone of that height and half the full scale never steps further from one sample to the next.
const double kToneStep = 0.5 * 2.0 * std::numbers::pi * kTone / kRate;

/// Plays made-up recordings to a private sound server and listens to its speaker.
class PlayerTest : public ::testing::Test, public AudioPlayerDelegate {
protected:
    void audioPlayerDidFinishPlaying(AudioPlayer&, bool successfully) override { m_ends.push_back(successfully); }

    std::unique_ptr<AudioPlayer> made(double seconds, double startHertz, double endHertz, double rate = kRate) {
        m_sound = std::make_shared<FakeSound>();
        m_sound->rate = rate;
        std::vector<float>& samples = m_sound->planes.emplace_back();
        const auto frames = static_cast<std::size_t>(seconds * rate);
        for (std::size_t i = 0; i < frames; ++i) {
            const double time = static_cast<double>(i) / rate;
            const double turns = startHertz * time + (endHertz - startHertz) * time * time / (2.0 * seconds);
            samples.push_back(static_cast<float>(0.5 * std::sin(2.0 * std::numbers::pi * turns)));
        }
        m_files.sounds["recording"] = m_sound;
        auto player = m_players.playerWithContentsOfURL("recording");
        if (!player) {
            return nullptr;
        }
        (*player)->setDelegate(this);
        (*player)->setEnableRate(true);
        (*player)->prepareToPlay();
        return std::move(*player);
    }
    void listen() {
        m_path = m_folder.filePath(QStringLiteral("heard.raw"));
        m_listener = m_server.listen(m_path, 1);
    }
    /// What has been heard by now.
    std::vector<float> heard() {
        QFile file(m_path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        std::vector<float> samples(static_cast<std::size_t>(bytes.size()) / sizeof(float));
        std::memcpy(samples.data(), bytes.constData(), samples.size() * sizeof(float));
        return samples;
    }
    /// All that the speaker played until now, once it has been silent for a moment.
    std::vector<float> heardUntilSilence() {
        std::vector<float> samples;
        EXPECT_TRUE(spinUntil([&] {
            samples = heard();
            const std::size_t pause = kRate / 5;
            return samples.size() > pause && levelOf(std::span(samples).last(pause)) < -100.0;
        }));
        return samples;
    }
    static double loudest(std::span<const float> samples) {
        float value = 0.0F;
        for (const float sample : samples) {
            value = std::max(value, std::abs(sample));
        }
        return static_cast<double>(value);
    }
    /// Runs of loud blocks: first sample and number of samples.
    static std::vector<std::pair<std::size_t, std::size_t>> soundsIn(const std::vector<float>& samples) {
        std::vector<std::pair<std::size_t, std::size_t>> runs;
        for (std::size_t at = 0; at + kBlock <= samples.size(); at += kBlock) {
            if (loudest(std::span(samples).subspan(at, kBlock)) < 0.1) {
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
    static double largestStep(std::span<const float> samples) {
        float step = 0.0F;
        for (std::size_t i = 1; i < samples.size(); ++i) {
            step = std::max(step, std::abs(samples[i] - samples[i - 1]));
        }
        return static_cast<double>(step);
    }
    /// The frame of the recording that the samples begin with: the one near a guess where both agree best.
    std::int64_t placeOf(std::span<const float> samples, std::int64_t guess) const {
        std::int64_t best = -1;
        double least = 1e9;
        for (std::int64_t place = std::max<std::int64_t>(guess - kRate / 2, 0);
             place < guess + kRate / 2 && place + static_cast<std::int64_t>(samples.size()) <= m_sound->frames();
             ++place) {
            double sum = 0.0;
            for (std::size_t i = 0; i < samples.size() && sum < least; i += 3) {
                const auto difference =
                    static_cast<double>(samples[i] - m_sound->planes[0][static_cast<std::size_t>(place) + i]);
                sum += difference * difference;
            }
            if (sum < least) {
                least = sum;
                best = place;
            }
        }
        return least < 0.01 * static_cast<double>(samples.size()) / 3.0 ? best : -1;
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
    std::vector<bool> m_ends;
};

TEST_F(PlayerTest, KeepsThePitchAndTheTimeAtEveryRate) {
    for (const auto& [rate, tolerance] : {std::pair{1.0, 0.001}, {0.5, 0.01}, {2.0, 0.01}}) {
        const auto player = made(3.0, kTone, kTone, 44100.0);
        ASSERT_TRUE(player);
        listen();
        m_ends.clear();
        player->setRate(static_cast<float>(rate));
        ASSERT_TRUE(player->play());
        ASSERT_TRUE(spinUntil([&] { return !m_ends.empty(); }));
        EXPECT_EQ(player->currentTime(), 3.0);
        const std::vector<float> samples = heardUntilSilence();
        EXPECT_EQ(m_ends, std::vector<bool>{true});
        std::size_t played = 0;
        std::size_t longest = 0;
        const auto runs = soundsIn(samples);
        for (std::size_t i = 0; i < runs.size(); ++i) {
            played += runs[i].second;
            longest = runs[i].second > runs[longest].second ? i : longest;
        }
        EXPECT_NEAR(static_cast<double>(played) / kRate, 3.0 / rate, 0.06) << rate;
        const auto [first, length] = runs.at(longest);
        EXPECT_NEAR(frequencyOf(std::span(samples).subspan(first + kBlock, length - 2 * kBlock), kRate), kTone,
                    kTone * tolerance)
            << rate;
    }
}

TEST_F(PlayerTest, DoesNotClickWhereTheRateChanges) {
    const auto player = made(6.0, kTone, kTone);
    ASSERT_TRUE(player);
    listen();
    ASSERT_TRUE(player->play());
    for (const auto& [time, rate] : {std::pair{1.0, 2.0F}, {3.0, 0.5F}, {3.5, 1.0F}, {4.0, 2.0F}}) {
        ASSERT_TRUE(spinUntil([&] { return player->currentTime() >= time; }));
        player->setRate(rate);
        ASSERT_TRUE(player->isPlaying());
    }
    ASSERT_TRUE(spinUntil([&] { return !m_ends.empty(); }));
    const std::vector<float> samples = heardUntilSilence();
    const auto runs = soundsIn(samples);
    ASSERT_FALSE(runs.empty());
    if (runs.size() == 1) {
        // A machine that was too busy to play without gaps cannot tell.
        // The recording itself may end in the middle of a wave.
        const auto inner = std::span(samples).subspan(0, runs[0].first + runs[0].second - 2 * kBlock);
        EXPECT_LT(largestStep(inner), 2.0 * kToneStep);
        EXPECT_NEAR(frequencyOf(inner.subspan(runs[0].first + kBlock), kRate), kTone, kTone * 0.01);
    }
}

TEST_F(PlayerTest, GoesToTheExactFrameAndOnFromAPause) {
    const auto player = made(20.0, 300.0, 4300.0);
    ASSERT_TRUE(player);
    listen();
    ASSERT_TRUE(player->play());
    for (const double target : {12.0, 3.25, 17.5, 7.75}) {
        player->setCurrentTime(target);
        EXPECT_EQ(player->currentTime(), target);
        ASSERT_TRUE(spinUntil([&] { return player->currentTime() >= target + 0.5; }));
        player->pause();
        const double paused = player->currentTime();
        const std::vector<float> before = heardUntilSilence();
        EXPECT_EQ(player->currentTime(), paused);
        const auto sought = soundsIn(before).back();
        // The sound stops behind what was heard at the tap, however long that takes.
        const std::size_t tail = sought.first + sought.second - kRate / 10;
        const std::int64_t end =
            placeOf(std::span(before).subspan(tail, kRate / 20), std::llround(paused * kRate)) + kRate / 10;
        EXPECT_GE(static_cast<double>(end), paused * kRate - 2.0 * kBlock);

        ASSERT_TRUE(player->play());
        ASSERT_TRUE(spinUntil([&] { return player->currentTime() >= paused + 0.4; }));
        const std::vector<float> after = heard();
        const auto resumed = soundsIn(after).back();
        const auto first = std::span(after).subspan(resumed.first + kBlock, 2400);
        // The ramp hides where exactly the sound begins; the place of what follows is exact.
        EXPECT_NEAR(static_cast<double>(placeOf(first, std::llround(paused * kRate))), paused * kRate, 2.0 * kBlock);
    }
}

TEST_F(PlayerTest, GoesOnElsewhereAndEndsWhenTheServerOrTheFileGivesUp) {
    const auto player = made(60.0, kTone, kTone);
    ASSERT_TRUE(player);
    const auto playsOn = [&player] {
        const double before = player->currentTime();
        return player->play() && spinUntil([&] { return player->currentTime() >= before + 0.6; });
    };
    ASSERT_TRUE(playsOn());
    const QString inputs =
        m_server.pactl({QStringLiteral("list"), QStringLiteral("short"), QStringLiteral("sink-inputs")});
    m_server.pactl(
        {QStringLiteral("move-sink-input"), inputs.section(QLatin1Char('\t'), 0, 0), QStringLiteral("mic_sink")});
    EXPECT_TRUE(playsOn());
    EXPECT_TRUE(m_ends.empty());

    const auto ends = [&](std::size_t count) {
        const bool hasEnded = spinUntil([&] { return m_ends.size() >= count; });
        return hasEnded && !player->isPlaying() && m_ends == std::vector<bool>(count, false);
    };
    m_server.freeze();
    EXPECT_TRUE(ends(1));
    m_server.thaw();
    EXPECT_TRUE(playsOn());
    const double before = player->currentTime();
    m_server.kill();
    EXPECT_TRUE(ends(2));
    EXPECT_GE(player->currentTime(), before);
    ASSERT_TRUE(player->play());
    EXPECT_TRUE(ends(3));

    m_server.start();
    ASSERT_TRUE(playsOn());
    m_sound->readable = std::int64_t{40} * kRate;
    player->setCurrentTime(39.5);
    EXPECT_TRUE(ends(4));
    EXPECT_NEAR(player->currentTime(), 40.0, 0.1);
}

}  // namespace
}  // namespace tavi::test
