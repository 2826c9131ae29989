#include "adapters/player/PlaybackBuffer.h"

#include <cstring>

namespace tavi {

namespace {

/// Room for what is decoded ahead, and for the beginning of what replaces it.
constexpr int kSecondsBuffered = 4;
constexpr std::int32_t kMarkBytes = 4096;
constexpr auto kMarkSize = static_cast<std::int32_t>(sizeof(PlaybackMark));

}  // namespace

PlaybackBuffer::PlaybackBuffer(const AudioOutputFormat& format) : m_format(format) {
    TPCircularBufferInit(&m_sound, static_cast<std::int32_t>(bytesPerFrame()) * format.sampleRate * kSecondsBuffered);
    TPCircularBufferInit(&m_marks, kMarkBytes);
    m_sound.atomic = true;
    m_marks.atomic = true;
}

PlaybackBuffer::~PlaybackBuffer() {
    TPCircularBufferCleanup(&m_sound);
    TPCircularBufferCleanup(&m_marks);
}

float* PlaybackBuffer::room(std::size_t& frames) {
    std::int32_t bytes = 0;
    auto* head = static_cast<float*>(TPCircularBufferHead(&m_sound, &bytes));
    const auto prepared = static_cast<std::size_t>(m_prepared);
    frames = static_cast<std::size_t>(bytes) / bytesPerFrame() - prepared;
    return frames == 0 ? nullptr : head + prepared * static_cast<std::size_t>(m_format.channels);
}

std::int64_t PlaybackBuffer::fill() const {
    std::int32_t bytes = 0;
    // The head tells how much is free; asking changes nothing.
    TPCircularBufferHead(const_cast<TPCircularBuffer*>(&m_sound), &bytes);
    return (m_sound.length - bytes) / static_cast<std::int64_t>(bytesPerFrame());
}

bool PlaybackBuffer::hasRoomForMarks() const {
    std::int32_t bytes = 0;
    TPCircularBufferHead(const_cast<TPCircularBuffer*>(&m_marks), &bytes);
    return bytes >= 2 * kMarkSize;
}

void PlaybackBuffer::mark(PlaybackMark mark) {
    mark.published = preparedEnd();
    TPCircularBufferProduceBytes(&m_marks, &mark, kMarkSize);
}

void PlaybackBuffer::publish() {
    if (m_prepared > 0) {
        TPCircularBufferProduce(&m_sound,
                                static_cast<std::int32_t>(static_cast<std::size_t>(m_prepared) * bytesPerFrame()));
    }
    m_produced += m_prepared;
    m_prepared = 0;
    m_published.store(m_produced, std::memory_order_release);
}

std::optional<PlaybackMark> PlaybackBuffer::takeMark(std::int64_t publishedEnd) {
    std::int32_t bytes = 0;
    const void* tail = TPCircularBufferTail(&m_marks, &bytes);
    if (tail == nullptr) {
        return std::nullopt;
    }
    PlaybackMark mark;
    std::memcpy(&mark, tail, sizeof(mark));
    if (mark.published > publishedEnd) {
        return std::nullopt;
    }
    TPCircularBufferConsume(&m_marks, kMarkSize);
    return mark;
}

const float* PlaybackBuffer::framesAt(std::int64_t frame) {
    std::int32_t bytes = 0;
    const auto* tail = static_cast<const float*>(TPCircularBufferTail(&m_sound, &bytes));
    return tail == nullptr ? nullptr : tail + (frame - m_consumed) * m_format.channels;
}

void PlaybackBuffer::consumeTo(std::int64_t frame) {
    if (frame > m_consumed) {
        TPCircularBufferConsume(
            &m_sound, static_cast<std::int32_t>(static_cast<std::size_t>(frame - m_consumed) * bytesPerFrame()));
        m_consumed = frame;
    }
}

}  // namespace tavi
