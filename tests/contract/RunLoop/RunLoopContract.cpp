#include <gmock/gmock.h>

#include <thread>

#include "adapters/qt/QtRunLoop.h"
#include "support/EventLoop.h"
#include "support/ManualRunLoop.h"

namespace tavi::test {

namespace {

using ::testing::ElementsAre;

template <class Condition>
bool passUntil(ManualRunLoop& loop, Condition condition) {
    for (int step = 0; step < 10'000 && !condition(); ++step) {
        loop.advance(0.001);
    }
    return condition();
}

template <class Condition>
bool passUntil(QtRunLoop&, Condition condition) {
    return spinUntil(condition);
}

template <class Loop>
struct RunLoopContract : ::testing::Test {
    std::unique_ptr<Loop> m_loop = std::make_unique<Loop>();
};

using Loops = ::testing::Types<ManualRunLoop, QtRunLoop>;
TYPED_TEST_SUITE(RunLoopContract, Loops);

TYPED_TEST(RunLoopContract, DispatchesToTheMainThreadInOrderAndLater) {
    auto& loop = *this->m_loop;
    std::vector<int> order;
    std::thread::id thread;
    for (int i = 0; i < 3; ++i) {
        loop.dispatchMain([&order, i] { order.push_back(i); });
    }
    EXPECT_TRUE(order.empty());
    loop.dispatchBackground([&] {
        for (int i = 3; i < 100; ++i) {
            loop.dispatchMain([&order, i] { order.push_back(i); });
        }
        loop.dispatchMain([&thread] { thread = std::this_thread::get_id(); });
    });
    ASSERT_TRUE(passUntil(loop, [&thread] { return thread != std::thread::id(); }));
    EXPECT_EQ(thread, std::this_thread::get_id());
    EXPECT_EQ(order.size(), 100U);
    EXPECT_TRUE(std::is_sorted(order.begin(), order.end()));
}

TYPED_TEST(RunLoopContract, CallsWhatIsDueInItsOrder) {
    auto& loop = *this->m_loop;
    std::vector<std::string> order;
    const auto late = loop.scheduledTimer(0.09, false, [&order] { order.emplace_back("late"); });
    loop.dispatchAfter(0.05, [&order] { order.emplace_back("after"); });
    loop.scheduledTimer(0.01, false, [&order] { order.emplace_back("early"); });
    loop.dispatchMain([&order] { order.emplace_back("now"); });
    ASSERT_TRUE(passUntil(loop, [&order] { return order.size() == 4; }));
    EXPECT_THAT(order, ElementsAre("now", "early", "after", "late"));
    EXPECT_FALSE(late->isValid());
}

TYPED_TEST(RunLoopContract, RepeatsUntilInvalidatedWhoeverHoldsTheHandle) {
    auto& loop = *this->m_loop;
    int dropped = 0;
    int stopped = 0;
    loop.scheduledTimer(0.002, true, [&dropped] { ++dropped; });
    std::shared_ptr<Timer> handle;
    const auto token = std::make_shared<int>();
    handle = loop.scheduledTimer(0.002, true, [&handle, &stopped, token] {
        ++stopped;
        handle->invalidate();
        handle->invalidate();
        // What it captured is still there.
        EXPECT_GT(token.use_count(), 1);
    });
    EXPECT_TRUE(handle->isValid());
    ASSERT_TRUE(passUntil(loop, [&dropped] { return dropped >= 5; }));
    EXPECT_EQ(stopped, 1);
    EXPECT_FALSE(handle->isValid());
    handle->invalidate();
}

TYPED_TEST(RunLoopContract, DropsWhatIsPendingWhenItGoes) {
    const auto token = std::make_shared<int>();
    auto calls = std::make_shared<int>(0);
    const auto call = [token, calls] { ++*calls; };
    const auto timer = this->m_loop->scheduledTimer(0.0, true, call);
    this->m_loop->dispatchMain(call);
    this->m_loop->dispatchAfter(0.0, call);
    this->m_loop.reset();
    QCoreApplication::processEvents();
    EXPECT_EQ(*calls, 0);
    timer->invalidate();
}

TEST(QtRunLoop, CallsThatDispatchCallsLetTimersIn) {
    QtRunLoop loop;
    int calls = 0;
    bool isTimerCalled = false;
    std::function<void()> call = [&] {
        if (++calls < 1'000'000 && !isTimerCalled) {
            loop.dispatchMain(call);
        }
    };
    loop.scheduledTimer(0.001, false, [&isTimerCalled] { isTimerCalled = true; });
    loop.dispatchMain(call);
    EXPECT_TRUE(spinUntil([&isTimerCalled] { return isTimerCalled; }));
    EXPECT_LT(calls, 1'000'000);
}

TEST(QtRunLoop, KeepsToTheGridWhateverCallsTake) {
    using std::chrono::milliseconds;
    // Interval, call and next call of a timer that was due at 0; all in milliseconds.
    const std::array<int, 3> cases[] = {{100, 0, 100},    {100, 99, 100},     {100, 100, 200},    {100, 1234, 1300},
                                        {1000, 40, 1000}, {1000, 3500, 1000}, {5000, 12000, 5000}};
    const QtRunLoop::TimePoint due{std::chrono::hours(1)};
    for (const auto& [interval, called, expected] : cases) {
        EXPECT_EQ(QtRunLoop::nextDue(due, milliseconds(interval), due + milliseconds(called)),
                  due + milliseconds(expected))
            << interval << " called at " << called;
    }
}

}  // namespace

}  // namespace tavi::test
