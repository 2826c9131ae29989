#include "adapters/recorder/CaptureRecorder.h"

#include <gmock/gmock.h>

#include <QtGlobal>
#include <atomic>
#include <cmath>
#include <numbers>

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

    void deliver(float value, std::size_t frames) { inputs.lastInput()->deliver(std::vector<float>(frames, value)); }

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

TEST_F(CaptureRecorderTest, StopTakesWhatTheInputStillOwes) {
    inputs.answersPause = false;
    recorder->record();
    deliver(0.25F, 100);
    recorder->pause();
    recorder->record();
    recorder->stop();
    inputs.lastInput()->deliver(std::vector<float>(50, 0.25F));
    inputs.lastInput()->finishPause();
    recorder->waitUntilFinished();
    runLoop.drain();
    EXPECT_EQ(written.samples.size(), 150U);
    EXPECT_EQ(listener.ends.size(), 1U);
}

TEST_F(CaptureRecorderTest, AnInputThatNeverAnswersCannotHoldUpTheEnd) {
    inputs.answersPause = false;
    recorder->record();
    deliver(0.25F, 100);
    recorder->stop();
    EXPECT_TRUE(listener.ends.empty());
    runLoop.advance(1.0);
    recorder->waitUntilFinished();
    EXPECT_EQ(written.samples.size(), 100U);
    EXPECT_EQ(listener.ends.size(), 1U);
}

TEST_F(CaptureRecorderTest, EveryEndFinishesTheFileAndIsToldOnce) {
    enum Fault { OpenFails, InputFails, WriteFails, FinishFails, StoppedUnstarted };
    const struct {
        Fault fault;
        const char* told;
        std::size_t frames;
    } cases[] = {{OpenFails, "no input", 0},
                 {InputFails, "unplugged", 100},
                 {WriteFails, "disk full", 100},
                 {FinishFails, "no room", 100},
                 {StoppedUnstarted, "", 0}};
    for (const auto& row : cases) {
        SCOPED_TRACE(row.told);
        Written file;
        Listener ears;
        inputs.openResult = row.fault == OpenFails ? failure(QStringLiteral("no input")) : Result<void>{};
        file.writeResult = row.fault == WriteFails ? failure(QStringLiteral("disk full")) : Result<void>{};
        file.finishResult = row.fault == FinishFails ? failure(QStringLiteral("no room")) : Result<void>{};
        CaptureRecorder other(inputs, std::make_unique<FakeWriter>(file), runLoop);
        other.setDelegate(&ears);
        if (row.fault != StoppedUnstarted) {
            EXPECT_EQ(other.record(), row.fault != OpenFails);
        }
        if (row.frames > 0) {
            deliver(0.5F, row.frames);
        }
        if (row.fault == InputFails) {
            inputs.lastInput()->fail(Error{QStringLiteral("unplugged")});
        }
        other.waitUntilFinished();
        other.stop();
        EXPECT_FALSE(other.record());
        runLoop.drain();
        EXPECT_EQ(file.finishes, 1);
        EXPECT_EQ(file.samples.size(), row.frames);
        EXPECT_EQ(ears.ends, std::vector<QString>{QString::fromLatin1(row.told)});
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

namespace {

std::atomic<int> g_lossMessages = 0;

void countLossMessages(QtMsgType, const QMessageLogContext&, const QString& text) {
    g_lossMessages += text.contains(QStringLiteral("frames of the recording were lost")) ? 1 : 0;
}

}  // namespace

TEST_F(CaptureRecorderTest, LossesAreCountedAndLogged) {
    g_lossMessages = 0;
    const QtMessageHandler old = qInstallMessageHandler(countLossMessages);
    recorder->record();
    {
        const std::lock_guard stalled(written.stall);
        for (int second = 0; second < 15; ++second) {
            deliver(0.1F, kRate);
        }
    }
    const std::int64_t kept = recorder->framesRecorded();
    inputs.lastInput()->deliver(nullptr, 480);
    recorder->waitUntilFinished();
    qInstallMessageHandler(old);
    EXPECT_GE(kept, 10 * kRate);
    EXPECT_LT(kept, 12 * kRate);
    EXPECT_GE(g_lossMessages, 1);
    EXPECT_EQ(static_cast<std::int64_t>(written.samples.size()), recorder->framesRecorded());
}

TEST_F(CaptureRecorderTest, MetersThePowerOfWhatArrivedSinceTheLastUpdate) {
    EXPECT_EQ(recorder->averagePowerForChannel(0), -160.0F);
    recorder->record();
    std::vector<float> sine(4800);
    for (std::size_t i = 0; i < sine.size(); ++i) {
        sine[i] = static_cast<float>(std::sin(2.0 * std::numbers::pi * 1000.0 * static_cast<double>(i) / kRate));
    }
    inputs.lastInput()->deliver(sine);
    deliver(0.0F, 4800);
    recorder->updateMeters();
    EXPECT_NEAR(recorder->averagePowerForChannel(0), -6.02F, 0.01F);
    recorder->updateMeters();
    EXPECT_NEAR(recorder->averagePowerForChannel(0), -6.02F, 0.01F);
    deliver(0.0F, 4800);
    recorder->updateMeters();
    EXPECT_EQ(recorder->averagePowerForChannel(0), -160.0F);
    deliver(2.0F, 100);
    recorder->updateMeters();
    EXPECT_EQ(recorder->averagePowerForChannel(0), 0.0F);
    EXPECT_EQ(recorder->averagePowerForChannel(1), -160.0F);
}

}  // namespace tavi::test
