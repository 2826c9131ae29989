#include <gtest/gtest.h>

#include <cmath>

#include "adapters/ffmpeg/recording/FfmpegAudioFileWriters.h"
#include "adapters/pulse/PulseAudioInput.h"
#include "adapters/pulse/PulseConnection.h"
#include "adapters/qt/QtRunLoop.h"
#include "adapters/recorder/CaptureRecorder.h"
#include "support/EventLoop.h"
#include "support/FakeAudioRecorder.h"
#include "support/ManualRunLoop.h"
#include "support/PrivatePulse.h"
#include "support/TemporaryContainer.h"

namespace tavi::test {
namespace {

struct FakeRecorderWorld {
    void hear() { recorders.last()->capture(4800, -17.5F); }
    void removeMicrophone() { recorders.last()->fail({QStringLiteral("gone")}); }
    template <class Condition>
    bool wait(Condition condition) {
        runLoop.advance(2.0);
        return condition();
    }

    ManualRunLoop runLoop;
    FakeAudioRecorders recorders{runLoop};
};

struct RealRecorderWorld {
    void hear() {}
    void removeMicrophone() { server.kill(); }
    template <class Condition>
    bool wait(Condition condition) {
        return spinUntil(condition);
    }

    PrivatePulse server;
    ProcessHandle player = server.play(QByteArray(48000 * 4 * 60, 0x11), 48000, 2);
    QtRunLoop runLoop;
    PulseAudioInputs inputs{std::make_shared<PulseConnection>()};
    FfmpegAudioFileWriters writers;
    CaptureRecorders recorders{inputs, writers, runLoop};
};

template <class World>
struct AudioRecorderContract : ::testing::Test, AudioRecorderDelegate {
    void audioRecorderDidFinishRecording(AudioRecorder&, const std::optional<Error>& error) override {
        m_ends.push_back(error ? error->text : QString());
    }
    std::unique_ptr<AudioRecorder> made() {
        auto recorder = std::move(m_world.recorders.recorderWithPath(m_path, {}).value());
        recorder->setDelegate(this);
        recorder->setMeteringEnabled(true);
        recorder->prepareToRecord();
        return recorder;
    }
    bool hearMore(const AudioRecorder& recorder) {
        const std::int64_t before = recorder.framesRecorded();
        m_world.hear();
        return m_world.wait([&] { return recorder.framesRecorded() > before; });
    }
    bool waitForEnd() {
        return m_world.wait([this] { return !m_ends.empty(); });
    }

    World m_world;
    TemporaryContainer m_container;
    std::filesystem::path m_path = m_container.cachesPath() / "vexmosounds.m4a";
    std::vector<QString> m_ends;
};

using Worlds = ::testing::Types<FakeRecorderWorld, RealRecorderWorld>;
TYPED_TEST_SUITE(AudioRecorderContract, Worlds);

TYPED_TEST(AudioRecorderContract, RecordsBetweenRecordAndStopAndTellsOnce) {
    const auto recorder = this->made();
    ASSERT_TRUE(recorder->record());
    EXPECT_TRUE(recorder->isRecording());
    ASSERT_TRUE(this->hearMore(*recorder));
    recorder->pause();
    EXPECT_FALSE(recorder->isRecording());
    ASSERT_TRUE(recorder->record());
    ASSERT_TRUE(this->hearMore(*recorder));
    EXPECT_TRUE(this->m_world.wait([&recorder] {
        recorder->updateMeters();
        return std::abs(recorder->averagePowerForChannel(0) + 17.5F) < 0.1F;
    }));
    recorder->stop();
    recorder->stop();
    EXPECT_FALSE(recorder->record());
    EXPECT_TRUE(this->m_ends.empty()) << "told before stop() returned";
    ASSERT_TRUE(this->waitForEnd());
    recorder->waitUntilFinished();
    EXPECT_EQ(this->m_ends, std::vector<QString>{QString()});
    EXPECT_GT(std::filesystem::file_size(this->m_path), 0U);
}

TYPED_TEST(AudioRecorderContract, TellsWhenTheMicrophoneIsGone) {
    const auto recorder = this->made();
    ASSERT_TRUE(recorder->record());
    ASSERT_TRUE(this->hearMore(*recorder));
    this->m_world.removeMicrophone();
    ASSERT_TRUE(this->waitForEnd());
    recorder->stop();
    EXPECT_EQ(this->m_ends.size(), 1U);
    EXPECT_FALSE(this->m_ends.front().isEmpty());
    EXPECT_FALSE(recorder->isRecording());
    EXPECT_GT(recorder->framesRecorded(), 0);
}

TYPED_TEST(AudioRecorderContract, WaitingEndsTheRecordingWhichNoOtherReplacesAndDroppingTellsNobody) {
    auto recorder = this->made();
    ASSERT_TRUE(recorder->record());
    recorder->waitUntilFinished();
    EXPECT_EQ(this->m_ends.size(), 1U);
    recorder.reset();
    EXPECT_FALSE(this->m_world.recorders.recorderWithPath(this->m_path, {}));
    ASSERT_TRUE(std::filesystem::remove(this->m_path));
    recorder = this->made();
    ASSERT_TRUE(recorder->record());
    recorder.reset();
    this->m_world.wait([tick = 0]() mutable { return ++tick > 3; });
    EXPECT_EQ(this->m_ends.size(), 1U);
}

}  // namespace
}  // namespace tavi::test
