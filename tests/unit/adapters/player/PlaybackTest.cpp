#include <gtest/gtest.h>

#include <cmath>
#include <optional>

#include "adapters/player/PlaybackFeed.h"
#include "adapters/player/PlaybackReader.h"
#include "support/ClientBuffers.h"
#include "support/FakeExtAudioFile.h"

namespace tavi::test {
namespace {

constexpr int kRate = 8000;
constexpr std::int64_t kLength = std::int64_t{20} * kRate;
constexpr std::int64_t kHeld = kRate / 4;
/// What the device has taken and nobody can replace.
constexpr std::int64_t kTaken = kRate / 40;
constexpr std::int64_t kRamp = kRate / 125;

/// Every frame of the recording has a value that tells its place; silence has none.
float valueOf(std::int64_t frame) {
    return static_cast<float>(frame + 1) / 1048576.0F;
}
double placeOf(float value) {
    return static_cast<double>(value) * 1048576.0 - 1.0;
}

/// Takes every other frame for the double rate, and each twice for the half.
struct FakeTempo : AudioTempo {
    Result<void> reset(double rate) override {
        m_rate = rate;
        m_waiting.clear();
        return {};
    }
    Result<void> push(const float* frames, std::size_t count) override {
        for (std::size_t i = 0; i < count; ++i) {
            for (auto copies = m_rate < 1.0 ? 2 : m_rate > 1.0 ? m_pushed++ % 2 : 1; copies > 0; --copies) {
                m_waiting.insert(m_waiting.end(), frames + 2 * i, frames + 2 * i + 2);
            }
        }
        return {};
    }
    Result<void> finish() override { return {}; }
    std::size_t take(float* frames, std::size_t capacity) override {
        const std::size_t count = std::min(capacity, m_waiting.size() / 2);
        std::copy_n(m_waiting.begin(), 2 * count, frames);
        m_waiting.erase(m_waiting.begin(), m_waiting.begin() + static_cast<std::ptrdiff_t>(2 * count));
        return count;
    }

private:
    double m_rate = 1.0;
    int m_pushed = 1;
    std::vector<float> m_waiting;
};

class FakeTempos : public AudioTempos {
    Result<std::unique_ptr<AudioTempo>> create(int, int) override { return std::make_unique<FakeTempo>(); }
};

/// A server whose time passes when the test says so. What it has taken can be written no more.
struct FakeStream : AudioOutputStream {
    Timing timing() const override {
        return {heard * 1'000'000'000 / kRate, heard, isRunning ? taken() : heard, isRunning};
    }
    void updateTiming() override { mustUpdate = true; }
    std::int64_t written() const override { return m_written; }
    std::size_t wanted() const override {
        return static_cast<std::size_t>(std::max<std::int64_t>(heard + kHeld - m_written, 0));
    }
    void write(std::int64_t at, const float* samples, std::size_t count) override {
        const std::int64_t end = at + static_cast<std::int64_t>(count);
        EXPECT_GE(at, isRunning ? taken() : heard) << "too late";
        EXPECT_LE(at, m_written) << "a hole";
        EXPECT_GE(end, m_written) << "something old is left";
        frames.resize(static_cast<std::size_t>(end));
        for (std::size_t i = 0; i < count; ++i) {
            frames[static_cast<std::size_t>(at) + i] = samples[2 * i];
            ASSERT_EQ(samples[2 * i + 1], samples[2 * i] / 2);
        }
        m_written = end;
    }
    void setRunning(bool running) override { isRunning = running; }
    void callAt(std::int64_t frame) override { called = frame; }
    std::int64_t taken() const { return std::min(heard + kTaken, m_written); }

    /// Of the left channel; the right one is to be half as loud.
    std::vector<float> frames;
    std::int64_t heard = 0;
    bool isRunning = false;
    bool mustUpdate = false;
    std::optional<std::int64_t> called;

private:
    std::int64_t m_written = 0;
};

struct PlaybackTest : ::testing::Test {
    PlaybackTest() {
        m_sound->rate = kRate;
        m_sound->planes.resize(2);
        for (std::int64_t frame = 0; frame < kLength; ++frame) {
            m_sound->planes[0].push_back(valueOf(frame));
            m_sound->planes[1].push_back(valueOf(frame) / 2);
        }
        auto file = std::make_unique<FakeExtAudioFile>(m_sound, m_reads);
        file->setClientDataFormat(clientFormat(kRate, 2, true));
        m_reader = std::make_unique<PlaybackReader>(std::move(file), 1.0, kLength, m_tempos, m_buffer, m_clock);
    }
    std::int64_t now() const { return m_stream.heard * 1'000'000'000 / kRate; }
    /// Lets both threads do what there is to do.
    void settle() {
        for (bool isBusy = true; isBusy;) {
            isBusy = m_reader->step(now());
            if (m_reader->takeNews()) {
                m_feed.audioOutputDidWake();
                isBusy = true;
            }
            if (std::exchange(m_stream.mustUpdate, false)) {
                m_feed.audioOutputDidUpdateTiming(m_stream);
                isBusy = true;
            }
        }
    }
    void wake() {
        m_feed.audioOutputDidWake();
        settle();
    }
    void play(double seconds) {
        for (auto left = static_cast<std::int64_t>(seconds * kRate); left > 0 && m_stream.isRunning; left -= 80) {
            m_stream.heard += 80;
            if (m_stream.called && m_stream.heard >= *m_stream.called) {
                m_stream.called.reset();
                m_feed.audioOutputDidReach(m_stream);
            }
            if (m_stream.wanted() >= kHeld / 2) {
                m_feed.audioOutputWantsFrames(m_stream);
            }
            settle();
            checkClock();
        }
    }
    /// What is heard is what the clock says.
    void checkClock() {
        const PlaybackPosition position = m_clock.read();
        const PlaybackPosition::Piece* piece = position.pieceAt(m_stream.heard);
        if (m_stream.isRunning && piece != nullptr && piece->buffered >= 0 && m_stream.heard > piece->start + kRamp) {
            EXPECT_NEAR(placeOf(m_stream.frames[static_cast<std::size_t>(m_stream.heard)]),
                        position.mediaOf(m_stream.heard), 2.0);
        }
    }
    void start(std::int64_t frame) {
        m_reader->jump(frame);
        m_feed.setPlaying(true);
        m_feed.audioOutputDidOpen(m_stream);
        settle();
    }
    /// Full scale is 20 s of frames; a ramp over 64 frames takes steps of a fortieth at most.
    void expectNoStep() const {
        for (std::size_t i = 1; i < static_cast<std::size_t>(m_stream.heard); ++i) {
            ASSERT_LT(std::abs(m_stream.frames[i] - m_stream.frames[i - 1]), valueOf(kLength) / 40.0F + 1e-6F) << i;
        }
    }
    double heardPlace() const { return m_clock.read().mediaOf(m_stream.heard); }

    std::shared_ptr<FakeSound> m_sound = std::make_shared<FakeSound>();
    std::vector<std::uint32_t> m_reads;
    FakeTempos m_tempos;
    PlaybackBuffer m_buffer{{kRate, 2}};
    PlaybackClock m_clock;
    FakeStream m_stream;
    std::vector<std::pair<bool, std::uint64_t>> m_ends;
    PlaybackFeed m_feed{m_buffer, m_clock, [this](const PlaybackFeed::End& end) {
                            m_ends.emplace_back(end.reason == PlaybackFeed::End::Reason::Whole, end.jump);
                        }};
    std::unique_ptr<PlaybackReader> m_reader;
};

TEST_F(PlaybackTest, JumpsAndRatesTakeTheShortestWayWithoutAStep) {
    m_feed.setMetering(true);
    start(0);
    play(1.0);
    const PlaybackFeed::Level level = m_feed.takeLevel(m_stream.heard);
    EXPECT_NEAR(level.sumOfSquares[0] / level.sumOfSquares[1], 4.0, 1e-6);
    for (const double rate : {1.0, 2.0, 0.5, 1.0, 0.5, 2.0}) {
        m_reader->setRate(rate);
        settle();
        // Heard no later than what the device had taken, and the little by which a rate is put off.
        const PlaybackPosition position = m_clock.read();
        const auto last = static_cast<std::size_t>(position.count - 1);
        const PlaybackPosition::Piece& piece = position.pieces[last];
        EXPECT_LE(piece.start, m_stream.heard + kTaken + kRate / 40) << rate;
        EXPECT_EQ(piece.mediaPerFrame, rate);
        if (last > 0) {
            const PlaybackPosition::Piece& old = position.pieces[last - 1];
            EXPECT_NEAR(old.media + static_cast<double>(piece.start - old.start) * old.mediaPerFrame, piece.media, 2.0);
        }
        play(0.7);
        const std::int64_t target = std::int64_t{3} * kRate + std::llround(rate * 1000.0);
        const std::uint64_t number = m_reader->jump(target);
        settle();
        EXPECT_EQ(m_clock.read().jump, number);
        EXPECT_EQ(heardPlace(), static_cast<double>(target));
        EXPECT_LE(m_clock.read().pieces[0].start, m_stream.heard + kTaken);
        play(0.7);
    }
    expectNoStep();
    EXPECT_TRUE(m_ends.empty());
}

TEST_F(PlaybackTest, APauseFadesOutAndEveryFrameAfterItIsHeardOnce) {
    start(0);
    play(1.0);
    std::int64_t paused = 0;
    std::int64_t stopped = 0;
    for (const int jumps : {1, 40}) {
        paused = std::llround(heardPlace());
        m_feed.setPlaying(false);
        // Far more jumps than fit, as when the slider is dragged while nothing plays.
        for (int i = 0; i < jumps; ++i) {
            m_reader->jump(i + 1 < jumps ? i * 1000 : paused);
            wake();
        }
        play(0.5);
        EXPECT_FALSE(m_stream.isRunning);
        EXPECT_EQ(m_stream.frames.back(), 0.0F);
        stopped = m_stream.heard;
        EXPECT_LE(stopped, std::int64_t{3} * kRate);
        EXPECT_EQ(heardPlace(), static_cast<double>(paused));
        m_feed.setPlaying(true);
        wake();
        ASSERT_TRUE(m_stream.isRunning);
        play(0.7);
    }
    expectNoStep();
    // From the pause on every frame is heard once, and the end is told.
    EXPECT_TRUE(m_ends.empty());
    play(25.0);
    EXPECT_EQ(m_ends, (std::vector<std::pair<bool, std::uint64_t>>{{true, 42}}));
    EXPECT_EQ(heardPlace(), static_cast<double>(kLength));
    for (std::int64_t i = kRamp; i <= kLength - paused; ++i) {
        const float expected = paused + i < kLength ? valueOf(paused + i) : 0.0F;
        ASSERT_EQ(m_stream.frames[static_cast<std::size_t>(stopped + i)], expected) << i;
    }
}

TEST_F(PlaybackTest, EndsWhatIsCutShortAndWhatHasNothingLeft) {
    start(0);
    play(0.5);
    m_sound->readable = std::int64_t{4} * kRate;
    play(10.0);
    ASSERT_EQ(m_ends.size(), 1U);
    EXPECT_FALSE(m_ends[0].first);
    EXPECT_NEAR(heardPlace(), 4.0 * kRate, 1.0);

    // Jumping behind all that is left, to the very end, and while the end is about to be told.
    m_sound->readable = kLength;
    for (const std::int64_t target : {kLength, kLength - 3}) {
        m_reader->jump(target);
        wake();
        play(1.0);
        EXPECT_TRUE(m_ends.back().first);
        EXPECT_EQ(heardPlace(), static_cast<double>(kLength));
    }
    EXPECT_EQ(m_ends.size(), 3U);
    m_reader->jump(kLength - kRate / 10);
    wake();
    play(0.05);
    m_reader->jump(0);
    while (m_reader->step(now())) {
    }
    m_feed.audioOutputDidWake();
    m_feed.audioOutputDidReach(m_stream);
    settle();
    play(1.0);
    EXPECT_EQ(m_ends.size(), 3U);
    EXPECT_NEAR(heardPlace(), 1.0 * kRate, kRate / 10.0);
    m_sound->readStatus = kAudioFileUnspecifiedError;
    m_reader->jump(0);
    wake();
    play(1.0);
    EXPECT_EQ(m_ends.size(), 4U);
    EXPECT_FALSE(m_ends.back().first);
}

}  // namespace
}  // namespace tavi::test
