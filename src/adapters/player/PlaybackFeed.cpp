#include "adapters/player/PlaybackFeed.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <numbers>

namespace tavi {

namespace {

/// More than any output holds.
constexpr int kScratchSeconds = 1;
/// What has been written stays in the buffer for that many tenths of a second: longer than an output holds it.
constexpr std::int64_t kHeldTenths = 6;
constexpr std::int32_t kLevelBytes = 16384;
/// A stream's latency settles within its first fills; later only clocks drift.
constexpr int kTimingsSoon = 4;
constexpr int kFillsPerTiming = 5;

/// A raised cosine from 0 to 1.
float gainAt(std::int64_t frame, std::int64_t ramp) {
    const double phase = (static_cast<double>(frame) + 0.5) / static_cast<double>(ramp);
    return phase >= 1.0 ? 1.0F : static_cast<float>(0.5 - 0.5 * std::cos(std::numbers::pi * phase));
}

}  // namespace

PlaybackFeed::PlaybackFeed(PlaybackBuffer& buffer, PlaybackClock& clock, Ended ended)
    : m_buffer(buffer),
      m_clock(clock),
      m_ended(std::move(ended)),
      m_scratch(static_cast<std::size_t>(buffer.format().sampleRate * buffer.format().channels * kScratchSeconds)) {
    m_position.sampleRate = buffer.format().sampleRate;
    TPCircularBufferInit(&m_levels, kLevelBytes);
}

PlaybackFeed::~PlaybackFeed() {
    TPCircularBufferCleanup(&m_levels);
}

void PlaybackFeed::audioOutputDidOpen(AudioOutputStream& stream) {
    m_stream = &stream;
    m_isRunning = false;
    m_isFading = false;
    m_isAtEnd = false;
    m_position.count = 0;
    stand();
    act();
}

void PlaybackFeed::audioOutputDidWake() {
    takeMarks();
    if (m_stream == nullptr || (!m_isRunning && !m_isWanted)) {
        stand();
    } else if (m_cut || (m_isRunning && !m_isWanted && !m_isFading)) {
        // Which frames can still be replaced is to be known exactly.
        m_stream->updateTiming();
    } else if (m_isRunning && !m_isFading) {
        fill(m_stream->wanted());
    }
}

void PlaybackFeed::audioOutputDidUpdateTiming(AudioOutputStream& stream) {
    if (&stream == m_stream) {
        act();
    }
}

void PlaybackFeed::act() {
    takeMarks();
    if (!m_isWanted) {
        if (m_isRunning && !m_isFading) {
            fadeOut();
        }
        stand();
    } else if (m_cut) {
        cutOver();
    }
    publishPosition();
}

void PlaybackFeed::takeMarks() {
    m_published = m_buffer.publishedEnd();
    while (const auto mark = m_buffer.takeMark(m_published)) {
        if (mark->kind == PlaybackMark::Kind::Jump || mark->kind == PlaybackMark::Kind::Continue) {
            m_cut = mark;
            m_end.reset();
        } else {
            m_end = mark;
        }
    }
}

/// Without sound: the next to be heard is the newest cut's beginning.
void PlaybackFeed::stand() {
    if (!m_cut) {
        return;
    }
    m_buffer.consumeTo(m_cut->frame);
    m_buffer.wakeProducer();
    m_position.jump = m_cut->jump;
    m_position.isMoving = 0;
    m_position.count = 0;
    m_position.add({0, -1, m_cut->media, 0.0});
    m_clock.publish(m_position);
}

void PlaybackFeed::fadeOut() {
    const std::int64_t at = std::min(m_stream->timing().replaceable, m_stream->written());
    const std::int64_t left = std::max(m_stream->written() - at, ramp());
    const auto channels = static_cast<std::int64_t>(m_buffer.format().channels);
    const std::int64_t frames = std::min(left, static_cast<std::int64_t>(m_scratch.size()) / channels);
    std::fill_n(m_scratch.begin(), frames * channels, 0.0F);
    if (const float* old = oldFramesAt(at, ramp())) {
        for (std::int64_t i = 0; i < ramp() * channels; ++i) {
            m_scratch[static_cast<std::size_t>(i)] = old[i] * (1.0F - gainAt(i / channels, ramp()));
        }
    }
    write(at, m_scratch.data(), frames);
    m_position.add({at, -1, m_position.mediaOf(at), 0.0});
    m_isFading = true;
    m_stream->callAt(at + ramp());
}

/// Where the new sound sets in, and how many of its frames that have been heard already are left out.
std::int64_t PlaybackFeed::placeOfCut(std::int64_t& skipped) {
    std::int64_t at = std::min(m_stream->timing().replaceable, m_stream->written());
    skipped = 0;
    const PlaybackPosition::Piece* old = m_position.pieceAt(at);
    if (m_cut->kind != PlaybackMark::Kind::Continue || old == nullptr || old->mediaPerFrame <= 0.0) {
        return at;
    }
    const double ahead = m_cut->media - m_position.mediaOf(at);
    if (ahead >= 0.0) {
        at = std::min<std::int64_t>(at + std::llround(ahead / old->mediaPerFrame), m_stream->written());
    } else {
        skipped = std::min<std::int64_t>(std::llround(-ahead / m_cut->mediaPerFrame), m_published - m_cut->frame);
    }
    return at;
}

void PlaybackFeed::cutOver() {
    std::int64_t skipped = 0;
    const std::int64_t at = placeOfCut(skipped);
    const std::int64_t from = m_cut->frame + skipped;
    const auto channels = static_cast<std::int64_t>(m_buffer.format().channels);
    const std::int64_t replaced = m_stream->written() - at;
    const std::int64_t limit = static_cast<std::int64_t>(m_scratch.size()) / channels;
    const std::int64_t total = std::min(std::max(replaced, static_cast<std::int64_t>(m_stream->wanted())), limit);
    const std::int64_t there = std::min(total, m_published - from);
    std::fill_n(m_scratch.begin(), total * channels, 0.0F);
    if (there > 0) {
        // Both lie in the buffer as long as the old has not been consumed.
        std::copy_n(m_buffer.framesAt(from), there * channels, m_scratch.begin());
    }
    const std::int64_t faded = std::min(ramp(), total);
    const float* old = oldFramesAt(at, faded);
    for (std::int64_t i = 0; i < faded * channels; ++i) {
        const float gain = gainAt(i / channels, ramp());
        float& sample = m_scratch[static_cast<std::size_t>(i)];
        sample = sample * gain + (old != nullptr ? old[i] * (1.0F - gain) : 0.0F);
    }
    // Only the end of a recording is shorter than what it takes the place of; silence makes up for the rest.
    write(at, m_scratch.data(), std::max(replaced, there));
    if (m_cut->kind == PlaybackMark::Kind::Jump) {
        m_position.count = 0;
    }
    m_position.jump = m_cut->jump;
    m_position.add(
        {at, from, m_cut->media + static_cast<double>(skipped) * m_cut->mediaPerFrame, m_cut->mediaPerFrame});
    m_buffer.consumeTo(from);
    m_buffer.wakeProducer();
    m_cursor = from + there;
    m_cut.reset();
    m_isFading = false;
    m_isAtEnd = false;
    if (m_end && m_cursor == m_end->frame) {
        reachEnd(at + there);
    }
    fill(m_stream->wanted());
    if (!m_isRunning) {
        m_isRunning = true;
        m_stream->setRunning(true);
        m_timingsSoon = kTimingsSoon;
    }
    m_stream->updateTiming();
}

void PlaybackFeed::audioOutputWantsFrames(AudioOutputStream& stream) {
    if (&stream != m_stream || !m_isRunning) {
        return;
    }
    takeMarks();
    fill(stream.wanted());
    m_buffer.consumeTo(std::max(m_buffer.begin(), m_cursor - m_buffer.format().sampleRate * kHeldTenths / 10));
    if (m_published - m_buffer.begin() < m_buffer.lowWater()) {
        m_buffer.wakeProducer();
    }
    if (m_timingsSoon > 0 || ++m_fillsSinceTiming >= kFillsPerTiming) {
        m_timingsSoon = std::max(m_timingsSoon - 1, 0);
        m_fillsSinceTiming = 0;
        stream.updateTiming();
    }
    publishPosition();
}

void PlaybackFeed::fill(std::size_t frames) {
    auto left = static_cast<std::int64_t>(frames);
    if (!m_isFading && !m_isAtEnd) {
        const std::int64_t last = m_cut ? m_cut->frame : m_end ? m_end->frame : m_published;
        const std::int64_t there = std::clamp<std::int64_t>(std::min(last, m_published) - m_cursor, 0, left);
        if (there > 0) {
            write(m_stream->written(), m_buffer.framesAt(m_cursor), there);
            m_cursor += there;
            left -= there;
        }
        if (left > 0 && !m_cut && m_end && m_cursor == m_end->frame) {
            reachEnd(m_stream->written());
        }
    }
    if (m_isFading || m_isAtEnd) {
        writeSilence(left);
    } else if (left > 0) {
        m_buffer.starve();
        m_buffer.wakeProducer();
    }
}

void PlaybackFeed::reachEnd(std::int64_t end) {
    m_isAtEnd = true;
    m_position.add({end, -1, m_end->media, 0.0});
    m_stream->callAt(end);
}

void PlaybackFeed::audioOutputDidReach(AudioOutputStream& stream) {
    if (&stream != m_stream || !m_isRunning) {
        return;
    }
    // What takes the place of the end is about to be heard.
    const bool hasEnded = m_isAtEnd && !m_isFading && !m_cut;
    if (!m_isFading && !hasEnded) {
        return;
    }
    m_isRunning = false;
    m_isFading = false;
    m_isAtEnd = false;
    stream.setRunning(false);
    if (hasEnded) {
        publishPosition();
        const bool isWhole = m_end->kind == PlaybackMark::Kind::End;
        m_ended({isWhole ? End::Reason::Whole : End::Reason::CutShort, m_position.jump});
    }
}

std::int64_t PlaybackFeed::audioOutputWillClose(AudioOutputStream& stream) {
    std::int64_t end = 0;
    if (&stream == m_stream) {
        if (m_isRunning && !m_isFading) {
            fadeOut();
        }
        end = m_isRunning ? std::min(stream.timing().replaceable + ramp(), stream.written()) : 0;
        m_stream = nullptr;
        m_isRunning = false;
        m_isFading = false;
    }
    return end;
}

void PlaybackFeed::audioOutputDidFail(const Error& error) {
    m_stream = nullptr;
    m_isRunning = false;
    m_isFading = false;
    // The clock goes on: it knows better than the last timing what has been heard by now.
    m_ended({End::Reason::NoOutput, 0, error});
}

void PlaybackFeed::write(std::int64_t at, const float* interleaved, std::int64_t frames) {
    if (frames <= 0) {
        return;
    }
    m_stream->write(at, interleaved, static_cast<std::size_t>(frames));
    if (m_isMetering) {
        const auto channels = static_cast<std::size_t>(m_buffer.format().channels);
        Level level;
        level.frames = frames;
        level.end = at + frames;
        for (std::size_t i = 0; i < static_cast<std::size_t>(frames) * channels; ++i) {
            level.sumOfSquares[i % channels] +=
                static_cast<double>(interleaved[i]) * static_cast<double>(interleaved[i]);
        }
        // A full ring of levels means that nobody reads them.
        TPCircularBufferProduceBytes(&m_levels, &level, sizeof(level));
    }
}

void PlaybackFeed::writeSilence(std::int64_t frames) {
    const auto channels = static_cast<std::int64_t>(m_buffer.format().channels);
    frames = std::min(frames, static_cast<std::int64_t>(m_scratch.size()) / channels);
    std::fill_n(m_scratch.begin(), frames * channels, 0.0F);
    write(m_stream->written(), m_scratch.data(), frames);
}

/// The frames of the buffer that were written to the output from a place on; null where they are not there any more.
const float* PlaybackFeed::oldFramesAt(std::int64_t at, std::int64_t frames) {
    const PlaybackPosition::Piece* piece = m_position.pieceAt(at);
    if (piece == nullptr || piece->buffered < 0) {
        return nullptr;
    }
    const std::int64_t frame = piece->buffered + at - piece->start;
    const bool isThere = frame >= m_buffer.begin() && frame + frames <= m_published;
    return isThere ? m_buffer.framesAt(frame) : nullptr;
}

void PlaybackFeed::publishPosition() {
    if (m_stream == nullptr) {
        return;
    }
    const AudioOutputStream::Timing timing = m_stream->timing();
    m_position.time = timing.time;
    m_position.heard = timing.heard;
    m_position.written = m_stream->written();
    m_position.isMoving = m_isRunning && !m_isFading && timing.isMoving ? 1 : 0;
    m_clock.publish(m_position);
}

PlaybackFeed::Level PlaybackFeed::takeLevel(std::int64_t heard) {
    Level sum;
    std::int32_t bytes = 0;
    while (const void* tail = TPCircularBufferTail(&m_levels, &bytes)) {
        Level level;
        std::memcpy(&level, tail, sizeof(level));
        if (level.end > heard) {
            break;
        }
        sum.sumOfSquares[0] += level.sumOfSquares[0];
        sum.sumOfSquares[1] += level.sumOfSquares[1];
        sum.frames += level.frames;
        TPCircularBufferConsume(&m_levels, sizeof(level));
    }
    return sum;
}

}  // namespace tavi
