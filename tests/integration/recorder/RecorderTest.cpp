#include <gtest/gtest.h>

#include "adapters/pulse/PulseAudioInput.h"
#include "adapters/pulse/PulseConnection.h"
#include "adapters/qt/QtRunLoop.h"
#include "adapters/recorder/CaptureRecorder.h"
#include "integration/ffmpeg/RecordingFixture.h"
#include "support/EventLoop.h"
#include "support/PrivatePulse.h"

namespace tavi::test {
namespace {

constexpr int kDeviceRate = 48000;
/// A sine that peaks at one half.
constexpr double kLevel = -9.03;

/// Records what a private sound server's microphone hears, through everything that the program records through.
class RecorderTest : public RecordingFixture, public AudioRecorderDelegate {
protected:
    void audioRecorderDidFinishRecording(AudioRecorder&, const std::optional<Error>& error) override {
        m_isFinished = true;
        EXPECT_FALSE(error) << error->text.toStdString();
    }

    ProcessHandle playTone(bool leftOnly) {
        QByteArray samples;
        for (const float value : tone({kDeviceRate, 2}, kDeviceRate, leftOnly)) {
            const auto sample = static_cast<qint16>(std::lround(value * 32767.0F));
            samples.append(reinterpret_cast<const char*>(&sample), sizeof(sample));
        }
        return m_server.play(samples.repeated(120), kDeviceRate, 2);
    }

    /// Records until that many frames of the tone are in; returns how many frames the recorder says it captured.
    std::int64_t record(const std::filesystem::path& path, const AudioRecordSettings& settings, std::int64_t frames) {
        auto recorder = m_recorders.recorderWithPath(path, settings);
        if (!recorder) {
            ADD_FAILURE() << recorder.error().text.toStdString();
            return 0;
        }
        m_isFinished = false;
        (*recorder)->setDelegate(this);
        (*recorder)->setMeteringEnabled(true);
        EXPECT_TRUE((*recorder)->record());
        EXPECT_TRUE(spinUntil([&] { return (*recorder)->framesRecorded() >= frames; }));
        (*recorder)->updateMeters();
        m_power = static_cast<double>((*recorder)->averagePowerForChannel(0));
        (*recorder)->stop();
        EXPECT_TRUE(spinUntil([&] { return m_isFinished; }));
        return (*recorder)->framesRecorded();
    }

    PrivatePulse m_server;
    QtRunLoop m_runLoop;
    PulseAudioInputs m_inputs{std::make_shared<PulseConnection>()};
    FfmpegAudioFileWriters m_writers;
    CaptureRecorders m_recorders{m_inputs, m_writers, m_runLoop};
    bool m_isFinished = false;
    double m_power = 0.0;
};

TEST_F(RecorderTest, EveryTypeAndQualityHoldsTheToneThatWasPlayed) {
    for (const bool leftOnly : {false, true}) {
        const ProcessHandle player = playTone(leftOnly);
        // The player has to be under way before what is recorded can be judged.
        for (m_power = -160.0; std::abs(m_power - kLevel) > 0.5;) {
            const auto first = folder() / "first.wav";
            record(first, {}, kDeviceRate / 5);
            std::filesystem::remove(first);
        }
        for (const Quality& quality : kQualities) {
            if (leftOnly && quality.channels == 1) {
                continue;
            }
            for (const Type& type : kTypes) {
                const auto path = pathFor(type, (leftOnly ? "left" : "both") + std::to_string(quality.value));
                SCOPED_TRACE(path);
                const std::int64_t captured = record(path, settingsFor(type, quality), kDeviceRate / 2);
                const std::optional<Sound> sound = decodeSound(path);
                ASSERT_TRUE(sound);
                EXPECT_EQ(sound->codec, type.codec);
                EXPECT_EQ(sound->rate, static_cast<int>(quality.rate));
                ASSERT_EQ(sound->channels, quality.channels);
                const double expected = static_cast<double>(captured) * quality.rate / kDeviceRate;
                const double frames = m_durations.durationOfFile(path) * quality.rate - type.priming;
                EXPECT_NEAR(frames, expected, type.packet + 1.0);
                const std::vector<float> played(sound->planes[0].begin() + type.priming, sound->planes[0].end());
                const auto left = steadyPartOf(middleOf(played), sound->rate);
                EXPECT_GT(left.size(), played.size() / 4);
                EXPECT_NEAR(frequencyOf(left, sound->rate), 1000.0, 1.0);
                EXPECT_NEAR(levelOf(left), kLevel, type.decibels);
                if (quality.channels == 2) {
                    const auto all = middleOf(sound->planes[1]);
                    const double right = levelOf(leftOnly ? all : steadyPartOf(all, sound->rate));
                    EXPECT_NEAR(right, leftOnly ? -200.0 : kLevel, leftOnly ? 130.0 : type.decibels);
                }
            }
        }
    }
}

TEST_F(RecorderTest, ALoneMicrophoneFeedsBothChannels) {
    m_server.setMicrophone(44100, 1);
    const ProcessHandle player = playTone(false);
    const auto path = folder() / "mono.wav";
    record(path, settingsFor(kTypes[1], kQualities[2]), 44100);
    const std::optional<Sound> sound = decodeSound(path);
    ASSERT_TRUE(sound && sound->channels == 2);
    EXPECT_EQ(sound->planes[0], sound->planes[1]);
    EXPECT_NEAR(levelOf(steadyPartOf(sound->planes[0], sound->rate)), kLevel, 1.5);
}

}  // namespace
}  // namespace tavi::test
