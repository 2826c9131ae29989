#include "API/AudioTrimmerController/EZAudio/TPCircularBuffer/TPCircularBuffer.h"

#include <gmock/gmock.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <thread>
#include <vector>

#include "API/AudioTrimmerController/EZAudio/TPCircularBuffer/TPCircularBufferMemory.h"

namespace tavi::test {
namespace {

const auto kPage = static_cast<std::int32_t>(sysconf(_SC_PAGESIZE));

struct Ring {
    Ring() { EXPECT_TRUE(TPCircularBufferInit(&buffer, 1)); }
    ~Ring() { TPCircularBufferCleanup(&buffer); }

    TPCircularBuffer buffer;
};

TEST(TPCircularBuffer, WrapsThroughTheMirrorInOneCopy) {
    Ring ring;
    ASSERT_EQ(ring.buffer.length, kPage);
    std::vector<char> bytes(static_cast<std::size_t>(kPage), 'x');
    ASSERT_TRUE(TPCircularBufferProduceBytes(&ring.buffer, bytes.data(), kPage - 1));
    TPCircularBufferClear(&ring.buffer);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<char>(i % 251);
    }
    ASSERT_TRUE(TPCircularBufferProduceBytes(&ring.buffer, bytes.data(), kPage));
    EXPECT_FALSE(TPCircularBufferProduceBytes(&ring.buffer, bytes.data(), 1));
    std::int32_t count = -1;
    EXPECT_EQ(TPCircularBufferHead(&ring.buffer, &count), nullptr);
    const void* tail = TPCircularBufferTail(&ring.buffer, &count);
    ASSERT_EQ(count, kPage);
    EXPECT_EQ(std::memcmp(tail, bytes.data(), bytes.size()), 0);
    EXPECT_EQ(static_cast<char*>(ring.buffer.buffer)[0], bytes[1]);
    EXPECT_DEATH(TPCircularBufferProduce(&ring.buffer, 1),
                 "fillCount <= buffer->length.*TPCircularBufferProduce, file TPCircularBuffer.h, line 145");
    EXPECT_DEATH(TPCircularBufferConsume(&ring.buffer, kPage + 1),
                 "fillCount >= 0.*TPCircularBufferConsume, file TPCircularBuffer.h, line 109");
    EXPECT_DEATH(TPCircularBufferInit(&ring.buffer, 0), "length > 0.*_TPCircularBufferInit, file TPCircularBuffer.c");
    EXPECT_DEATH(_TPCircularBufferInit(&ring.buffer, 1, 24), "TPCircularBuffer: Header version mismatch");
}

/// Which step of the mapping is to fail, how often still, and how often it was tried.
int failingStep = 0;
int failures = 0;
int attempts = 0;
/// Addresses that have not been given back.
std::size_t held = 0;

bool isFailing(int step) {
    if (step == failingStep) {
        ++attempts;
        errno = ENOMEM;
        return failures-- > 0;
    }
    return false;
}

TPCircularBufferMemory failingMemory() {
    return {[](std::size_t length) {
                held += isFailing(0) ? 0 : 2 * length;
                return held == 0 ? nullptr : systemCircularBufferMemory().reserve(length);
            },
            [](void* half, std::size_t length) {
                return !isFailing(1) && systemCircularBufferMemory().releaseSecondHalf(half, length);
            },
            [](void* first, void* second, std::size_t length) -> void* {
                if (isFailing(3)) {
                    held += length;
                    return mmap(nullptr, length, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
                }
                return isFailing(2) ? nullptr : systemCircularBufferMemory().remap(first, second, length);
            },
            [](void* start, std::size_t length) {
                held -= length;
                systemCircularBufferMemory().release(start, length);
            }};
}

TEST(TPCircularBuffer, TriesEachStepOfTheMappingFourTimesAndGivesEveryAddressBackOnce) {
    const char* const reports[] = {"TPCircularBuffer.c:48: Buffer allocation: Cannot allocate memory\n",
                                   "TPCircularBuffer.c:61: Buffer deallocation: Cannot allocate memory\n",
                                   "TPCircularBuffer.c:85: Remap buffer memory: Cannot allocate memory\n",
                                   "Couldn't map buffer memory to end of buffer\n"};
    circularBufferMemory() = failingMemory();
    for (failingStep = 0; failingStep < 4; ++failingStep) {
        for (const int times : {4, 3}) {
            failures = times;
            attempts = 0;
            TPCircularBuffer buffer;
            ::testing::internal::CaptureStdout();
            EXPECT_EQ(TPCircularBufferInit(&buffer, kPage + 1), times < 4);
            EXPECT_EQ(::testing::internal::GetCapturedStdout(), times < 4 ? "" : reports[failingStep]);
            EXPECT_EQ(attempts, 4);
            EXPECT_EQ(held, times < 4 ? 4 * static_cast<std::size_t>(kPage) : 0);
            TPCircularBufferClear(&buffer);
            TPCircularBufferCleanup(&buffer);
            TPCircularBufferCleanup(&buffer);
            EXPECT_EQ(held, 0U);
        }
    }
    circularBufferMemory() = systemCircularBufferMemory();
}

TEST(TPCircularBuffer, CarriesEveryByteBetweenTwoThreads) {
    Ring ring;
    constexpr std::uint32_t kValues = 200'000;
    std::thread producer([&ring] {
        for (std::uint32_t value = 0; value < kValues;) {
            value += TPCircularBufferProduceBytes(&ring.buffer, &value, sizeof(value)) ? 1U : 0U;
        }
    });
    std::uint32_t expected = 0;
    std::uint32_t wrong = 0;
    while (expected < kValues) {
        std::int32_t count = 0;
        const auto* values = static_cast<const std::uint32_t*>(TPCircularBufferTail(&ring.buffer, &count));
        for (std::int32_t i = 0; i < count / 4; ++i) {
            wrong += values[i] == expected++ ? 0U : 1U;
        }
        TPCircularBufferConsume(&ring.buffer, count);
    }
    producer.join();
    EXPECT_EQ(wrong, 0U);
}

}  // namespace
}  // namespace tavi::test
