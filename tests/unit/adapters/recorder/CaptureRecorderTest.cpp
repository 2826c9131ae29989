#include "adapters/recorder/CaptureRecorder.h"

#include <gmock/gmock.h>

#include <QDeadlineTimer>
#include <atomic>
#include <cmath>
#include <thread>

#include "support/FakeAudioInput.h"
#include "support/ManualRunLoop.h"

namespace tavi::test {

namespace {

constexpr int kRate = 48000;
/// Frames on either side of a seam in which the sound fades.
constexpr std::size_t kRamp = 240;

/// A recorder, what its writer is given, and what its delegate is told.
struct Recording : AudioRecorderDelegate {
    Recording(FakeAudioInputs& inputs, RunLoop& runLoop, double secondsHeld = 0.1)
        : held(secondsHeld),
          recorder(std::make_unique<CaptureRecorder>(inputs, std::make_unique<Writer>(*this), runLoop)) {
        recorder->setDelegate(this);
        recorder->setMeteringEnabled(true);
    }

    /// Seconds of sound that the codec keeps to itself.
    double held;
    /// The errors that it ended with, empty for none.
    std::vector<QString> ends;
    /// Held by a test to make the disk stall.
    std::mutex disk;
    std::vector<float> samples;
    Result<void> writeResult;
    Result<void> flushResult;
    Result<void> finishResult;
    /// Frames that a kill would leave, and how often the writer heard of a pause.
    std::atomic<std::size_t> framesKept = 0;
    std::atomic<int> pauses = 0;
    std::atomic<std::size_t> framesSynced = 0;
    int finishes = 0;
    std::unique_ptr<CaptureRecorder> recorder;

private:
    struct Writer : AudioFileWriter {
        explicit Writer(Recording& owner) : recording(owner) {}
        double secondsHeld() const override { return recording.held; }
        Result<void> setInputFormat(const AudioInputFormat&) override { return {}; }
        Result<void> write(const float* mono, std::size_t frames) override {
            const std::lock_guard lock(recording.disk);
            recording.samples.insert(recording.samples.end(), mono, mono + frames);
            return recording.writeResult;
        }
        Result<void> flush() override {
            const std::lock_guard lock(recording.disk);
            recording.framesKept = recording.samples.size();
            return recording.flushResult;
        }
        Result<void> pause() override {
            ++recording.pauses;
            return flush();
        }
        Result<void> sync() override {
            recording.framesSynced = recording.samples.size();
            return recording.flushResult;
        }
        Result<void> finish() override {
            ++recording.finishes;
            return recording.finishResult;
        }
        Recording& recording;
    };

    void audioRecorderDidFinishRecording(AudioRecorder&, const std::optional<Error>& error) override {
        ends.push_back(error ? error->text : QString());
    }
};

struct CaptureRecorderTest : ::testing::Test {
    CaptureRecorderTest() { inputs.format = {kRate, 1}; }

    void deliver(float value, std::size_t frames) {
        inputs.last->deliver(std::vector<float>(frames, value).data(), frames);
    }
    /// Waits for the thread that writes. The limit only ends a test that hangs.
    template <class Condition>
    bool becomes(Condition condition) {
        for (const QDeadlineTimer limit(20'000); !limit.hasExpired(); std::this_thread::yield()) {
            runLoop.drain();
            const std::lock_guard lock(recording.disk);
            if (condition()) {
                return true;
            }
        }
        return false;
    }

    ManualRunLoop runLoop;
    FakeAudioInputs inputs;
    Recording recording{inputs, runLoop};
    CaptureRecorder& recorder = *recording.recorder;
};

}  // namespace

TEST_F(CaptureRecorderTest, KeepsEveryFrameOfTheRunningTimeAndJoinsPausesWithoutAStep) {
    ASSERT_TRUE(recorder.record());
    deliver(1.0F, 1000);
    deliver(1.0F, 23800);
    recorder.pause();
    // What is written at once ends within the ramp before the seam.
    ASSERT_TRUE(becomes([&] { return recording.samples.size() == 24800 - kRamp; }));
    deliver(0.5F, 700);
    ASSERT_TRUE(recorder.record());
    deliver(-1.0F, 300);
    deliver(-1.0F, 30000);
    recorder.pause();
    recorder.pause();
    recorder.stop();
    recorder.waitUntilFinished();

    const std::vector<float>& written = recording.samples;
    ASSERT_EQ(written.size(), 55100U);
    EXPECT_EQ(recorder.framesRecorded(), 55100);
    float largestStep = 0.0F;
    for (std::size_t i = 1; i < written.size(); ++i) {
        largestStep = std::max(largestStep, std::abs(written[i] - written[i - 1]));
    }
    EXPECT_LT(largestStep, 0.01F);
    EXPECT_EQ(written[24800 - kRamp - 1], 1.0F);
    EXPECT_EQ(written[24800 + kRamp + 1], -1.0F);
    // The last pause was followed by nothing, so the end is as it was captured.
    EXPECT_EQ(written.back(), -1.0F);
    EXPECT_EQ(recording.ends, std::vector<QString>{QString()});
}

TEST_F(CaptureRecorderTest, WhatAKillCouldTakeIsWrittenSoonAndAtOnceAtAPause) {
    const std::tuple<std::size_t, double, std::size_t> cases[] = {
        {2400, 0.0, 400}, {3840, 0.1, 390}, {4800, 0.2, 290}, {2400, 0.384, 106}, {4800, 0.5, 100}};
    for (const auto& [fragment, held, milliseconds] : cases) {
        Recording other(inputs, runLoop, held);
        other.recorder->record();
        for (std::size_t captured = fragment; captured < 5U * kRate; captured += fragment) {
            deliver(0.5F, fragment);
            const std::size_t waiting =
                kRate / 1000 * (captured < kRate * 3 / 10 ? std::min<std::size_t>(300, milliseconds) : milliseconds);
            ASSERT_TRUE(becomes([&] { return other.framesKept + kRamp + waiting >= captured + fragment; })) << captured;
        }
        deliver(0.5F, 100);
        const auto isBroughtToDisk = [&] {
            auto until = std::make_shared<int>();
            const std::weak_ptr<int> isAwaited = until;
            other.recorder->bringToDisk(std::move(until));
            return becomes([&] { return isAwaited.expired(); });
        };
        ASSERT_TRUE(isBroughtToDisk());
        EXPECT_EQ(other.framesSynced, static_cast<std::size_t>(other.recorder->framesRecorded()) - kRamp);
        deliver(0.5F, 100);
        const auto captured = static_cast<std::size_t>(other.recorder->framesRecorded());
        other.recorder->pause();
        EXPECT_TRUE(becomes([&] { return other.pauses == 1 && other.framesKept == captured - kRamp; }));
        other.recorder->waitUntilFinished();
        EXPECT_TRUE(isBroughtToDisk()) << "nothing is left to write";
    }
}

TEST_F(CaptureRecorderTest, StopTakesWhatTheInputStillOwesButWaitsNotForever) {
    inputs.answersPause = false;
    for (const bool answers : {true, false}) {
        Recording other(inputs, runLoop);
        other.recorder->record();
        deliver(0.25F, 100);
        other.recorder->pause();
        other.recorder->record();
        other.recorder->stop();
        deliver(0.25F, 50);
        runLoop.drain();
        EXPECT_TRUE(other.ends.empty());
        answers ? inputs.last->finishPause() : runLoop.advance(1.0);
        EXPECT_TRUE(becomes([&] { return !other.ends.empty(); }));
        other.recorder->waitUntilFinished();
        EXPECT_EQ(other.ends, std::vector<QString>{QString()});
        EXPECT_EQ(other.samples.size(), 150U);
    }
}

TEST_F(CaptureRecorderTest, EveryEndFinishesTheFileAndIsToldOnce) {
    const Result<void> bad = failure(QStringLiteral("told"));
    for (const std::string fault : {"open", "input", "write", "flush", "finish", "unstarted", "dropped"}) {
        SCOPED_TRACE(fault);
        Recording other(inputs, runLoop);
        inputs.openResult = fault == "open" ? bad : Result<void>{};
        other.writeResult = fault == "write" ? bad : Result<void>{};
        other.flushResult = fault == "flush" ? bad : Result<void>{};
        other.finishResult = fault == "finish" ? bad : Result<void>{};
        const bool runs = fault != "unstarted" && other.recorder->record();
        EXPECT_EQ(runs, fault != "unstarted" && fault != "open");
        runs ? deliver(0.5F, 1000) : void();
        fault == "input" ? inputs.last->fail(bad.error()) : void();
        if (fault == "dropped") {
            other.recorder.reset();
            runLoop.drain();
            EXPECT_TRUE(other.ends.empty());
        } else {
            // The first four end it at once, the others when it is stopped.
            const bool isOver = fault == "open" || fault == "input" || fault == "write" || fault == "flush";
            EXPECT_TRUE(!isOver || becomes([&] { return !other.ends.empty(); }));
            other.recorder->waitUntilFinished();
            other.recorder->stop();
            EXPECT_FALSE(other.recorder->record());
            runLoop.drain();
            EXPECT_EQ(other.ends, std::vector<QString>{QLatin1String(fault == "unstarted" ? "" : "told")});
        }
        EXPECT_EQ(other.finishes, 1);
        EXPECT_EQ(other.samples.size(), !runs ? 0 : fault == "write" || fault == "flush" ? 1000 - kRamp : 1000);
    }
}

TEST_F(CaptureRecorderTest, AStalledDiskLosesOnlyWhatMemoryCannotHoldAndThatIsLogged) {
    static QString logged;
    const auto old =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) { logged = text; });
    recorder.record();
    {
        const std::lock_guard stalled(recording.disk);
        for (int second = 0; second < 15; ++second) {
            deliver(0.1F, kRate);
        }
    }
    const auto kept = static_cast<std::size_t>(recorder.framesRecorded());
    EXPECT_TRUE(becomes([&] { return recording.samples.size() == kept - kRamp; }));
    // What the sound system lost is silence of the same length.
    inputs.last->deliver(nullptr, 480);
    recorder.waitUntilFinished();
    qInstallMessageHandler(old);
    EXPECT_EQ(logged, QStringLiteral("%1 frames of the recording were lost so far").arg(15 * kRate - kept + 480));
    EXPECT_GE(kept, 10U * kRate);
    EXPECT_LT(kept, 12U * kRate);
    ASSERT_EQ(recording.samples.size(), kept + 480);
    EXPECT_THAT(std::vector(recording.samples.end() - 480, recording.samples.end()), ::testing::Each(0.0F));
}

TEST_F(CaptureRecorderTest, MetersThePowerOfWhatArrivedSinceTheLastUpdate) {
    inputs.format = {kRate, 2};
    recorder.record();
    const float frames[] = {0.5F, 0.25F, -0.5F, -0.25F};
    for (const auto& [gain, power] : {std::pair{1.0F, -6.02F}, {8.0F, 0.0F}, {0.0F, -160.0F}}) {
        const float heard[] = {gain * frames[0], gain * frames[1], gain * frames[2], gain * frames[3]};
        inputs.last->deliver(heard, 2);
        for (int updates = 0; updates < 2; ++updates) {
            recorder.updateMeters();
            EXPECT_NEAR(recorder.averagePowerForChannel(0), power, 0.01F);
            EXPECT_NEAR(recorder.averagePowerForChannel(1), gain == 1.0F ? -12.04F : power, 0.01F);
        }
    }
    EXPECT_EQ(recorder.averagePowerForChannel(2), -160.0F);
    EXPECT_TRUE(recorder.takeClipped() && !recorder.takeClipped());
}

TEST(CaptureBuffer, TheEndThatIsSeenIsTheEndThatStays) {
    for (int round = 0; round < 3000; ++round) {
        CaptureBuffer buffer(0.0);
        std::optional<Error> seen;
        std::thread encoder([&] {
            while (!buffer.isEnded()) {
                buffer.wait();
            }
            seen = buffer.error();
        });
        std::thread capture([&] { buffer.audioInputDidFail({QStringLiteral("gone")}); });
        buffer.requestEnd();
        capture.join();
        encoder.join();
        ASSERT_EQ(seen.has_value(), buffer.error().has_value());
    }
}

}  // namespace tavi::test
