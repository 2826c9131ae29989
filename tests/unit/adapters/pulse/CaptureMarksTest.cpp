#include "adapters/pulse/CaptureMarks.h"

#include <gmock/gmock.h>

namespace tavi::test {
namespace {

using ::testing::ElementsAre;

constexpr float kPause = -1;
constexpr float kHole = -2;

/// Stereo whose frames are numbered; times are frame numbers too. Keeps the left samples delivered, and the pauses.
class CaptureMarksTest : public ::testing::Test {
protected:
    CaptureMarksTest() {
        for (int i = 0; i < 100; ++i) {
            m_sound.insert(m_sound.end(), 2, static_cast<float>(i));
        }
    }
    void locate() {
        m_marks.locate([this](std::uint64_t time) { return static_cast<std::int64_t>(time) - m_read; });
    }
    void read(std::int64_t frames, bool isHole = false) {
        m_marks.read(
            isHole ? nullptr : m_sound.data() + 2 * m_read, frames, 2,
            [this](const float* interleaved, std::size_t count) {
                for (std::size_t i = 0; i < count; ++i) {
                    m_heard.push_back(interleaved == nullptr ? kHole : interleaved[2 * i]);
                }
            },
            [this] { m_heard.push_back(kPause); });
        m_read += frames;
    }

    std::vector<float> m_sound;
    std::int64_t m_read = 0;
    CaptureMarks m_marks;
    std::vector<float> m_heard;
};

TEST_F(CaptureMarksTest, CutsInsideAFragment) {
    m_marks.add(true, 2);
    m_marks.add(false, 4);
    m_marks.add(true, 5);
    m_marks.add(false, 9);
    m_marks.add(true, 9);
    EXPECT_TRUE(m_marks.isWaitingForTiming());
    locate();
    EXPECT_FALSE(m_marks.isWaitingForTiming());
    read(7);
    EXPECT_EQ(m_marks.firstPause(), 9);
    read(1, true);
    read(3);
    m_marks.add(false, 12);
    locate();
    read(5);
    EXPECT_THAT(m_heard, ElementsAre(2, 3, kPause, 5, 6, kHole, 8, kPause, 9, 10, 11, kPause));
    EXPECT_TRUE(m_marks.isEmpty());
}

TEST_F(CaptureMarksTest, KeepsOrderWhereTimingGoesBack) {
    m_marks.add(true, 0);
    locate();
    read(10);
    m_marks.add(false, 8);  // Read already: it cannot be taken back.
    m_marks.add(true, 7);
    locate();
    read(2);
    EXPECT_THAT(m_heard, ElementsAre(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, kPause, 10, 11));
}

TEST_F(CaptureMarksTest, ALimitEndsTheWaiting) {
    m_marks.add(true, 0);
    locate();
    read(2);
    m_marks.add(false, 50);
    locate();
    m_marks.add(true, 60);
    m_marks.limit(1);
    EXPECT_FALSE(m_marks.isWaitingForTiming());
    read(3);
    EXPECT_THAT(m_heard, ElementsAre(0, 1, 2, kPause, 3, 4));
}

}  // namespace
}  // namespace tavi::test
