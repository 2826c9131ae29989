#include <gmock/gmock.h>
#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDBusMessage>
#include <QProcess>
#include <cstdlib>

#include "adapters/network/KernelRoutes.h"
#include "adapters/network/SystemReachability.h"
#include "support/EventLoop.h"
#include "support/PrivateBus.h"

namespace tavi::test {
namespace {

/// "reachable", "required" (reachable after something else) or "no".
std::string textOf(const std::optional<ReachabilityFlags>& flags) {
    return !flags ? "unknown" : !flags->reachable ? "no" : flags->connectionRequired ? "required" : "reachable";
}

TEST(KernelRoutes, SayWhetherThereIsAWayOut) {
    const std::pair<const char*, const char*> steps[] = {
        {"true", "no"},
        // A cable with two ends; what is plugged in nowhere has no carrier.
        {"ip link add near type veth peer name far && ip link set near up && ip addr add 10.9.9.1/24 dev near", "no"},
        {"ip route add default dev near", "required"},
        {"ip link set far up", "reachable"},
        {"ip route del default", "no"},
        {"ip route add unreachable default", "no"},
        {"ip -6 addr add fd09::1/64 dev near nodad && ip -6 route add default dev near", "reachable"},
        {"ip link set near down", "no"},
    };
    int pipe[2] = {};
    ASSERT_EQ(::pipe(pipe), 0);
    const pid_t child = ::fork();
    if (child == 0) {
        // In a network of its own, and in no other.
        if (::unshare(CLONE_NEWNET) != 0 && ::unshare(CLONE_NEWUSER | CLONE_NEWNET) != 0) {
            ::_exit(2);
        }
        std::string said;
        for (const auto& [command, state] : steps) {
            // NOLINTNEXTLINE(cert-env33-c,concurrency-mt-unsafe): commands of the test's own
            said += std::system(command) == 0 ? textOf(kernelRouteFlags()) + " " : "failed ";
        }
        ::_exit(::write(pipe[1], said.data(), said.size()) < 0 ? 1 : 0);
    }
    ::close(pipe[1]);
    std::string expected;
    for (const auto& [command, state] : steps) {
        expected += std::string(state) + " ";
    }
    std::string said(1000, '\0');
    said.resize(static_cast<std::size_t>(std::max<ssize_t>(0, ::read(pipe[0], said.data(), said.size()))));
    ::close(pipe[0]);
    int status = 0;
    ::waitpid(child, &status, 0);
    if (WIFEXITED(status) && WEXITSTATUS(status) == 2) {
        GTEST_SKIP() << "a network of its own is not allowed here";
    }
    EXPECT_EQ(said, expected);
}

TEST(SystemReachability, AsksNetworkManagerWhereThereIsOne) {
    PrivateBus bus;
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", qgetenv("DBUS_SESSION_BUS_ADDRESS"));
    QDBusConnection client = bus.connect();
    SystemReachability network(client);
    const auto flags = [&network] { return textOf(network.flagsOfZeroAddress()); };
    network.load();
    EXPECT_EQ(flags(), textOf(kernelRouteFlags())) << "there is no NetworkManager";
    const QString service = QStringLiteral("org.freedesktop.NetworkManager");
    QProcess manager;
    manager.start(QStringLiteral("/usr/bin/python3"), {QStringLiteral("-m"), QStringLiteral("dbusmock"),
                                                       QStringLiteral("--template"), QStringLiteral("networkmanager")});
    const auto answers = [&](const QString& name, quint32 value) {
        QDBusMessage call = QDBusMessage::createMethodCall(service, QStringLiteral("/org/freedesktop/NetworkManager"),
                                                           QStringLiteral("org.freedesktop.DBus.Mock"), name);
        return client.call(call << value, QDBus::Block, 2000).type() == QDBusMessage::ReplyMessage;
    };
    const QString connectivity = QStringLiteral("SetConnectivity");
    const QString state = QStringLiteral("SetGlobalConnectionState");
    // Of NetworkManager: no network, only what is nearby, a local network, the world; no or a login page before it.
    ASSERT_TRUE(spinUntil([&] { return answers(state, 20); }));
    network.load();
    EXPECT_TRUE(spinUntil([&flags] { return flags() == "no"; }));
    for (const auto& [name, value, expected] : {std::tuple{state, 70, "reachable"},
                                                {state, 50, "no"},
                                                {state, 60, "reachable"},
                                                {connectivity, 2, "required"},
                                                {connectivity, 4, "reachable"}}) {
        EXPECT_TRUE(answers(name, static_cast<quint32>(value)));
        EXPECT_TRUE(spinUntil([&, wanted = expected] { return flags() == wanted; })) << expected << flags();
    }
    manager.kill();
    manager.waitForFinished();
    qunsetenv("DBUS_SYSTEM_BUS_ADDRESS");
}

}  // namespace
}  // namespace tavi::test
