#include "API/AudioTrimmerController/EZAudio/TPCircularBuffer/TPCircularBuffer.h"

#include <gmock/gmock.h>
#include <unistd.h>

#include <cerrno>
#include <thread>
#include <vector>

#include "API/AudioTrimmerController/EZAudio/TPCircularBuffer/TPCircularBufferMemory.h"

namespace tavi::test {

namespace {

const auto kPage = static_cast<std::int32_t>(sysconf(_SC_PAGESIZE));

class Ring {
public:
    explicit Ring(std::int32_t length = 1) { EXPECT_TRUE(TPCircularBufferInit(&buffer, length)); }
    ~Ring() { TPCircularBufferCleanup(&buffer); }
    Ring(const Ring&) = delete;
    Ring& operator=(const Ring&) = delete;

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

TEST(TPCircularBuffer, RulesEndTheProcessWithTheirPlace) {
    Ring ring;
    EXPECT_DEATH(TPCircularBufferProduce(&ring.buffer, kPage + 1),
                 R"(\(buffer->fillCount <= buffer->length\), function TPCircularBufferProduce, )"
                 R"(file TPCircularBuffer.h, line 145)");
    EXPECT_DEATH(TPCircularBufferConsume(&ring.buffer, 1),
                 R"(\(buffer->fillCount >= 0\), function TPCircularBufferConsume, file TPCircularBuffer.h, line 109)");
    TPCircularBuffer other;
    EXPECT_DEATH(TPCircularBufferInit(&other, 0),
                 R"(\(length > 0\), function _TPCircularBufferInit, file TPCircularBuffer.c, line 26)");
    EXPECT_DEATH(_TPCircularBufferInit(&other, 1, 24), "Header version mismatch");
    TPCircularBufferClear(&other);
    TPCircularBufferCleanup(&other);
}

namespace {

/// Fails one step of mapping a number of times.
struct FailingMemory {
    enum Step { Reserve, Release, Remap, Astray };

    FailingMemory(Step failingStep, int times) {
        step = failingStep;
        left = times;
        circularBufferMemory() = {
            [](std::size_t length, int* descriptor) {
                return fails(Reserve) ? nullptr : systemCircularBufferMemory().reserve(length, descriptor);
            },
            [](void* half, std::size_t length) {
                return !fails(Release) && systemCircularBufferMemory().releaseSecondHalf(half, length);
            },
            [](void* half, std::size_t length, int descriptor) -> void* {
                if (fails(Remap)) {
                    return nullptr;
                }
                if (fails(Astray)) {
                    int other = -1;
                    void* elsewhere = systemCircularBufferMemory().reserve(length, &other);
                    close(other);
                    systemCircularBufferMemory().release(static_cast<char*>(elsewhere) + length, length);
                    return elsewhere;
                }
                return systemCircularBufferMemory().remap(half, length, descriptor);
            },
            [](void* start, std::size_t length) { systemCircularBufferMemory().release(start, length); }};
    }
    ~FailingMemory() { circularBufferMemory() = systemCircularBufferMemory(); }
    FailingMemory(const FailingMemory&) = delete;
    FailingMemory& operator=(const FailingMemory&) = delete;

    static bool fails(Step asked) {
        errno = ENOMEM;
        return asked == step && left-- > 0;
    }

    static inline Step step = Reserve;
    static inline int left = 0;
};

}  // namespace

TEST(TPCircularBuffer, MappingIsTriedFourTimes) {
    const struct {
        FailingMemory::Step step;
        const char* message;
    } cases[] = {{FailingMemory::Reserve, "TPCircularBuffer.c:48: Buffer allocation: Cannot allocate memory\n"},
                 {FailingMemory::Release, "TPCircularBuffer.c:61: Buffer deallocation: Cannot allocate memory\n"},
                 {FailingMemory::Remap, "TPCircularBuffer.c:85: Remap buffer memory: Cannot allocate memory\n"},
                 {FailingMemory::Astray, "Couldn't map buffer memory to end of buffer\n"}};
    for (const auto& row : cases) {
        SCOPED_TRACE(row.message);
        TPCircularBuffer buffer;
        {
            const FailingMemory memory(row.step, 4);
            ::testing::internal::CaptureStdout();
            EXPECT_FALSE(TPCircularBufferInit(&buffer, 1));
            EXPECT_EQ(::testing::internal::GetCapturedStdout(), row.message);
        }
        const FailingMemory memory(row.step, 3);
        ::testing::internal::CaptureStdout();
        EXPECT_TRUE(TPCircularBufferInit(&buffer, 1));
        EXPECT_EQ(::testing::internal::GetCapturedStdout(), "");
        TPCircularBufferCleanup(&buffer);
    }
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
