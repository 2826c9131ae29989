#include "adapters/recorder/CaptureRecorder.h"

#include <gmock/gmock.h>

#include <QDeadlineTimer>
#include <QtGlobal>
#include <atomic>
#include <cmath>
#include <thread>

#include "support/FakeAudioInput.h"
#include "support/ManualRunLoop.h"

namespace tavi::test {

namespace {

constexpr int kRate = 48000;

/// What the writers of one test were given.
struct Written {
    std::vector<float> samples;
    AudioInputFormat format;
    int finishes = 0;
    Result<void> writeResult;
    Result<void> finishResult;
    /// Held by a test to make the disk stall.
    std::mutex stall;
};

class FakeWriter : public AudioFileWriter {
public:
    explicit FakeWriter(Written& written) : m_written(written) {}

    Result<void> setInputFormat(const AudioInputFormat& format) override {
        m_written.format = format;
        return {};
    }
    Result<void> write(const float* interleaved, std::size_t frames) override {
        const std::lock_guard lock(m_written.stall);
        m_written.samples.insert(m_written.samples.end(), interleaved,
                                 interleaved + frames * static_cast<std::size_t>(m_written.format.channels));
        return m_written.writeResult;
    }
    Result<void> finish() override {
        ++m_written.finishes;
        return m_written.finishResult;
    }

private:
    Written& m_written;
};

class Listener : public AudioRecorderDelegate {
public:
    void audioRecorderDidFinishRecording(AudioRecorder&, const std::optional<Error>& error) override {
        ends.push_back(error ? error->text : QString());
    }

    std::vector<QString> ends;
};

class CaptureRecorderTest : public ::testing::Test {
protected:
    CaptureRecorderTest() {
        inputs.format = {kRate, 1};
        recorder = std::make_unique<CaptureRecorder>(inputs, std::make_unique<FakeWriter>(written), runLoop);
        recorder->setDelegate(&listener);
        recorder->setMeteringEnabled(true);
    }

    void deliver(float value, std::size_t frames) { inputs.last->deliver(std::vector<float>(frames, value)); }

    ManualRunLoop runLoop;
    FakeAudioInputs inputs;
    Written written;
    Listener listener;
    std::unique_ptr<CaptureRecorder> recorder;
};

}  // namespace

TEST_F(CaptureRecorderTest, KeepsEveryFrameOfTheRunningTimeAndJoinsPausesWithoutAStep) {
    ASSERT_TRUE(recorder->record());
    deliver(1.0F, 1000);
    recorder->pause();
    deliver(0.5F, 700);
    ASSERT_TRUE(recorder->record());
    deliver(-1.0F, 30000);
    recorder->pause();
    recorder->pause();
    recorder->stop();
    recorder->waitUntilFinished();

    ASSERT_EQ(written.samples.size(), 31000U);
    EXPECT_EQ(recorder->framesRecorded(), 31000);
    float largestStep = 0.0F;
    for (std::size_t i = 1; i < written.samples.size(); ++i) {
        largestStep = std::max(largestStep, std::abs(written.samples[i] - written.samples[i - 1]));
    }
    EXPECT_LT(largestStep, 0.01F);
    EXPECT_EQ(written.samples[1000 - 241], 1.0F);
    EXPECT_EQ(written.samples[1000 + 241], -1.0F);
    // The last pause was followed by nothing, so the end is as it was captured.
    EXPECT_EQ(written.samples.back(), -1.0F);
    EXPECT_EQ(listener.ends, std::vector<QString>{QString()});
}

TEST_F(CaptureRecorderTest, StopTakesWhatTheInputStillOwesButWaitsNotForever) {
    inputs.answersPause = false;
    for (const bool answers : {true, false}) {
        Written file;
        Listener ears;
        CaptureRecorder other(inputs, std::make_unique<FakeWriter>(file), runLoop);
        other.setDelegate(&ears);
        other.record();
        deliver(0.25F, 100);
        other.pause();
        other.record();
        other.stop();
        deliver(0.25F, 50);
        runLoop.drain();
        EXPECT_TRUE(ears.ends.empty());
        if (answers) {
            inputs.last->finishPause();
        } else {
            runLoop.advance(1.0);
        }
        // The file is finished on another thread. The limit only ends a test that hangs.
        for (const QDeadlineTimer limit(20'000); ears.ends.empty() && !limit.hasExpired(); std::this_thread::yield()) {
            runLoop.drain();
        }
        EXPECT_EQ(ears.ends, std::vector<QString>{QString()});
        other.waitUntilFinished();
        EXPECT_EQ(ears.ends.size(), 1U);
        EXPECT_EQ(file.samples.size(), 150U);
    }
}

TEST_F(CaptureRecorderTest, EveryEndFinishesTheFileAndIsToldOnce) {
    const Result<void> bad = failure(QStringLiteral("told"));
    for (const char* fault : {"open", "input", "write", "finish", "unstarted"}) {
        SCOPED_TRACE(fault);
        const auto is = [fault](const char* name) { return qstrcmp(fault, name) == 0; };
        Written file;
        Listener ears;
        inputs.openResult = is("open") ? bad : Result<void>{};
        file.writeResult = is("write") ? bad : Result<void>{};
        file.finishResult = is("finish") ? bad : Result<void>{};
        CaptureRecorder other(inputs, std::make_unique<FakeWriter>(file), runLoop);
        other.setDelegate(&ears);
        const bool runs = !is("unstarted") && other.record();
        EXPECT_EQ(runs, !is("unstarted") && !is("open"));
        if (runs) {
            deliver(0.5F, 100);
        }
        if (is("input")) {
            inputs.last->fail(bad.error());
        }
        other.waitUntilFinished();
        other.stop();
        EXPECT_FALSE(other.record());
        runLoop.drain();
        EXPECT_EQ(file.finishes, 1);
        EXPECT_EQ(file.samples.size(), runs ? 100U : 0U);
        EXPECT_EQ(ears.ends, std::vector<QString>{QLatin1String(is("unstarted") ? "" : "told")});
    }
    // Dropped while it runs, a recorder still makes a whole file, and tells nobody any more.
    recorder->record();
    deliver(0.5F, 100);
    recorder.reset();
    runLoop.drain();
    EXPECT_EQ(written.finishes, 1);
    EXPECT_EQ(written.samples.size(), 100U);
    EXPECT_TRUE(listener.ends.empty());
}

TEST_F(CaptureRecorderTest, AStalledDiskLosesOnlyWhatMemoryCannotHoldAndThatIsLogged) {
    static std::atomic<bool> isLogged;
    isLogged = false;
    const auto old = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) {
        isLogged = isLogged || text.contains(QLatin1String("frames of the recording were lost"));
    });
    recorder->record();
    {
        const std::lock_guard stalled(written.stall);
        for (int second = 0; second < 15; ++second) {
            deliver(0.1F, kRate);
        }
    }
    const std::int64_t kept = recorder->framesRecorded();
    inputs.last->deliver(nullptr, 480);
    recorder->waitUntilFinished();
    qInstallMessageHandler(old);
    EXPECT_TRUE(isLogged);
    EXPECT_GE(kept, 10 * kRate);
    EXPECT_LT(kept, 12 * kRate);
    EXPECT_EQ(static_cast<std::int64_t>(written.samples.size()), recorder->framesRecorded());
}

TEST_F(CaptureRecorderTest, MetersThePowerOfWhatArrivedSinceTheLastUpdate) {
    recorder->record();
    for (const auto& [value, power] : {std::pair{0.5F, -6.02F}, {0.0F, -160.0F}, {2.0F, 0.0F}}) {
        deliver(value, 4800);
        for (int updates = 0; updates < 2; ++updates) {
            recorder->updateMeters();
            EXPECT_NEAR(recorder->averagePowerForChannel(0), power, 0.01F);
        }
    }
    EXPECT_EQ(recorder->averagePowerForChannel(1), -160.0F);
}

TEST(CaptureBuffer, TheEndThatIsSeenIsTheEndThatStays) {
    for (int round = 0; round < 3000; ++round) {
        CaptureBuffer buffer;
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
