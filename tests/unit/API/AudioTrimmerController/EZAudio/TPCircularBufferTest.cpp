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

}  // namespace

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
}

TEST(TPCircularBuffer, RulesEndTheProcess) {
    Ring ring;
    EXPECT_DEATH(TPCircularBufferProduce(&ring.buffer, kPage + 1),
                 "fillCount <= buffer->length.*TPCircularBufferProduce, file TPCircularBuffer.h, line 145");
    EXPECT_DEATH(TPCircularBufferConsume(&ring.buffer, 1),
                 "fillCount >= 0.*TPCircularBufferConsume, file TPCircularBuffer.h, line 109");
    TPCircularBuffer other;
    EXPECT_DEATH(TPCircularBufferInit(&other, 0),
                 "length > 0.*_TPCircularBufferInit, file TPCircularBuffer.c, line 26");
    EXPECT_DEATH(_TPCircularBufferInit(&other, 1, 24), "TPCircularBuffer: Header version mismatch");
}

namespace {

int failures = 0;
int attempts = 0;

bool isFailing() {
    ++attempts;
    errno = ENOMEM;
    return failures-- > 0;
}

}  // namespace

TEST(TPCircularBuffer, EveryStepOfTheMappingIsTriedFourTimes) {
    struct Step {
        const char* report;
        void (*breakIn)(TPCircularBufferMemory& memory);
    };
    const Step steps[] = {
        {"TPCircularBuffer.c:48: Buffer allocation: Cannot allocate memory\n",
         [](TPCircularBufferMemory& memory) {
             memory.reserve = [](std::size_t length) -> void* {
                 return isFailing() ? nullptr : systemCircularBufferMemory().reserve(length);
             };
         }},
        {"TPCircularBuffer.c:61: Buffer deallocation: Cannot allocate memory\n",
         [](TPCircularBufferMemory& memory) {
             memory.releaseSecondHalf = [](void* half, std::size_t length) {
                 return !isFailing() && systemCircularBufferMemory().releaseSecondHalf(half, length);
             };
         }},
        {"TPCircularBuffer.c:85: Remap buffer memory: Cannot allocate memory\n",
         [](TPCircularBufferMemory& memory) {
             memory.remap = [](void* first, void* second, std::size_t length) -> void* {
                 return isFailing() ? nullptr : systemCircularBufferMemory().remap(first, second, length);
             };
         }},
        {"Couldn't map buffer memory to end of buffer\n",
         [](TPCircularBufferMemory& memory) {
             memory.remap = [](void* first, void* second, std::size_t length) {
                 return isFailing() ? mmap(nullptr, length, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0)
                                    : systemCircularBufferMemory().remap(first, second, length);
             };
         }},
    };
    for (const Step& step : steps) {
        for (const int times : {4, 3}) {
            step.breakIn(circularBufferMemory());
            failures = times;
            attempts = 0;
            TPCircularBuffer buffer;
            ::testing::internal::CaptureStdout();
            EXPECT_EQ(TPCircularBufferInit(&buffer, 1), times < 4);
            EXPECT_EQ(::testing::internal::GetCapturedStdout(), times < 4 ? "" : step.report);
            EXPECT_EQ(attempts, 4);
            TPCircularBufferCleanup(&buffer);
            circularBufferMemory() = systemCircularBufferMemory();
        }
    }
}

TEST(TPCircularBuffer, GivesEveryAddressBackOnce) {
    static std::size_t released = 0;
    circularBufferMemory().release = [](void* start, std::size_t length) {
        released += length;
        systemCircularBufferMemory().release(start, length);
    };
    TPCircularBuffer buffer;
    TPCircularBufferClear(&buffer);
    TPCircularBufferCleanup(&buffer);
    EXPECT_EQ(released, 0U);
    ASSERT_TRUE(TPCircularBufferInit(&buffer, 2 * kPage + 1));
    TPCircularBufferCleanup(&buffer);
    TPCircularBufferCleanup(&buffer);
    circularBufferMemory() = systemCircularBufferMemory();
    EXPECT_EQ(released, 6 * static_cast<std::size_t>(kPage));
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
        if (count > 0) {
            TPCircularBufferConsume(&ring.buffer, count);
        }
    }
    producer.join();
    EXPECT_EQ(wrong, 0U);
}

}  // namespace tavi::test
