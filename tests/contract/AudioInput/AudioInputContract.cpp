#include <gtest/gtest.h>

#include "adapters/pulse/PulseAudioInput.h"
#include "adapters/pulse/PulseConnection.h"
#include "support/CollectingListener.h"
#include "support/EventLoop.h"
#include "support/FakeAudioInput.h"
#include "support/PrivatePulse.h"

namespace tavi::test {
namespace {

class FakeInputWorld {
public:
    AudioInputs& inputs() { return m_inputs; }
    /// Lets sound come in where it does not come by itself.
    void hear() { m_inputs.last->deliver(std::vector<float>(960)); }
    void removeMicrophone() { m_inputs.last->fail({QStringLiteral("gone")}); }

private:
    FakeAudioInputs m_inputs;
};

class PulseInputWorld {
public:
    AudioInputs& inputs() { return m_inputs; }
    void hear() {}
    void removeMicrophone() { m_server.kill(); }

private:
    PrivatePulse m_server;
    PulseAudioInputs m_inputs{std::make_shared<PulseConnection>()};
};

template <class World>
class AudioInputContract : public ::testing::Test {
protected:
    std::unique_ptr<AudioInput> opened() { return std::move(m_world.inputs().open(m_listener).value()); }
    bool hearMore() {
        const std::size_t before = m_listener.heard().frames();
        m_world.hear();
        return m_listener.waitForFrames(before + 1);
    }

    World m_world;
    CollectingListener m_listener;
};

using Worlds = ::testing::Types<FakeInputWorld, PulseInputWorld>;
TYPED_TEST_SUITE(AudioInputContract, Worlds);

TYPED_TEST(AudioInputContract, DeliversBetweenResumeAndPause) {
    const auto input = this->opened();
    input->pause();  // It is paused: nothing to answer.
    input->resume();
    input->resume();
    ASSERT_TRUE(this->hearMore());
    input->pause();
    input->pause();
    ASSERT_TRUE(this->m_listener.waitForEvents("pause", 1));
    this->m_world.hear();
    input->resume();
    ASSERT_TRUE(this->hearMore());

    EXPECT_EQ(this->m_listener.heard().events.join(QLatin1Char(' ')), QStringLiteral("open sound pause sound"));
}

TYPED_TEST(AudioInputContract, AnswersEachPauseOnceHoweverFastTheyCome) {
    const auto input = this->opened();
    for (int i = 0; i < 5; ++i) {
        input->resume();
        input->pause();
    }
    input->resume();
    ASSERT_TRUE(this->hearMore());
    input->pause();
    ASSERT_TRUE(this->m_listener.waitForEvents("pause", 6));
    EXPECT_EQ(this->m_listener.heard().count("pause"), 6);
    EXPECT_EQ(this->m_listener.heard().count("fail"), 0);
}

TYPED_TEST(AudioInputContract, FailsOnceAndIsSilentThen) {
    const auto input = this->opened();
    input->resume();
    ASSERT_TRUE(this->hearMore());
    this->m_world.removeMicrophone();
    ASSERT_TRUE(this->m_listener.waitForEvents("fail", 1));
    const auto before = this->m_listener.heard();
    input->pause();
    input->resume();
    this->m_world.hear();
    spinUntil([tick = 0]() mutable { return ++tick > 3; });
    EXPECT_EQ(this->m_listener.heard().events, before.events);
    EXPECT_EQ(this->m_listener.heard().frames(), before.frames());
}

}  // namespace
}  // namespace tavi::test
