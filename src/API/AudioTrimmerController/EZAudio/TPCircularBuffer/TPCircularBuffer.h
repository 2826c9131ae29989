#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace tavi {

/// A byte ring for one producer thread and one consumer thread, without locks.
///
/// Its storage is mapped twice, back to back, so that any run of up to length bytes that starts at the head or the tail
/// is contiguous: the producer writes straight into the buffer and the consumer reads straight out of it. Only the
/// producer moves head, only the consumer moves tail, and both change fillCount; head = (tail + fillCount) mod length.
struct TPCircularBuffer {
    /// Start of the first mapping; null while there is no storage.
    void* buffer = nullptr;
    /// Usable bytes, a whole number of pages.
    std::int32_t length = 0;
    /// Read offset, 0 <= tail < length.
    std::int32_t tail = 0;
    /// Write offset, 0 <= head < length.
    std::int32_t head = 0;
    /// Bytes held; reached through std::atomic_ref where both threads meet.
    std::int32_t fillCount = 0;
    /// Whether fillCount changes by an atomic add with a full barrier. Off only where one thread does both sides.
    bool atomic = false;
};

/// The record is a versioned format: its size tells builds with another layout apart.
inline constexpr std::size_t kTPCircularBufferSize = 32;
static_assert(sizeof(TPCircularBuffer) == kTPCircularBufferSize);

/// Maps at least length bytes, rounded up to whole pages. False, with a line on standard output that names the step,
/// when the system refuses it four times. Not for the real-time thread.
bool _TPCircularBufferInit(TPCircularBuffer* buffer, std::int32_t length,  // NOLINT(bugprone-reserved-identifier)
                           std::size_t structSize);

inline bool TPCircularBufferInit(TPCircularBuffer* buffer, std::int32_t length) {
    return _TPCircularBufferInit(buffer, length, kTPCircularBufferSize);
}

/// Releases both mappings and zeroes the record. Neither side may be at work.
void TPCircularBufferCleanup(TPCircularBuffer* buffer);

/// Consumes what is held at this moment; what a producer adds meanwhile stays. Consumer side.
void TPCircularBufferClear(TPCircularBuffer* buffer);

/// Ends the process with a line on standard error that names the broken rule and where it was checked.
[[noreturn]] void TPCircularBufferAssertionFailed(const char* expression, const char* function, const char* file,
                                                  int line);

namespace detail {

/// (offset + count) mod length. Most steps wrap nothing, and a division costs as much as copying a small block.
inline std::int32_t advanced(std::int32_t offset, std::int32_t count, std::int32_t length) {
    const std::int32_t sum = offset + count;
    return sum >= 0 && sum < length ? sum : sum % length;
}

inline std::int32_t addToFillCount(TPCircularBuffer* buffer, std::int32_t count) {
    if (buffer->atomic) {
        return std::atomic_ref(buffer->fillCount).fetch_add(count, std::memory_order_seq_cst) + count;
    }
    return buffer->fillCount += count;
}

inline std::int32_t heldBytes(const TPCircularBuffer* buffer) {
    // atomic_ref takes no const object before C++26; the load changes nothing.
    return std::atomic_ref(const_cast<TPCircularBuffer*>(buffer)->fillCount).load(std::memory_order_acquire);
}

}  // namespace detail

/// Where to write, and how many bytes fit; null when the buffer is full. Producer side.
inline void* TPCircularBufferHead(TPCircularBuffer* buffer, std::int32_t* availableBytes) {
    *availableBytes = buffer->length - detail::heldBytes(buffer);
    return *availableBytes == 0 ? nullptr : static_cast<char*>(buffer->buffer) + buffer->head;
}

/// Hands count bytes written at the head to the consumer. Producer side.
inline void TPCircularBufferProduce(TPCircularBuffer* buffer, std::int32_t count) {
    buffer->head = detail::advanced(buffer->head, count, buffer->length);
    if (detail::addToFillCount(buffer, count) > buffer->length) {
        TPCircularBufferAssertionFailed("buffer->fillCount <= buffer->length", "TPCircularBufferProduce",
                                        "TPCircularBuffer.h", 145);
    }
}

/// Where to read, and how many bytes are held; null when the buffer is empty. Consumer side.
inline void* TPCircularBufferTail(TPCircularBuffer* buffer, std::int32_t* availableBytes) {
    *availableBytes = detail::heldBytes(buffer);
    return *availableBytes == 0 ? nullptr : static_cast<char*>(buffer->buffer) + buffer->tail;
}

/// Gives count bytes read at the tail back to the producer. Consumer side.
inline void TPCircularBufferConsume(TPCircularBuffer* buffer, std::int32_t count) {
    buffer->tail = detail::advanced(buffer->tail, count, buffer->length);
    if (detail::addToFillCount(buffer, -count) < 0) {
        TPCircularBufferAssertionFailed("buffer->fillCount >= 0", "TPCircularBufferConsume", "TPCircularBuffer.h", 109);
    }
}

/// Copies count bytes in, or none of them when they do not all fit. Producer side.
inline bool TPCircularBufferProduceBytes(TPCircularBuffer* buffer, const void* source, std::int32_t count) {
    std::int32_t space = 0;
    void* head = TPCircularBufferHead(buffer, &space);
    if (space < count) {
        return false;
    }
    if (count > 0) {
        std::memcpy(head, source, static_cast<std::size_t>(count));
        TPCircularBufferProduce(buffer, count);
    }
    return true;
}

}  // namespace tavi
