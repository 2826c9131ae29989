#include "API/AudioTrimmerController/EZAudio/TPCircularBuffer/TPCircularBuffer.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <string>
#include <system_error>

#include "API/AudioTrimmerController/EZAudio/TPCircularBuffer/TPCircularBufferMemory.h"

namespace tavi {

namespace {

constexpr int kRetries = 3;

void* reserve(std::size_t length, int* descriptor) {
    *descriptor = memfd_create("TPCircularBuffer", MFD_CLOEXEC);
    if (*descriptor < 0) {
        return nullptr;
    }
    if (ftruncate(*descriptor, static_cast<off_t>(length)) == 0) {
        void* start = mmap(nullptr, 2 * length, PROT_READ | PROT_WRITE, MAP_SHARED, *descriptor, 0);
        if (start != MAP_FAILED) {
            return start;
        }
    }
    const int error = errno;
    close(*descriptor);
    errno = error;
    return nullptr;
}

bool releaseSecondHalf(void* secondHalf, std::size_t length) {
    return mmap(secondHalf, length, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE | MAP_FIXED, -1, 0) !=
           MAP_FAILED;
}

void* remap(void* secondHalf, std::size_t length, int descriptor) {
    void* landed = mmap(secondHalf, length, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_FIXED, descriptor, 0);
    return landed == MAP_FAILED ? nullptr : landed;
}

void release(void* start, std::size_t length) {
    munmap(start, length);
}

/// One attempt at the double mapping. What it made is undone unless it succeeds.
struct Attempt {
    /// The step that failed and the line by which reports name it; null on success or where the mapping went astray.
    const char* operation = nullptr;
    int line = 0;
    void* start = nullptr;
};

Attempt attemptMapping(std::size_t length) {
    const TPCircularBufferMemory& memory = circularBufferMemory();
    int descriptor = -1;
    void* start = memory.reserve(length, &descriptor);
    if (start == nullptr) {
        return {"Buffer allocation", 48, nullptr};
    }
    void* secondHalf = static_cast<char*>(start) + length;
    Attempt result;
    if (!memory.releaseSecondHalf(secondHalf, length)) {
        result = {"Buffer deallocation", 61, nullptr};
    } else if (void* landed = memory.remap(secondHalf, length, descriptor); landed == nullptr) {
        result = {"Remap buffer memory", 85, nullptr};
    } else if (landed == secondHalf) {
        result.start = start;
    } else {
        memory.release(landed, length);
    }
    const int error = errno;
    if (descriptor >= 0) {
        close(descriptor);
    }
    if (result.start == nullptr) {
        memory.release(start, 2 * length);
    }
    errno = error;
    return result;
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
