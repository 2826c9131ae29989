#include <gtest/gtest.h>

#include <QtCore/qtestsupport_core.h>
#include <future>

#include "adapters/pulse/PulseAudioSession.h"
#include "adapters/pulse/PulseConnection.h"
#include "support/Fakes.h"
#include "support/PrivatePulse.h"

namespace tavi::test {
namespace {

class FakeSessionWorld {
public:
    AudioSession& session() { return m_session; }
    void removeMicrophone() { m_session.inputAvailable = false; }
    void removeServer() {
        m_session.inputAvailable = false;
        m_session.categoryResult = failure(QStringLiteral("no server"));
        m_session.route = failure(QStringLiteral("no server"));
    }
    void answerQuestions() { m_session.answer(true); }

private:
    FakeAudioSession m_session;
};

class PulseSessionWorld {
public:
    AudioSession& session() { return m_session; }
    void removeMicrophone() { m_server.removeMicrophones(); }
    void removeServer() { m_server.kill(); }
    void answerQuestions() {}

private:
    PrivatePulse m_server;
    PulseAudioSession m_session{std::make_shared<PulseConnection>()};
};

template <class World>
class AudioSessionContract : public ::testing::Test {
protected:
    bool ask() {
        std::promise<bool> answer;
        m_world.session().requestRecordPermission([&answer](bool granted) { answer.set_value(granted); });
        m_world.answerQuestions();
        return answer.get_future().get();
    }
    Result<void> setCategory() {
        return m_world.session().setCategory(AudioSession::Category::PlayAndRecord,
                                             AudioSession::CategoryOption::DefaultToSpeaker);
    }

    World m_world;
};

using Worlds = ::testing::Types<FakeSessionWorld, PulseSessionWorld>;
TYPED_TEST_SUITE(AudioSessionContract, Worlds);

TYPED_TEST(AudioSessionContract, RecordsWithAMicrophone) {
    EXPECT_TRUE(this->ask());
    EXPECT_TRUE(this->setCategory());
    EXPECT_TRUE(this->m_world.session().setActive(true));
    EXPECT_TRUE(this->m_world.session().isInputAvailable());

    this->m_world.removeMicrophone();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !this->m_world.session().isInputAvailable(); }));
    EXPECT_TRUE(this->setCategory());
}

TYPED_TEST(AudioSessionContract, ADeviceWithoutAChoiceKeepsItsRoute) {
    AudioSession& session = this->m_world.session();
    ASSERT_TRUE(this->ask());
    ASSERT_TRUE(session.setCategory(AudioSession::Category::PlayAndRecord, AudioSession::CategoryOption::None));
    const Result<QString> route = session.currentRoute();
    ASSERT_TRUE(route);
    EXPECT_FALSE(route->isEmpty());
    for (const auto port : {AudioSession::PortOverride::None, AudioSession::PortOverride::Speaker}) {
        EXPECT_TRUE(session.overrideOutputAudioPort(port));
        EXPECT_EQ(session.currentRoute().value_or(QString()), *route);
    }
}

TYPED_TEST(AudioSessionContract, NobodyRefusesWithoutAServer) {
    this->m_world.removeServer();
    EXPECT_TRUE(this->ask());
    EXPECT_FALSE(this->m_world.session().isInputAvailable());
    const Result<void> category = this->setCategory();
    ASSERT_FALSE(category);
    EXPECT_FALSE(category.error().text.isEmpty());
    EXPECT_FALSE(this->m_world.session().currentRoute());
    EXPECT_FALSE(this->m_world.session().overrideOutputAudioPort(AudioSession::PortOverride::Speaker));
}

}  // namespace
}  // namespace tavi::test
