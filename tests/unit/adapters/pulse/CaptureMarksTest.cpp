#include "adapters/pulse/CaptureMarks.h"

#include <gtest/gtest.h>

#include <sstream>

namespace tavi::test {
namespace {

/// What is delivered of a stereo stream whose frames are numbered: the numbers, "~" for a frame of a hole, and "|"
/// where a pause is told. Times are frame numbers, too. The script: "+2" resumes and "-4" pauses at a time, "?" locates
/// what is not located, "<1" limits, "7" reads frames, and "~7" a hole.
std::string heard(const char* script) {
    std::vector<float> sound;
    for (int i = 0; i < 100; ++i) {
        sound.insert(sound.end(), 2, static_cast<float>(i));
    }
    CaptureMarks marks;
    std::int64_t position = 0;
    std::ostringstream text;
    const auto read = [&](std::int64_t frames, bool isHole) {
        marks.read(
            isHole ? nullptr : sound.data() + 2 * position, frames, 2,
            [&text](const float* interleaved, std::size_t count) {
                for (std::size_t i = 0; i < count; ++i) {
                    interleaved == nullptr ? text << "~ " : text << interleaved[2 * i] << ' ';
                }
            },
            [&text] { text << "| "; });
        position += frames;
    };
    std::istringstream steps(script);
    for (std::string step; steps >> step;) {
        const int number = std::atoi(step.c_str() + (std::isdigit(step[0]) == 0 ? 1 : 0));
        switch (step[0]) {
            case '+':
            case '-':
                marks.add(step[0] == '+', static_cast<std::uint64_t>(number));
                break;
            case '?':
                EXPECT_TRUE(marks.isWaitingForTiming());
                marks.locate([&](std::uint64_t time) { return static_cast<std::int64_t>(time) - position; });
                break;
            case '<':
                marks.limit(number);
                break;
            default:
                EXPECT_FALSE(marks.isWaitingForTiming());
                read(number, step[0] == '~');
        }
    }
    return text.str();
}

TEST(CaptureMarks, CutTheStreamWhereItIsWanted) {
    EXPECT_EQ(heard("+2 -4 +5 -9 +9 ? 7 ~1 3 -12 ? 5"), "2 3 | 5 6 ~ 8 | 9 10 11 | ") << "inside a fragment";
    EXPECT_EQ(heard("+0 ? 3 -1 +0 ? 2"), "0 1 2 | 3 4 ") << "what is read cannot be taken back";
    EXPECT_EQ(heard("+0 ? 2 -50 ? +60 <1 3"), "0 1 2 | 3 4 ") << "the timing does not come";
}

}  // namespace
}  // namespace tavi::test
