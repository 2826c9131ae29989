#include "API/AudioTrimmerController/EZAudio/TPCircularBuffer/TPCircularBuffer.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <string>
#include <system_error>
#include <utility>

#include "API/AudioTrimmerController/EZAudio/TPCircularBuffer/TPCircularBufferMemory.h"

namespace tavi {

namespace {

constexpr int kRetries = 3;

void* reserve(std::size_t length) {
    void* start = mmap(nullptr, 2 * length, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    return start == MAP_FAILED ? nullptr : start;
}

bool releaseSecondHalf(void* secondHalf, std::size_t length) {
    return mmap(secondHalf, length, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE | MAP_FIXED, -1, 0) !=
           MAP_FAILED;
}

void* remap(void* firstHalf, void* secondHalf, std::size_t length) {
    // An old size of 0 maps the pages of shared memory a second time: mremap(2).
    void* landed = mremap(firstHalf, 0, length, MREMAP_MAYMOVE | MREMAP_FIXED, secondHalf);
    return landed == MAP_FAILED ? nullptr : landed;
}

void release(void* start, std::size_t length) {
    munmap(start, length);
}

/// The addresses of both mappings, given back unless they are kept. Leaves errno as it is.
class Addresses {
public:
    explicit Addresses(std::size_t length) : m_start(circularBufferMemory().reserve(length)), m_length(length) {}
    ~Addresses() {
        if (m_start != nullptr) {
            const int error = errno;
            circularBufferMemory().release(m_start, 2 * m_length);
            errno = error;
        }
    }
    Addresses(const Addresses&) = delete;
    Addresses& operator=(const Addresses&) = delete;

    void* start() const { return m_start; }
    void* secondHalf() const { return static_cast<char*>(m_start) + m_length; }
    void* keep() { return std::exchange(m_start, nullptr); }

private:
    void* m_start;
    std::size_t m_length;
};

/// One attempt at the double mapping. What it made is undone unless it succeeds.
struct Attempt {
    /// The step that failed and the line by which reports name it; null on success or where the mapping went astray.
    const char* operation = nullptr;
    int line = 0;
    void* start = nullptr;
};

Attempt attemptMapping(std::size_t length) {
    const TPCircularBufferMemory& memory = circularBufferMemory();
    Addresses addresses(length);
    if (addresses.start() == nullptr) {
        return {"Buffer allocation", 48, nullptr};
    }
    if (!memory.releaseSecondHalf(addresses.secondHalf(), length)) {
        return {"Buffer deallocation", 61, nullptr};
    }
    void* landed = memory.remap(addresses.start(), addresses.secondHalf(), length);
    if (landed == nullptr) {
        return {"Remap buffer memory", 85, nullptr};
    }
    if (landed != addresses.secondHalf()) {
        memory.release(landed, length);
        return {};
    }
    return {nullptr, 0, addresses.keep()};
}

void report(const Attempt& attempt) {
    if (attempt.operation == nullptr) {
        std::printf("Couldn't map buffer memory to end of buffer\n");
    } else {
        const std::string reason = std::generic_category().message(errno);
        std::printf("%s:%d: %s: %s\n", "TPCircularBuffer.c", attempt.line, attempt.operation, reason.c_str());
    }
}

}  // namespace

TPCircularBufferMemory systemCircularBufferMemory() {
    return {reserve, releaseSecondHalf, remap, release};
}

TPCircularBufferMemory& circularBufferMemory() {
    static TPCircularBufferMemory memory = systemCircularBufferMemory();
    return memory;
}

void TPCircularBufferAssertionFailed(const char* expression, const char* function, const char* file, int line) {
    std::fprintf(stderr, "Assertion failed: (%s), function %s, file %s, line %d.\n", expression, function, file, line);
    std::abort();
}

bool _TPCircularBufferInit(TPCircularBuffer* buffer, std::int32_t length, std::size_t structSize) {
    if (length <= 0) {
        TPCircularBufferAssertionFailed("length > 0", "_TPCircularBufferInit", "TPCircularBuffer.c", 26);
    }
    if (structSize != kTPCircularBufferSize) {
        std::fprintf(stderr,
                     "TPCircularBuffer: Header version mismatch. Check for old versions of TPCircularBuffer in your "
                     "project\n");
        std::abort();
    }
    const std::int64_t page = sysconf(_SC_PAGESIZE);
    const std::int64_t rounded = (length + page - 1) / page * page;
    if (rounded > std::numeric_limits<std::int32_t>::max()) {
        errno = ENOMEM;
        report({"Buffer allocation", 48, nullptr});
        return false;
    }
    for (int retries = kRetries;; --retries) {
        const Attempt attempt = attemptMapping(static_cast<std::size_t>(rounded));
        if (attempt.start != nullptr) {
            *buffer = TPCircularBuffer{attempt.start, static_cast<std::int32_t>(rounded), 0, 0, 0, true};
            return true;
        }
        if (retries == 0) {
            report(attempt);
            return false;
        }
    }
}

void TPCircularBufferCleanup(TPCircularBuffer* buffer) {
    if (buffer->buffer != nullptr) {
        circularBufferMemory().release(buffer->buffer, 2 * static_cast<std::size_t>(buffer->length));
    }
    std::memset(static_cast<void*>(buffer), 0, sizeof(*buffer));
}

void TPCircularBufferClear(TPCircularBuffer* buffer) {
    std::int32_t held = 0;
    if (TPCircularBufferTail(buffer, &held) != nullptr) {
        TPCircularBufferConsume(buffer, held);
    }
}

}  // namespace tavi
