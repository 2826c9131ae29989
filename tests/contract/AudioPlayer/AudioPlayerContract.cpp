#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>

#include "adapters/ffmpeg/converting/FfmpegAudioTempo.h"
#include "adapters/player/FilePlayer.h"
#include "adapters/pulse/PulseAudioOutput.h"
#include "adapters/pulse/PulseConnection.h"
#include "adapters/qt/QtRunLoop.h"
#include "support/EventLoop.h"
#include "support/FakeAudioPlayer.h"
#include "support/FakeExtAudioFile.h"
#include "support/ManualRunLoop.h"
#include "support/PrivatePulse.h"

namespace tavi::test {
namespace {

constexpr double kSeconds = 4.0;

struct FakePlayerWorld {
    FakePlayerWorld() { players.seconds["recording"] = kSeconds; }
    void removeServer() { players.last()->fail({QStringLiteral("gone")}); }
    bool wait(const std::function<bool()>& condition) {
        for (int tick = 0; tick < 1000 && !condition(); ++tick) {
            runLoop.advance(0.01);
        }
        return condition();
    }

    ManualRunLoop runLoop;
    FakeAudioPlayers players{runLoop};
};

struct RealPlayerWorld {
    RealPlayerWorld() {
        const auto sound = std::make_shared<FakeSound>();
        sound->planes.assign(2, std::vector<float>(static_cast<std::size_t>(kSeconds * sound->rate), 0.1F));
        files.sounds["recording"] = sound;
    }
    void removeServer() { server.kill(); }
    static bool wait(const std::function<bool()>& condition) { return spinUntil(condition); }

    PrivatePulse server;
    FakeExtAudioFiles files;
    FfmpegAudioTempos tempos;
    QtRunLoop runLoop;
    PulseAudioOutputs outputs{std::make_shared<PulseConnection>()};
    FilePlayers players{files, tempos, outputs, runLoop};
};

template <class World>
struct AudioPlayerContract : ::testing::Test, AudioPlayerDelegate {
    void audioPlayerDidFinishPlaying(AudioPlayer& player, bool successfully) override {
        EXPECT_FALSE(player.isPlaying());
        m_ends.push_back(successfully);
        if (m_dropsAtEnd) {
            m_player.reset();
        }
    }
    void make() {
        m_player = std::move(m_world.players.playerWithContentsOfURL("recording").value());
        m_player->setDelegate(this);
        m_player->setEnableRate(true);
    }
    bool waitForTime(double seconds) {
        return m_world.wait([&] { return m_player->currentTime() >= seconds; });
    }
    bool waitForEnds(std::size_t count) {
        return m_world.wait([&] { return m_ends.size() >= count; });
    }

    World m_world;
    std::unique_ptr<AudioPlayer> m_player;
    std::vector<bool> m_ends;
    bool m_dropsAtEnd = false;
};

using Worlds = ::testing::Types<FakePlayerWorld, RealPlayerWorld>;
TYPED_TEST_SUITE(AudioPlayerContract, Worlds);

TYPED_TEST(AudioPlayerContract, PlaysToTheEndOnceAndFromTheBeginningAgain) {
    EXPECT_FALSE(this->m_world.players.playerWithContentsOfURL("nowhere"));
    this->make();
    EXPECT_EQ(this->m_player->duration(), kSeconds);
    this->m_player->setCurrentTime(3.5);
    ASSERT_TRUE(this->m_player->prepareToPlay());
    EXPECT_EQ(this->m_player->currentTime(), 3.5);
    ASSERT_TRUE(this->m_player->play() && this->m_player->play() && this->m_player->isPlaying());
    ASSERT_TRUE(this->waitForEnds(1));
    EXPECT_EQ(this->m_player->currentTime(), kSeconds);
    ASSERT_TRUE(this->m_player->play());
    EXPECT_LT(this->m_player->currentTime(), 1.0);
    ASSERT_TRUE(this->waitForTime(0.1));
    this->m_player->setCurrentTime(kSeconds);
    this->m_dropsAtEnd = true;
    ASSERT_TRUE(this->waitForEnds(2));
    EXPECT_EQ(this->m_ends, (std::vector<bool>{true, true}));
}

TYPED_TEST(AudioPlayerContract, StaysWhereItIsPausedStoppedOrPut) {
    this->make();
    ASSERT_TRUE(this->m_player->play());
    ASSERT_TRUE(this->waitForTime(0.2));
    for (const bool stops : {false, true}) {
        stops ? this->m_player->stop() : this->m_player->pause();
        EXPECT_FALSE(this->m_player->isPlaying());
        const double paused = this->m_player->currentTime();
        EXPECT_GE(paused, 0.2);
        this->m_player->setRate(2.0F);
        this->m_world.wait([tick = 0]() mutable { return ++tick > 3; });
        EXPECT_EQ(this->m_player->currentTime(), paused);
        ASSERT_TRUE(this->m_player->play());
        ASSERT_TRUE(this->waitForTime(paused + 0.2));
        EXPECT_LT(this->m_player->currentTime(), kSeconds);
    }
    const double nan = std::numeric_limits<double>::quiet_NaN();
    this->m_player->pause();
    for (const auto& [asked, got] : {std::pair{-1.0, 0.0}, {99.0, kSeconds}, {1.5, 1.5}, {nan, 1.5}}) {
        this->m_player->setCurrentTime(asked);
        EXPECT_EQ(this->m_player->currentTime(), got) << asked;
    }
    EXPECT_TRUE(this->m_ends.empty());
}

TYPED_TEST(AudioPlayerContract, HasARateBetweenHalfAndDoubleAndMetersWhatIsPlayed) {
    this->make();
    this->m_player->setMeteringEnabled(true);
    this->m_player->updateMeters();
    EXPECT_EQ(this->m_player->averagePowerForChannel(0), -160.0F);
    ASSERT_TRUE(this->m_player->play());
    EXPECT_TRUE(this->m_world.wait([&] {
        this->m_player->updateMeters();
        return std::abs(this->m_player->averagePowerForChannel(0) + 20.0F) < 0.1F;
    }));
    EXPECT_EQ(this->m_player->averagePowerForChannel(7), -160.0F);
    // Changes in a row, and changes together with jumps: the last of each counts.
    for (const auto& [asked, got] : {std::pair{0.1F, 0.5F}, {9.0F, 2.0F}, {1.25F, 1.25F}}) {
        this->m_player->setRate(asked);
        this->m_player->setCurrentTime(3.0);
        this->m_player->setRate(asked);
        EXPECT_EQ(this->m_player->rate(), got);
    }
    EXPECT_EQ(this->m_player->currentTime(), 3.0);
    ASSERT_TRUE(this->waitForEnds(1));
    EXPECT_EQ(this->m_ends, std::vector<bool>{true});
}

TYPED_TEST(AudioPlayerContract, TellsOnceForEachPlayingWhyTheSoundSystemIsGone) {
    this->make();
    ASSERT_TRUE(this->m_player->play());
    ASSERT_TRUE(this->waitForTime(0.1));
    this->m_world.removeServer();
    for (std::size_t playing = 1; playing <= 2; ++playing) {
        ASSERT_TRUE(this->waitForEnds(playing));
        EXPECT_FALSE(this->m_player->error().text.isEmpty());
        this->m_player->stop();
        this->m_world.wait([tick = 0]() mutable { return ++tick > 3; });
        EXPECT_EQ(this->m_ends, std::vector<bool>(playing, false));
        EXPECT_FALSE(this->m_player->isPlaying());
        EXPECT_LT(this->m_player->currentTime(), kSeconds);
        EXPECT_TRUE(this->m_player->play());
    }
}

}  // namespace
}  // namespace tavi::test
