#include "adapters/player/PlaybackReader.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

namespace tavi {

namespace {

constexpr std::size_t kChunk = 4096;
/// What has to be there before it takes the place of what the output holds: more than that is, at any rate.
constexpr double kSecondsPrepared = 0.75;
/// A change of rate comes about that much later than it is asked for, so that little is decoded in vain.
constexpr std::int64_t kLead = 20'000'000;
/// A recording that ends that much earlier than its headers say has been cut short.
constexpr double kSecondsMissing = 0.1;

}  // namespace

PlaybackReader::PlaybackReader(std::unique_ptr<ExtAudioFile> file, double fileFramesPerFrame, std::int64_t length,
                               AudioTempos& tempos, PlaybackBuffer& buffer, const PlaybackClock& clock)
    : m_file(std::move(file)),
      m_fileFramesPerFrame(fileFramesPerFrame),
      m_length(length),
      m_tempos(tempos),
      m_buffer(buffer),
      m_clock(clock),
      m_input(kChunk * static_cast<std::size_t>(buffer.format().channels)) {}

std::uint64_t PlaybackReader::jump(std::int64_t frame) {
    std::uint64_t number = 0;
    {
        const std::lock_guard lock(m_mutex);
        m_command.jump = frame;
        number = ++m_command.jumps;
    }
    m_buffer.wakeProducer();
    return number;
}

void PlaybackReader::setRate(double rate) {
    {
        const std::lock_guard lock(m_mutex);
        m_command.rate = rate;
    }
    m_buffer.wakeProducer();
}

void PlaybackReader::quit() {
    m_mustQuit = true;
    m_buffer.wakeProducer();
}

void PlaybackReader::run(const std::function<void()>& wakePlayback) {
    while (!m_mustQuit) {
        const auto now = std::chrono::steady_clock::now().time_since_epoch();
        const bool isBusy = step(std::chrono::duration_cast<std::chrono::nanoseconds>(now).count());
        if (takeNews()) {
            wakePlayback();
        }
        if (!isBusy) {
            m_buffer.wait();
        }
    }
}

bool PlaybackReader::step(std::int64_t now) {
    if (!m_buffer.hasRoomForMarks()) {
        return false;
    }
    beginWhatIsAsked(now);
    if (m_hasEnded || (!m_isPreparing && m_buffer.fill() >= m_buffer.highWater())) {
        return false;
    }
    std::size_t room = 0;
    if (m_buffer.room(room) == nullptr) {
        return false;
    }
    decode();
    return true;
}

void PlaybackReader::beginWhatIsAsked(std::int64_t now) {
    Command command;
    {
        const std::lock_guard lock(m_mutex);
        command = m_command;
        m_command.jump.reset();
    }
    if (command.jump) {
        m_jumps = command.jumps;
        begin(PlaybackMark::Kind::Jump, static_cast<double>(*command.jump), command.rate);
    } else if (command.rate != m_rate && m_jumps > 0) {
        const PlaybackPosition position = m_clock.read();
        if (position.jump != m_jumps) {
            // The jump before it has not been heard yet, so this takes its place.
            begin(PlaybackMark::Kind::Jump, m_beginning.media, command.rate);
            return;
        }
        const auto kind = position.isMoving != 0 ? PlaybackMark::Kind::Continue : PlaybackMark::Kind::Jump;
        const double media = position.mediaOf(position.heardAt(now + kLead));
        begin(kind, std::clamp(media, 0.0, static_cast<double>(m_length)), command.rate);
    }
}

void PlaybackReader::begin(PlaybackMark::Kind kind, double media, double rate) {
    m_buffer.forgetPrepared();
    // Whole frames, so that the mark is exact.
    const auto frame = static_cast<std::int64_t>(std::llround(media));
    m_rate = rate;
    m_beginning = {kind, m_buffer.preparedEnd(), static_cast<double>(frame), rate, m_jumps, 0};
    m_isPreparing = true;
    m_hasEnded = false;
    m_inputHasEnded = false;
    const auto fileFrame = static_cast<std::int64_t>(std::llround(static_cast<double>(frame) * m_fileFramesPerFrame));
    m_hasFailed = m_file->seek(fileFrame) != kAudioNoError;
    if (rate != 1.0 && !m_hasFailed) {
        if (m_tempo == nullptr) {
            auto tempo = m_tempos.create(m_buffer.format().sampleRate, m_buffer.format().channels);
            m_tempo = tempo ? std::move(*tempo) : nullptr;
        }
        m_hasFailed = m_tempo == nullptr || !m_tempo->reset(rate);
    }
}

void PlaybackReader::decode() {
    std::size_t room = 0;
    float* frames = m_buffer.room(room);
    const std::size_t capacity = std::min(room, kChunk);
    std::size_t count = 0;
    if (!m_hasFailed) {
        count = m_rate == 1.0 ? readFrames(frames, capacity) : readThroughTempo(frames, capacity);
    }
    m_buffer.prepare(count);
    if (count == 0) {
        end(!m_hasFailed);
        return;
    }
    const auto enough = static_cast<std::int64_t>(kSecondsPrepared * m_buffer.format().sampleRate);
    if (!m_isPreparing || m_buffer.preparedEnd() - m_beginning.frame >= enough) {
        publish();
    }
}

/// Fills what it can from the file; 0 at its end.
std::size_t PlaybackReader::readFrames(float* frames, std::size_t capacity) {
    const auto channels = static_cast<std::uint32_t>(m_buffer.format().channels);
    auto count = static_cast<std::uint32_t>(capacity);
    AudioBufferList list{1, {{channels, static_cast<std::uint32_t>(sizeof(float)) * channels * count, frames}}};
    if (m_file->read(count, list) != kAudioNoError) {
        m_hasFailed = true;
        return 0;
    }
    for (std::size_t i = 0; i < std::size_t{count} * channels; ++i) {
        // What is no number would be a loud noise at best.
        frames[i] = std::isfinite(frames[i]) ? frames[i] : 0.0F;
    }
    return count;
}

std::size_t PlaybackReader::readThroughTempo(float* frames, std::size_t capacity) {
    for (;;) {
        if (const std::size_t taken = m_tempo->take(frames, capacity); taken > 0 || m_inputHasEnded) {
            return taken;
        }
        const std::size_t read = readFrames(m_input.data(), kChunk);
        m_inputHasEnded = read == 0;
        if (m_hasFailed || !(read > 0 ? m_tempo->push(m_input.data(), read) : m_tempo->finish())) {
            m_hasFailed = true;
            return 0;
        }
    }
}

void PlaybackReader::end(bool isWhole) {
    m_hasEnded = true;
    std::int64_t fileFrame = 0;
    const auto isShort = [&] {
        const double reached = static_cast<double>(fileFrame) / m_fileFramesPerFrame;
        return static_cast<double>(m_length) - reached > kSecondsMissing * m_buffer.format().sampleRate;
    };
    if (m_file->tell(fileFrame) != kAudioNoError || isShort()) {
        isWhole = false;
    }
    if (std::exchange(m_isPreparing, false)) {
        m_buffer.mark(m_beginning);
    }
    const auto decoded = static_cast<double>(m_buffer.preparedEnd() - m_beginning.frame);
    const auto kind = isWhole ? PlaybackMark::Kind::End : PlaybackMark::Kind::Failure;
    const double media = isWhole ? static_cast<double>(m_length) : m_beginning.media + decoded * m_rate;
    m_buffer.mark({kind, m_buffer.preparedEnd(), media, 0.0, m_jumps, 0});
    m_buffer.publish();
    m_hasNews = true;
}

void PlaybackReader::publish() {
    if (std::exchange(m_isPreparing, false)) {
        m_buffer.mark(m_beginning);
        m_hasNews = true;
    }
    m_buffer.publish();
    m_hasNews = m_hasNews || m_buffer.takeStarving();
}

}  // namespace tavi
