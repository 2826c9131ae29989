#include <gmock/gmock.h>

#include <QDBusMessage>

#include "adapters/dbus/DBusNotifyCenter.h"
#include "support/EventLoop.h"
#include "support/FakeChannel.h"
#include "support/PrivateBus.h"

namespace tavi::test {
namespace {

using ::testing::ElementsAre;

/// Two programs and what connects them; of the fake, one that is both.
struct Centers {
    virtual ~Centers() = default;
    virtual NotifyCenter& here() = 0;
    virtual NotifyCenter& there() = 0;
    /// Returns once what is wanted here is known to what connects the two.
    virtual void settle() {}
};

struct FakeCenters : Centers {
    NotifyCenter& here() override { return m_center; }
    NotifyCenter& there() override { return m_center; }
    FakeNotifyCenter m_center;
};

struct BusCenters : Centers {
    NotifyCenter& here() override { return m_here; }
    NotifyCenter& there() override { return m_there; }
    void settle() override {
        m_hereBus.call(QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/"),
                                                      QStringLiteral("org.freedesktop.DBus.Peer"),
                                                      QStringLiteral("Ping")));
    }
    PrivateBus m_bus;
    QDBusConnection m_hereBus = m_bus.connect();
    DBusNotifyCenter m_here{m_hereBus};
    DBusNotifyCenter m_there{m_bus.connect()};
};

struct NoBusCenters : Centers {
    NotifyCenter& here() override { return m_center; }
    NotifyCenter& there() override { return m_center; }
    DBusNotifyCenter m_center{PrivateBus::none()};
};

class NotifyCenterContract : public ::testing::TestWithParam<std::unique_ptr<Centers> (*)()> {};

TEST_P(NotifyCenterContract, TellsWhoObservesANameAndNobodyElse) {
    const auto centers = GetParam()();
    QStringList heard;
    QStringList others;
    const int one = 0;
    const int two = 0;
    const auto into = [](QStringList& list) { return [&list](const QString& name) { list << name; }; };
    const QString strange = QStringLiteral("a 'name', \\ ünd %41 \"more\"");
    NotifyCenter& here = centers->here();
    here.addObserver(&one, QStringLiteral("Record"), into(others));
    here.addObserver(&one, QStringLiteral("Record"), into(heard));
    here.addObserver(&one, strange, into(heard));
    here.addObserver(&one, QStringLiteral("Stop"), into(others));
    here.addObserver(&two, QStringLiteral("Stop"), into(heard));
    here.addObserver(&two, QStringLiteral("Last"), into(others));
    here.removeObserver(&one, QStringLiteral("Stop"));
    here.removeObserver(&one, QStringLiteral("never there"));
    centers->settle();
    NotifyCenter& there = centers->there();
    there.postNotification(QStringLiteral("Record"));
    there.postNotification(QStringLiteral("record"));
    there.postNotification(QStringLiteral("Stop"));
    there.postNotification(QString(QChar(0xd800)));
    there.postNotification(strange);
    there.postNotification(QStringLiteral("Record"));
    // Its own observers hear a program, too.
    ASSERT_TRUE(spinUntil([&heard] { return heard.size() == 4; }));
    here.postNotification(QStringLiteral("Stop"));
    ASSERT_TRUE(spinUntil([&heard] { return heard.size() == 5; }));
    here.removeEveryObserver(&two);
    there.postNotification(QStringLiteral("Last"));
    there.postNotification(QStringLiteral("Stop"));
    there.postNotification(strange);
    ASSERT_TRUE(spinUntil([&heard] { return heard.size() == 6; }));
    EXPECT_THAT(heard, ElementsAre(QStringLiteral("Record"), QStringLiteral("Stop"), strange, QStringLiteral("Record"),
                                   QStringLiteral("Stop"), strange));
    EXPECT_THAT(others, ElementsAre());
}

template <class T>
std::unique_ptr<Centers> make() {
    return std::make_unique<T>();
}

INSTANTIATE_TEST_SUITE_P(All, NotifyCenterContract,
                         ::testing::Values(&make<FakeCenters>, &make<BusCenters>, &make<NoBusCenters>));

}  // namespace
}  // namespace tavi::test
