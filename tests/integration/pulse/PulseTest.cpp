#include <gtest/gtest.h>

#include <QtCore/qtestsupport_core.h>
#include <QElapsedTimer>
#include <QThread>
#include <cmath>
#include <future>

#include "adapters/pulse/PulseAudioInput.h"
#include "adapters/pulse/PulseAudioSession.h"
#include "adapters/pulse/PulseConnection.h"
#include "support/CollectingListener.h"
#include "support/PrivatePulse.h"

namespace tavi::test {
namespace {

/// Seconds that the null sink's clock, which moves in blocks, may be off on a machine with much else to do.
constexpr double kStall = 0.5;

QByteArray raw(const std::vector<qint16>& samples) {
    return {reinterpret_cast<const char*>(samples.data()), static_cast<qsizetype>(samples.size() * sizeof(qint16))};
}

/// Stereo in which each frame tells its number, from 1: the low 15 bits on the left, the rest on the right.
QByteArray countingFrames(int count) {
    std::vector<qint16> samples;
    for (int i = 1; i <= count; ++i) {
        samples.push_back(static_cast<qint16>(i & 0x7fff));
        samples.push_back(static_cast<qint16>(i >> 15));
    }
    return raw(samples);
}

std::vector<long> countedFrames(const std::vector<float>& samples) {
    std::vector<long> numbers;
    for (std::size_t i = 0; i + 1 < samples.size(); i += 2) {
        numbers.push_back(std::lround(samples[i] * 32768.0F) + (std::lround(samples[i + 1] * 32768.0F) << 15));
    }
    return numbers;
}

class Pulse : public ::testing::Test {
protected:
    std::unique_ptr<AudioInput> opened(CollectingListener& listener) {
        auto input = PulseAudioInputs(connection()).open(listener);
        return input ? std::move(*input) : nullptr;
    }
    /// Made late: the environment that it reads belongs to each test.
    std::shared_ptr<PulseConnection> connection() {
        if (!m_connection) {
            m_connection = std::make_shared<PulseConnection>();
        }
        return m_connection;
    }

    PrivatePulse m_server;
    std::shared_ptr<PulseConnection> m_connection;
};

TEST_F(Pulse, RecordsInTheShapeOfTheDevice) {
    // Rate, channels, and how loud a quarter of the full scale on the first channel is at least: six become two.
    const std::tuple<int, int, float> devices[] = {{44100, 2, 0.25F}, {16000, 1, 0.25F}, {48000, 6, 0.07F}};
    for (const auto& [rate, channels, loudness] : devices) {
        m_server.setMicrophone(rate, channels);
        std::vector<qint16> frame(static_cast<std::size_t>(channels), 0);
        frame[0] = 8192;
        const ProcessHandle player = m_server.play(raw(frame).repeated(rate * 20), rate, channels);
        CollectingListener listener;
        const auto input = opened(listener);
        input->resume();
        ASSERT_TRUE(listener.waitFor([](const CollectingListener::Heard& heard) {
            return std::any_of(heard.samples.begin(), heard.samples.end(), [](float value) { return value != 0; });
        }));
        const CollectingListener::Heard heard = listener.heard();
        EXPECT_EQ(heard.format.sampleRate, rate);
        ASSERT_EQ(heard.format.channels, std::min(channels, 2));
        float peaks[2] = {};
        for (std::size_t i = 0; i < heard.samples.size(); ++i) {
            float& peak = peaks[i % static_cast<std::size_t>(heard.format.channels)];
            peak = std::max(peak, std::abs(heard.samples[i]));
        }
        EXPECT_GE(peaks[0], loudness) << channels;
        EXPECT_EQ(peaks[1], 0.0F) << channels;
    }
}

TEST_F(Pulse, SegmentsAreWholeAndAsLongAsTheInputRan) {
    constexpr int kRate = 48000;
    const ProcessHandle player = m_server.play(countingFrames(kRate * 30), kRate, 2);
    CollectingListener listener;
    const auto input = opened(listener);
    ASSERT_TRUE(listener.waitForEvents("open", 1));
    input->resume();
    ASSERT_TRUE(listener.waitFor([](const CollectingListener::Heard& heard) {
        return !heard.samples.empty() && heard.samples[heard.samples.size() - 2] != 0;
    }));
    input->pause();
    ASSERT_TRUE(listener.waitForEvents("pause", 1));
    // Ran and rested for these milliseconds; the last rest is none at all.
    const std::pair<int, int> segments[] = {{310, 230}, {50, 400}, {170, 0}, {130, 0}};
    std::vector<double> ran;
    QElapsedTimer clock;
    for (const auto& [running, resting] : segments) {
        clock.start();
        input->resume();
        QThread::msleep(static_cast<unsigned long>(running));
        input->pause();
        ran.push_back(static_cast<double>(clock.nsecsElapsed()) / 1e9);
        QThread::msleep(static_cast<unsigned long>(resting));
    }
    ASSERT_TRUE(listener.waitForEvents("pause", 5));

    const CollectingListener::Heard heard = listener.heard();
    const std::vector<long> numbers = countedFrames(heard.samples);
    // What may be off could swallow any of them, but not the longest.
    EXPECT_GT(heard.pausedAt[1], heard.pausedAt[0]);
    for (std::size_t segment = 0; segment < std::size(segments); ++segment) {
        const std::size_t begin = heard.pausedAt[segment];
        const std::size_t end = heard.pausedAt[segment + 1];
        EXPECT_NEAR(static_cast<double>(end - begin) / kRate, ran[segment], kStall) << segment;
        for (std::size_t i = begin + 1; i < end; ++i) {
            ASSERT_EQ(numbers[i], numbers[i - 1] + 1) << "in segment " << segment << " at " << i - begin;
        }
        if (segment > 0 && begin < end) {
            EXPECT_GT(numbers[begin], numbers[begin - 1]) << segment;
        }
    }
}

TEST_F(Pulse, PausesAtTheFrameThatIsInTheDevice) {
    // A device that hands over 80 ms at a time and knows its latency. Its silence is as long as sound would be.
    m_server.pactl("load-module module-null-source rate=48000 source_name=device");
    m_server.pactl("set-default-source device");
    CollectingListener listener;
    const auto input = opened(listener);
    std::vector<double> ran;
    QElapsedTimer clock;
    for (unsigned long i = 0; i < 8; ++i) {
        clock.start();
        input->resume();
        QThread::msleep(120 + 17 * i);
        input->pause();
        ran.push_back(static_cast<double>(clock.nsecsElapsed()) / 1e9);
        ASSERT_TRUE(listener.waitForEvents("pause", static_cast<int>(i) + 1));
    }
    // This kind of device keeps its very first block to itself for the case of a rewind.
    const std::vector<std::size_t> pausedAt = listener.heard().pausedAt;
    std::vector<double> misses;
    for (std::size_t i = 1; i < ran.size(); ++i) {
        misses.push_back(std::abs(static_cast<double>(pausedAt[i] - pausedAt[i - 1]) / 48000 - ran[i]));
    }
    std::nth_element(misses.begin(), misses.begin() + 3, misses.end());
    EXPECT_LT(misses[3], 0.01);
}

TEST_F(Pulse, TellsWhyItFails) {
    const struct {
        const char* text;
        std::function<void()> break_;
        std::function<void()> repair;
    } cases[] = {
        {"error_sound_server_stopped", [this] { m_server.kill(); }, [this] { m_server.start(); }},
        {"error_microphone_disconnected", [this] { m_server.removeMicrophones(); },
         [this] { m_server.setMicrophone(48000, 2); }},
        {"error_microphone_disconnected", [this] { m_server.moveRecording("speaker.monitor"); }, [] {}},
    };
    for (const bool isPaused : {false, true}) {
        for (const auto& item : cases) {
            CollectingListener listener;
            const auto input = opened(listener);
            input->resume();
            ASSERT_TRUE(listener.waitForFrames(1));
            if (isPaused) {
                input->pause();
                ASSERT_TRUE(listener.waitForEvents("pause", 1));
            }
            item.break_();
            EXPECT_TRUE(listener.waitForEvents("fail", 1)) << item.text << isPaused;
            EXPECT_EQ(listener.heard().failure, QLatin1String(item.text));
            EXPECT_EQ(listener.heard().count("fail"), 1);
            item.repair();
        }
    }
}

TEST_F(Pulse, GoesOnWithAnotherMicrophone) {
    m_server.pactl("load-module module-remap-source source_name=other_microphone master=mic_sink.monitor");
    CollectingListener listener;
    const auto input = opened(listener);
    input->resume();
    ASSERT_TRUE(listener.waitForFrames(1));
    m_server.moveRecording("other_microphone");
    const std::size_t before = listener.heard().frames();
    EXPECT_TRUE(listener.waitForFrames(before + 24000));
    EXPECT_EQ(listener.heard().count("fail"), 0);
}

TEST_F(Pulse, NeedsAServerAndAMicrophone) {
    {
        m_server.removeMicrophones();
        CollectingListener listener;
        const auto input = opened(listener);
        EXPECT_TRUE(listener.waitForEvents("fail", 1));
        EXPECT_EQ(listener.heard().failure, QStringLiteral("error_microphone_missing"));
    }
    m_server.kill();
    CollectingListener listener;
    const auto input = opened(listener);
    EXPECT_TRUE(listener.waitForEvents("fail", 1));
    EXPECT_EQ(listener.heard().failure, QStringLiteral("error_sound_server_missing"));

    m_server.start();
    EXPECT_TRUE(QTest::qWaitFor([this] {
        const auto found = PulseAudioSession(connection())
                               .setCategory(AudioSession::Category::PlayAndRecord, AudioSession::CategoryOption::None);
        return found && connection()->isInputAvailable();
    })) << "The server is found again once it is there.";
}

TEST_F(Pulse, AServerCanRefuse) {
    qputenv("PULSE_SERVER", m_server.refusingAddress());
    PulseAudioSession session(connection());
    std::promise<bool> answer;
    session.requestRecordPermission([&answer](bool granted) { answer.set_value(granted); });
    EXPECT_FALSE(answer.get_future().get());
    EXPECT_FALSE(session.isInputAvailable());
    CollectingListener listener;
    const auto input = opened(listener);
    EXPECT_TRUE(listener.waitForEvents("fail", 1));
    EXPECT_EQ(listener.heard().failure, QStringLiteral("error_sound_server_refused"));
}

TEST_F(Pulse, ThePauseOfAFrozenServerEnds) {
    CollectingListener listener;
    auto input = opened(listener);
    input->resume();
    ASSERT_TRUE(listener.waitForFrames(1));
    m_server.freeze();
    input->pause();
    EXPECT_TRUE(listener.waitForEvents("pause", 1));
    input->resume();
    input->pause();
    EXPECT_TRUE(listener.waitForEvents("pause", 2));
    m_server.thaw();
    const std::size_t before = listener.heard().frames();
    input->resume();
    EXPECT_TRUE(listener.waitForFrames(before + 24000));
    input->pause();
    EXPECT_TRUE(listener.waitForEvents("pause", 3));
    m_server.freeze();
    input.reset();
    m_server.thaw();
}

TEST_F(Pulse, InputsGoAwayInEveryState) {
    CollectingListener listener;
    const PulseAudioInputs unused(connection());
    for (unsigned long microseconds = 0; microseconds < 12'000; microseconds += 400) {
        for (const bool isPausing : {false, true}) {
            auto input = opened(listener);
            input->resume();
            QThread::usleep(microseconds);
            if (isPausing) {
                input->pause();
            }
            input.reset();
            const auto before = listener.heard().events;
            QThread::usleep(200);
            EXPECT_EQ(listener.heard().events, before);
        }
    }
    const auto forgotten = opened(listener);
    m_connection.reset();
}

}  // namespace
}  // namespace tavi::test
