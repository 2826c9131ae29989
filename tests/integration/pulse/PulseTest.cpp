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

struct Pulse : ::testing::Test {
    std::unique_ptr<AudioInput> opened(CollectingListener& listener) {
        return std::move(PulseAudioInputs(m_connection).open(listener).value());
    }
    /// Another microphone comes, "second" to the server and "Headset" to people.
    void plugHeadset() const {
        m_server.pactl(
            "load-module module-remap-source source_name=second master=mic_sink.monitor rate=16000 "
            "channels=1 channel_map=mono source_properties=device.description=Headset");
    }
    /// Whether the microphone may be used, as the user is told.
    static bool isPermitted(AudioSession& session) {
        std::promise<bool> answer;
        session.requestRecordPermission([&answer](bool granted) { answer.set_value(granted); });
        return answer.get_future().get();
    }

    PrivatePulse m_server;
    std::shared_ptr<PulseConnection> m_connection = std::make_shared<PulseConnection>();
    PulseAudioSession m_session{m_connection};
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
        const auto isHeard = [level = loudness](const CollectingListener::Heard& heard) {
            return std::count_if(heard.samples.begin(), heard.samples.end(), [=](float x) { return x >= level; }) > 100;
        };
        EXPECT_TRUE(listener.waitFor(isHeard)) << channels;
        const CollectingListener::Heard heard = listener.heard();
        EXPECT_EQ(heard.format.sampleRate, rate);
        ASSERT_EQ(heard.format.channels, std::min(channels, 2));
        for (std::size_t i = 1; channels > 1 && i < heard.samples.size(); i += 2) {
            ASSERT_EQ(heard.samples[i], 0.0F) << "on the second channel of " << channels;
        }
    }
}

TEST_F(Pulse, SegmentsAreWholeAndAsLongAsTheInputRan) {
    constexpr int kRate = 48000;
    const ProcessHandle player = m_server.play(countingFrames(kRate * 30), kRate, 2);
    CollectingListener listener;
    const auto input = opened(listener);
    input->pause();  // It is paused: nothing to answer.
    input->resume();
    input->resume();
    ASSERT_TRUE(listener.waitFor([](const CollectingListener::Heard& heard) {
        return !heard.samples.empty() && heard.samples[heard.samples.size() - 2] != 0;
    }));
    input->pause();
    input->pause();
    ASSERT_TRUE(listener.waitForEvents("pause", 1));
    // Ran and rested for these milliseconds.
    const std::pair<int, int> segments[] = {{310, 230}, {50, 400}, {170, 0}, {130, 0}, {0, 0}, {0, 0}};
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
    ASSERT_TRUE(listener.waitForEvents("pause", 7));

    const CollectingListener::Heard heard = listener.heard();
    EXPECT_EQ(heard.pausedAt.size(), 7U);
    EXPECT_EQ(heard.events.first(3).join(QLatin1Char(' ')), QStringLiteral("open sound pause"));
    const std::vector<long> numbers = countedFrames(heard.samples);
    // What may be off could swallow any of them, but not the longest.
    EXPECT_GT(heard.pausedAt[1], heard.pausedAt[0]);
    for (std::size_t segment = 0; segment < std::size(segments); ++segment) {
        const std::size_t begin = heard.pausedAt[segment];
        const std::size_t end = heard.pausedAt[segment + 1];
        EXPECT_NEAR(static_cast<double>(end - begin) / kRate, ran[segment], kStall) << segment;
        for (std::size_t i = begin; i < end; ++i) {
            // What was heard in a pause is left out.
            const long step = numbers[i] - numbers[i - 1];
            ASSERT_TRUE(step == 1 || (step > 1 && i == begin)) << "in segment " << segment << " at " << i - begin;
        }
    }
}

TEST_F(Pulse, PausesAtTheFrameThatIsInTheDevice) {
    // A device that hands over 80 ms at a time and knows its latency. Its silence is as long as sound would be.
    m_server.pactl("load-module module-null-source rate=48000 source_name=device");
    m_server.pactl("set-default-source device");
    CollectingListener listener;
    const auto input = opened(listener);
    std::vector<double> misses;
    QElapsedTimer clock;
    for (int i = 0; i < 8; ++i) {
        const std::size_t before = listener.heard().frames();
        clock.start();
        input->resume();
        QThread::msleep(120 + 17 * static_cast<unsigned long>(i));
        input->pause();
        const double ran = static_cast<double>(clock.nsecsElapsed()) / 1e9;
        ASSERT_TRUE(listener.waitForEvents("pause", i + 1));
        misses.push_back(std::abs(static_cast<double>(listener.heard().frames() - before) / 48000 - ran));
    }
    // This kind of device keeps its very first block to itself for the case of a rewind.
    std::sort(misses.begin() + 1, misses.end());
    EXPECT_LT(misses[4], 0.01);
}

TEST_F(Pulse, SaysWhyAnInputFailsAndGoesOnWithAnotherMicrophone) {
    const QByteArray address = qgetenv("PULSE_SERVER");
    const std::function<void()> nothing = [] {};
    const std::function<void()> endServer = [this] { m_server.kill(); };
    const std::function<void()> startServer = [this] { m_server.start(); };
    const std::function<void()> unplug = [this] { m_server.removeMicrophones(); };
    const std::function<void()> plug = [this] { m_server.setMicrophone(48000, 2); };
    const struct {
        const char* failure;
        /// Before the input is opened, while it runs, and while it is paused.
        const char* times;
        std::function<void()> harm, repair;
    } cases[] = {
        {"error_microphone_missing", "b", unplug, plug},
        {"error_sound_server_missing", "b", endServer, startServer},
        {"error_sound_server_refused", "b", [this] { qputenv("PULSE_SERVER", m_server.refusingAddress()); },
         [&address] { qputenv("PULSE_SERVER", address); }},
        {"error_sound_server_stopped", "rp", endServer, startServer},
        {"error_microphone_disconnected", "rp", unplug, plug},
        {"error_microphone_disconnected", "rp", [this] { m_server.moveRecording("speaker.monitor"); }, nothing},
        {"", "r",
         [this] {
             // As a headset's other profile.
             plugHeadset();
             m_server.moveRecording("second");
         },
         nothing},
        {"", "r",
         [this] {
             m_server.pactl("suspend-source microphone 1");
             QThread::msleep(300);
             m_server.pactl("suspend-source microphone 0");
         },
         nothing},
    };
    QStringList names;
    for (const auto& item : cases) {
        for (const char time : std::string(item.times)) {
            SCOPED_TRACE(std::string(item.failure) + time);
            m_connection = std::make_shared<PulseConnection>();
            CollectingListener listener;
            time == 'b' ? item.harm() : void();
            const auto input = opened(listener);
            input->resume();
            ASSERT_TRUE(time == 'b' || listener.waitForFrames(1));
            if (time == 'p') {
                input->pause();
                ASSERT_TRUE(listener.waitForEvents("pause", 1));
            }
            time == 'b' ? void() : item.harm();
            if (*item.failure == '\0') {
                EXPECT_TRUE(listener.waitForFrames(listener.heard().frames() + 24000));
                names.append(input->deviceName());
            } else {
                EXPECT_TRUE(listener.waitForEvents("fail", 1));
                const auto before = listener.heard().events;
                input->pause();
                input->resume();
                QThread::msleep(100);
                EXPECT_EQ(listener.heard().events, before) << "it is not silent after its end";
            }
            EXPECT_EQ(listener.heard().failure, QLatin1String(item.failure));
            item.repair();
        }
    }
    EXPECT_EQ(names.value(0), QStringLiteral("Headset"));
}

TEST_F(Pulse, RecordsFromThePreferredMicrophoneAsLongAsItIsThere) {
    // A call may be under way on the server's thread when the listener is taken away.
    const auto changes = std::make_shared<std::atomic<int>>(0);
    m_session.setInputsListener([changes] { ++*changes; });
    m_session.setPreferredInput(QStringLiteral("second"));
    ASSERT_TRUE(isPermitted(m_session));
    const QString usual = m_session.currentInput().portName;
    EXPECT_EQ(m_session.availableInputs().size(), 1U);
    EXPECT_EQ(*changes, 1);
    plugHeadset();
    EXPECT_TRUE(QTest::qWaitFor([&] { return m_session.currentInput().portName == QLatin1String("Headset"); }));
    EXPECT_EQ(m_session.availableInputs().size(), 2U);
    EXPECT_EQ(*changes, 2);

    CollectingListener listener;
    const auto input = opened(listener);
    input->resume();
    for (const char* preferred : {"second", "", "second", "speaker.monitor"}) {
        m_session.setPreferredInput(QLatin1String(preferred));
        const QString name = qstrcmp(preferred, "second") == 0 ? QStringLiteral("Headset") : usual;
        EXPECT_TRUE(QTest::qWaitFor([&] { return input->deviceName() == name; })) << preferred;
        EXPECT_TRUE(listener.waitForFrames(listener.heard().frames() + 8000));
    }
    m_server.kill();
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_session.availableInputs().empty(); }));
    m_session.setInputsListener({});
}

TEST_F(Pulse, TheSessionFollowsTheServer) {
    const auto setCategory = [this] {
        return m_session.setCategory(AudioSession::Category::PlayAndRecord, AudioSession::CategoryOption::None);
    };
    const auto route = [this] { return m_session.currentRoute().value_or(QStringLiteral("none")); };
    EXPECT_TRUE(isPermitted(m_session));
    EXPECT_TRUE(setCategory());
    EXPECT_TRUE(m_session.isInputAvailable());
    EXPECT_TRUE(m_session.serverName().startsWith(QStringLiteral("pulseaudio "))) << qPrintable(m_session.serverName());
    m_server.describeSpeaker("Desk");
    EXPECT_TRUE(QTest::qWaitFor([&route] { return route() == QLatin1String("Desk"); }));
    // There is nothing to choose from.
    for (const auto port : {AudioSession::PortOverride::None, AudioSession::PortOverride::Speaker}) {
        EXPECT_TRUE(m_session.overrideOutputAudioPort(port));
        EXPECT_EQ(route(), QStringLiteral("Desk"));
    }
    m_server.removeMicrophones();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !m_session.isInputAvailable(); }));
    EXPECT_TRUE(setCategory());

    m_server.kill();
    EXPECT_TRUE(QTest::qWaitFor([&route] { return route() == QLatin1String("none"); }));
    EXPECT_TRUE(isPermitted(m_session)) << "nobody refuses without a server";
    EXPECT_EQ(setCategory().error().text, QStringLiteral("error_sound_server_missing"));
    EXPECT_FALSE(m_session.overrideOutputAudioPort(AudioSession::PortOverride::Speaker));
    m_server.start();
    EXPECT_TRUE(QTest::qWaitFor([&] { return setCategory() && m_session.isInputAvailable(); }));

    qputenv("PULSE_SERVER", m_server.refusingAddress());
    m_connection = std::make_shared<PulseConnection>();
    PulseAudioSession refused(m_connection);
    EXPECT_FALSE(isPermitted(refused));
}

TEST_F(Pulse, APauseBeforeTheMicrophoneIsOpenCapturesNothing) {
    CollectingListener paused;
    CollectingListener running;
    const auto first = opened(paused);
    first->resume();
    first->pause();
    const auto second = opened(running);
    second->resume();
    ASSERT_TRUE(running.waitForFrames(24000));
    EXPECT_EQ(paused.heard().frames(), 0U);
    EXPECT_EQ(paused.heard().count("pause"), 1);
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
    for (unsigned long microseconds = 0; microseconds < 12'000; microseconds += 200) {
        auto input = opened(listener);
        input->resume();
        QThread::usleep(microseconds);
        if (microseconds % 400 == 0) {
            input->pause();
        }
        input.reset();
        const auto before = listener.heard().events;
        QThread::usleep(200);
        EXPECT_EQ(listener.heard().events, before);
    }
    const auto lastUser = PulseAudioInputs(std::make_shared<PulseConnection>()).open(listener);
    EXPECT_TRUE(lastUser);
}

}  // namespace
}  // namespace tavi::test
