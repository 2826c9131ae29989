#include <gmock/gmock.h>

#include <QProcess>

#include "support/EventLoop.h"
#include "support/PrivateBus.h"
#include "support/TemporaryContainer.h"
#include "watch/TransitingTypes.h"

namespace tavi::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using Type = MMWormholeTransitingType;

/// One end of a channel in a program of its own.
class Peer {
public:
    Peer(const char* end, Type type, const TemporaryContainer& container) {
        m_process.start(QStringLiteral(TAVI_CHANNEL_PEER),
                        {QLatin1String(end), QLatin1String(kTransitingTypeNames[static_cast<std::size_t>(type)]),
                         QString::fromStdString(container.root()),
                         QLatin1String(end == std::string("recorder") ? "Record" : "Unheard")});
        waitFor("there");
    }
    ~Peer() {
        m_process.closeWriteChannel();
        m_process.waitForFinished(20'000);
    }
    Peer(const Peer&) = delete;
    Peer& operator=(const Peer&) = delete;

    /// A line at a time, for who reads it buffers more.
    void act(const QByteArray& line) {
        m_process.write(line + '\n');
        waitFor("done");
    }
    /// Begins something, and does not wait for its end.
    void begin(const QByteArray& line) { m_process.write(line + '\n'); }
    void kill() {
        m_process.kill();
        m_process.waitForFinished(20'000);
    }
    /// Waits for a line, and takes it with all before it; those that begin with "heard" are kept.
    bool waitFor(const QByteArray& line) {
        const bool isThere = spinUntil([&] {
            while (m_process.canReadLine() || m_process.waitForReadyRead(1)) {
                const QByteArray next = m_process.readLine().trimmed();
                if (next.startsWith("heard ")) {
                    heard.append(next.mid(6));
                }
                if (next == line) {
                    return true;
                }
            }
            return false;
        });
        EXPECT_TRUE(isThere) << line.constData();
        return isThere;
    }

    QByteArrayList heard;

private:
    QProcess m_process;
};

class CompanionChannelTest : public ::testing::TestWithParam<Type> {
protected:
    std::unique_ptr<Peer> start(const char* end) { return std::make_unique<Peer>(end, GetParam(), m_container); }

    PrivateBus m_bus;
    TemporaryContainer m_container;
};

TEST_P(CompanionChannelTest, BringsMessagesThroughDeathsAndRestarts) {
    const bool bySession = isOfSession(GetParam());
    const bool everyOne = GetParam() == Type::SessionFile || GetParam() == Type::SessionMessage;
    auto recorder = start("recorder");
    auto companion = start("companion");
    const auto meet = [&](Peer& one, Peer& other) {
        EXPECT_TRUE(!bySession || (one.waitFor("reached") && other.waitFor("reached")));
    };
    meet(*recorder, *companion);

    // In order, and the last one in every case; what travels as it is arrives each time.
    companion->act("count Record 4");
    ASSERT_TRUE(recorder->waitFor("heard 4"));
    EXPECT_TRUE(std::is_sorted(recorder->heard.begin(), recorder->heard.end()));
    if (everyOne) {
        EXPECT_THAT(recorder->heard, ElementsAre("1", "2", "3", "4"));
    }
    if (GetParam() == Type::SessionFile) {
        companion->act("bytes Record 104857600");
        ASSERT_TRUE(recorder->waitFor("heard 104857600 bytes"));
    } else {
        companion->act("bytes Record 17825792");
        companion->act("nothing Record");
    }
    if (!bySession) {
        // Nothing as a message is told, and what was there before is read.
        ASSERT_TRUE(recorder->waitFor("heard 4"));
    }

    // One that dies while it sends, and one that comes in its place.
    companion->begin(GetParam() == Type::SessionFile ? "bytes Record 104857600" : "bytes Record 16000000");
    companion->kill();
    companion = start("companion");
    EXPECT_TRUE(!bySession || (recorder->waitFor("alone") && recorder->waitFor("reached")));
    companion->act("pass Record again");
    ASSERT_TRUE(recorder->waitFor("heard again"));

    // A receiver that dies: what is passed meanwhile waits where that is the way's nature.
    recorder->kill();
    EXPECT_TRUE(!bySession || companion->waitFor("alone"));
    companion->act("pass Record meanwhile");
    recorder = start("recorder");
    if (GetParam() == Type::SessionContext) {
        ASSERT_TRUE(recorder->waitFor("heard meanwhile"));
    }
    EXPECT_TRUE(!bySession || companion->waitFor("reached"));
    if (!everyOne) {
        recorder->act("read Record");
    }
    companion->act("pass Record last");
    ASSERT_TRUE(recorder->waitFor("heard last"));
    EXPECT_EQ(recorder->heard.contains("meanwhile"), GetParam() == Type::SessionContext);
}

INSTANTIATE_TEST_SUITE_P(All, CompanionChannelTest,
                         ::testing::Values(Type::File, Type::CoordinatedFile, Type::SessionContext, Type::SessionFile,
                                           Type::SessionMessage),
                         [](const auto& way) { return kTransitingTypeNames[static_cast<std::size_t>(way.param)]; });

}  // namespace
}  // namespace tavi::test
