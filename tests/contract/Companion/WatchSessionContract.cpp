#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/socket.h>
#include <sys/un.h>

#include <QLocalSocket>
#include <cstring>
#include <fstream>

#include "adapters/local/LocalWatchSession.h"
#include "adapters/plist/LibplistPropertyLists.h"
#include "files/PathText.h"
#include "support/EventLoop.h"
#include "support/FakeChannel.h"
#include "support/TemporaryContainer.h"

namespace tavi::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const QString kKey = QStringLiteral("key");

QVariantMap dictionary(const QVariant& value) {
    return {{kKey, value}};
}

struct Ear : WatchSessionDelegate {
    void sessionDidReceiveMessage(const QVariantMap& message) override { messages.append(message.value(kKey)); }
    void sessionDidReceiveApplicationContext(const QVariantMap& context) override {
        contexts.append(context.value(kKey));
    }
    void sessionDidReceiveFile(const std::filesystem::path& file, const QVariantMap& metadata) override {
        std::ifstream stream(file, std::ios::binary);
        const std::string contents((std::istreambuf_iterator<char>(stream)), std::istreambuf_iterator<char>());
        messages.append(metadata.value(kKey));
        sizes.push_back(contents.size());
        isOfOnes = isOfOnes && contents.find_first_not_of('1') == std::string::npos;
    }

    QVariantList messages;
    QVariantList contexts;
    std::vector<std::size_t> sizes;
    bool isOfOnes = true;
};

/// The two ends; each time that one is asked for anew, its program has ended and starts again.
struct Ends {
    virtual ~Ends() = default;
    virtual WatchSession& startHere() = 0;
    virtual WatchSession& startThere() = 0;
    virtual void endThere() = 0;
    virtual bool hasUnsent() const { return false; }
    TemporaryContainer m_container;
};

struct FakeEnds : Ends {
    FakeEnds() {
        m_here.peer = &m_there;
        m_there.peer = &m_here;
    }
    WatchSession& startHere() override { return m_here; }
    WatchSession& startThere() override { return m_there; }
    void endThere() override { m_there.leave(); }
    FakeWatchSession m_here;
    FakeWatchSession m_there;
};

struct LocalEnds : Ends {
    WatchSession& startHere() override { return m_here.emplace(m_folder, LocalWatchSession::End::Recorder, m_lists); }
    WatchSession& startThere() override {
        return m_there.emplace(m_folder, LocalWatchSession::End::Companion, m_lists);
    }
    void endThere() override { m_there.reset(); }
    bool hasUnsent() const override { return m_there->hasUnsent(); }
    LibplistPropertyLists m_lists;
    // Longer than what the system takes for the path of a socket.
    const std::filesystem::path m_folder = m_container.root() / std::string(120, 'x');
    std::optional<LocalWatchSession> m_here;
    std::optional<LocalWatchSession> m_there;
};

class WatchSessionContract : public ::testing::TestWithParam<std::unique_ptr<Ends> (*)()> {};

TEST_P(WatchSessionContract, BringsEverythingInItsOrderToAnEndThatIsThere) {
    const auto ends = GetParam()();
    Ear earHere;
    Ear earThere;
    WatchSession& here = ends->startHere();
    WatchSession* there = &ends->startThere();
    here.setDelegate(&earHere);
    there->setDelegate(&earThere);
    ASSERT_TRUE(here.updateApplicationContext(dictionary(1)) && here.updateApplicationContext(dictionary(2)));
    there->activateSession();
    EXPECT_FALSE(there->isReachable() || here.isReachable() || there->sendMessage(dictionary(0)));
    here.activateSession();
    ASSERT_TRUE(spinUntil([&] { return here.isReachable() && there->isReachable() && !earThere.contexts.isEmpty(); }));
    const auto file = ends->m_container.documentsPath() / "file";
    std::ofstream(file, std::ios::binary) << std::string(3 << 20, '1');
    EXPECT_FALSE(there->transferFile(file / "absent", dictionary(0)));
    for (int i = 0; i < 300; ++i) {
        ASSERT_TRUE(there->sendMessage(dictionary(i)));
    }
    ASSERT_TRUE(there->transferFile(file, dictionary(QStringLiteral("file"))));
    std::filesystem::remove(file);
    std::ofstream(file, std::ios::binary) << "another since";
    std::filesystem::resize_file(file, (256U << 20) + 1);
    EXPECT_FALSE(there->transferFile(file, dictionary(0)));
    ASSERT_TRUE(there->sendMessage(dictionary(QByteArray(16 << 20, 'x'))));
    EXPECT_FALSE(there->sendMessage(dictionary(QByteArray(18 << 20, 'x'))));
    ASSERT_TRUE(spinUntil([&] { return earHere.messages.size() == 302; }));
    ASSERT_TRUE(spinUntil([&] { return !ends->hasUnsent(); }));
    EXPECT_EQ(earHere.messages[299], QVariant(299));
    EXPECT_TRUE(std::is_sorted(earHere.messages.begin(), earHere.messages.begin() + 300,
                               [](const auto& a, const auto& b) { return a.toInt() < b.toInt(); }));
    EXPECT_EQ(earHere.messages[300], QVariant(QStringLiteral("file")));
    EXPECT_EQ(earHere.messages[301].toByteArray().size(), 16 << 20);
    EXPECT_TRUE(earHere.isOfOnes);
    EXPECT_THAT(earHere.sizes, ElementsAre(3U << 20));
    EXPECT_THAT(earThere.contexts, ElementsAre(QVariant(2)));
    ASSERT_TRUE(there->updateApplicationContext(dictionary(3)));
    ASSERT_TRUE(spinUntil([&] { return !earHere.contexts.isEmpty(); }));

    ends->endThere();
    ASSERT_TRUE(spinUntil([&] { return !here.isReachable(); }));
    EXPECT_FALSE(here.sendMessage(dictionary(0)));
    there = &ends->startThere();
    there->setDelegate(&earThere);
    EXPECT_EQ(there->applicationContext(), dictionary(3));
    EXPECT_EQ(there->receivedApplicationContext(), dictionary(2));
    there->activateSession();
    ASSERT_TRUE(spinUntil([&] { return here.isReachable() && there->isReachable(); }));
    ASSERT_TRUE(here.sendMessage(dictionary(9)) && here.updateApplicationContext(dictionary(10)));
    ASSERT_TRUE(spinUntil([&] { return earThere.contexts.size() == 2; }));
    EXPECT_THAT(earThere.messages, ElementsAre(QVariant(9)));
    EXPECT_EQ(earThere.contexts.last(), QVariant(10));
    // What was told before the restart is not told again.
    EXPECT_THAT(earHere.contexts, ElementsAre(QVariant(3)));
}

template <class T>
std::unique_ptr<Ends> make() {
    return std::make_unique<T>();
}

INSTANTIATE_TEST_SUITE_P(All, WatchSessionContract, ::testing::Values(&make<FakeEnds>, &make<LocalEnds>));

TEST(LocalWatchSession, TakesNothingFromWhoBreaksTheRulesOrDiesHalfWay) {
    LocalEnds ends;
    Ear ear;
    WatchSession& here = ends.startHere();
    here.setDelegate(&ear);
    here.activateSession();
    EXPECT_EQ(std::filesystem::status(ends.m_folder).permissions(), std::filesystem::perms::owner_all);
    const auto say = [&ends](const QByteArray& bytes) {
        const FileDescriptor folder = FileDescriptor::open(ends.m_folder, O_PATH | O_DIRECTORY);
        auto socket = std::make_unique<QLocalSocket>();
        socket->connectToServer(QStringLiteral("/proc/self/fd/%1/session").arg(folder.get()));
        socket->write(bytes);
        return spinUntil([&socket] { return socket->bytesToWrite() == 0; }) ? std::move(socket) : nullptr;
    };
    const QByteArray hello = QByteArray(1, 1) + QByteArray(12, 0);
    const QByteArray list = *ends.m_lists.dataWithPropertyList(dictionary(1));
    const auto head = [](char kind, int bytes, int file) {
        return QByteArray(1, kind) + QByteArray::fromHex(QByteArray::number(bytes, 16).rightJustified(8, '0')) +
               QByteArray::fromHex(QByteArray::number(file, 16).rightJustified(16, '0'));
    };
    const auto size = static_cast<int>(list.size());
    for (const QByteArray& bytes :
         {hello + head(3, size, 0) + list.chopped(1), hello + head(4, size, 9) + list + QByteArray(8, '1'),
          hello + head(3, 4, 0) + "junk", hello + head(2, size, 0) + list}) {
        ASSERT_TRUE(say(bytes));
    }
    for (const QByteArray& bytes :
         {head(3, 0x7fffffff, 0), head(4, size, 0x10000001), head(9, 0, 0), head(5, 0, 1), head(3, size, 1)}) {
        const auto socket = say(hello + bytes);
        EXPECT_TRUE(socket && spinUntil([&socket] { return socket->state() == QLocalSocket::UnconnectedState; }));
    }
    ASSERT_TRUE(spinUntil([&here] { return !here.isReachable(); }));
    EXPECT_THAT(ear.messages + ear.contexts, IsEmpty());
    // What comes before the greeting is nothing.
    const QByteArray early = *ends.m_lists.dataWithPropertyList(dictionary(2));
    const auto honest = say(head(3, size, 0) + early + hello + head(3, size, 0) + list);
    ASSERT_TRUE(spinUntil([&ear] { return !ear.messages.isEmpty(); }));
    EXPECT_THAT(ear.messages, ElementsAre(QVariant(1)));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(ends.m_folder), {}), 1);
}

/// A recorder's end as the system has it: it takes whom the test lets in.
class BareRecorder {
public:
    explicit BareRecorder(const std::filesystem::path& folder)
        : m_folder(FileDescriptor::open(folder, O_PATH | O_DIRECTORY)), m_socket(newSocket()) {
        const std::string made = "/proc/self/fd/" + std::to_string(m_folder.get()) + "/made";
        EXPECT_EQ(at(::bind, m_socket, made), 0);
        EXPECT_EQ(::listen(m_socket.get(), 0), 0);
        std::filesystem::rename(made, folder / "session");
    }
    /// Connects so many that nobody else gets in.
    void fill() {
        do {
            m_others.push_back(newSocket());
        } while (at(::connect, m_others.back(), "/proc/self/fd/" + std::to_string(m_folder.get()) + "/session") == 0);
    }
    /// Lets in who waits until one of them greets, and greets back.
    bool meet() {
        return spinUntil([this] {
            m_others.emplace_back(::accept4(m_socket.get(), nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC));
            return std::any_of(m_others.begin(), m_others.end(), [](const FileDescriptor& other) {
                std::array<char, 13> hello = {};
                return ::recv(other.get(), hello.data(), hello.size(), 0) == 13 && hello[0] == 1 &&
                       ::send(other.get(), hello.data(), hello.size(), MSG_NOSIGNAL) == 13;
            });
        });
    }
    void hangUp() { m_others.clear(); }

private:
    static FileDescriptor newSocket() {
        return FileDescriptor(::socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
    }
    template <class Function>
    static int at(Function function, const FileDescriptor& socket, const std::string& path) {
        sockaddr_un address = {.sun_family = AF_UNIX, .sun_path = {}};
        std::strncpy(address.sun_path, path.c_str(), sizeof(address.sun_path) - 1);
        return function(socket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof(address));
    }

    FileDescriptor m_folder;
    FileDescriptor m_socket;
    std::vector<FileDescriptor> m_others;
};

TEST(LocalWatchSession, ComesToARecorderThatIsBusyOrThatCameBackUnseen) {
    LocalEnds ends;
    WatchSession& there = ends.startThere();
    BareRecorder busy(ends.m_folder);
    busy.fill();
    there.activateSession();
    EXPECT_FALSE(there.isReachable());
    ASSERT_TRUE(busy.meet());
    ASSERT_TRUE(spinUntil([&there] { return there.isReachable(); }));
    QFileSystemWatcher watcher({pathText(ends.m_folder)});
    bool isSeen = false;
    QObject::connect(&watcher, &QFileSystemWatcher::directoryChanged, [&isSeen] { isSeen = true; });
    BareRecorder next(ends.m_folder);
    ASSERT_TRUE(spinUntil([&isSeen] { return isSeen; }));
    busy.hangUp();
    EXPECT_TRUE(next.meet());
    EXPECT_TRUE(spinUntil([&there] { return there.isReachable(); }));
}

}  // namespace
}  // namespace tavi::test
