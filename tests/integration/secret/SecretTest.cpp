#include <gmock/gmock.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <fstream>
#include <thread>

#include "adapters/qt/QtRunLoop.h"
#include "adapters/secret/StoreChoice.h"
#include "adapters/secret/SystemKeychain.h"
#include "support/EventLoop.h"
#include "support/PrivateKeyring.h"
#include "support/TemporaryContainer.h"

namespace tavi::test {

namespace {

namespace fs = std::filesystem;
using Status = KeychainStatus;

const KeychainQuery kQuery{QStringLiteral("PasscodeKey"), QStringLiteral("service"), {}};
const KeychainAttributes kOld{"0042", KeychainAccessibility::Always};
const KeychainAttributes kNew{"1234"};

QByteArray bytesOf(const fs::path& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

struct Secrets : ::testing::Test {
    /// As by a start of the program.
    SystemKeychain& start(int patience = 20'000) {
        m_keychain.reset();
        m_keychain = std::make_unique<SystemKeychain>(m_places, m_runLoop, std::chrono::milliseconds(patience));
        return *m_keychain;
    }
    void expectNothingButTrouble(const char* row) {
        EXPECT_EQ(m_keychain->fetch(kQuery).error(), Status::NotAvailable) << row;
        EXPECT_FALSE(m_keychain->trouble().isEmpty()) << row;
        EXPECT_EQ(m_keychain->add(kQuery, kNew), Status::NotAvailable) << row;
        // It is not lost as long as the program runs.
        EXPECT_EQ(m_keychain->fetch(kQuery), kNew) << row;
        EXPECT_EQ(m_keychain->remove(kQuery), Status::NotAvailable) << row;
        EXPECT_EQ(m_keychain->fetch(kQuery).error(), Status::ItemNotFound) << row;
    }

    TemporaryContainer m_container;
    StorePlaces m_places{m_container.preferencesPath(), m_container.root() / "keychain.key"};
    QtRunLoop m_runLoop;
    std::unique_ptr<SystemKeychain> m_keychain;
};

/// No file can grow beyond ten bytes while it lives.
struct FullDisk {
    FullDisk() {
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit full{10, m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &full);
    }
    ~FullDisk() {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        ::signal(SIGXFSZ, m_previous);
    }

private:
    rlimit m_before = {};
    sighandler_t m_previous = ::signal(SIGXFSZ, SIG_IGN);
};

struct SealedFile : Secrets {
    /// Knows no keyring.
    PrivateBus m_bus;
};

struct Keyring : Secrets {
    void TearDown() override { m_keychain.reset(); }

    PrivateKeyring m_keyring;
};

TEST_F(SealedFile, IsForTheUserAloneAndTellsNothing) {
    std::ofstream(m_places.sealed() += ".new") << "left by a killed program";
    const mode_t mask = ::umask(0);
    EXPECT_EQ(start().add(kQuery, kOld), Status::Success);
    ::umask(mask);
    for (const fs::path& path : {m_places.sealed(), m_places.key, m_places.lock()}) {
        EXPECT_EQ(fs::status(path).permissions(), fs::perms::owner_read | fs::perms::owner_write) << path;
        EXPECT_FALSE(bytesOf(path).contains("0042"));
        EXPECT_FALSE(bytesOf(path).contains(QByteArray("P\0a\0s\0s", 7)));
    }
    fs::permissions(m_places.sealed(), fs::perms::all);
    EXPECT_EQ(start().fetch(kQuery), kOld);
    EXPECT_EQ(fs::status(m_places.sealed()).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(SealedFile, IsToldAndLeftAsItIsWhereItCannotBeRight) {
    const auto write = [](const fs::path& path, const QByteArray& bytes) {
        std::ofstream(path, std::ios::binary) << bytes.toStdString();
    };
    using Damage = std::function<void(const fs::path& path, const QByteArray& whole)>;
    const std::tuple<const char*, bool, Damage> rows[] = {
        {"empty", false, [&](auto& path, auto&) { write(path, {}); }},
        {"cut", false, [&](auto& path, auto& whole) { write(path, whole.chopped(1)); }},
        {"a bit", false, [&](auto& path, QByteArray whole) { write(path, (whole.back() ^= 1, whole)); }},
        {"foreign", false, [&](auto& path, auto& whole) { write(path, "x" + whole); }},
        {"folder", false, [&](auto& path, auto&) { fs::remove(path), fs::create_directory(path); }},
        {"link", false,
         [&](auto& path, auto&) {
             fs::rename(path, path.string() + "2"), fs::create_symlink(path.string() + "2", path);
         }},
        {"other user's", false, [](auto& path, auto&) { EXPECT_EQ(::chown(path.c_str(), 12345, 12345), 0); }},
        {"no key", true, [](auto& path, auto&) { fs::remove(path); }},
        {"another key", true, [&](auto& path, QByteArray whole) { write(path, (whole.back() ^= 1, whole)); }},
        {"damaged key", true, [&](auto& path, auto& whole) { write(path, whole.chopped(1)); }},
    };
    for (const auto& [name, isKey, damage] : rows) {
        fs::remove_all(m_places.sealed());
        fs::remove_all(m_places.key);
        ASSERT_EQ(start().add(kQuery, kOld), Status::Success) << name;
        const fs::path path = isKey ? m_places.key : m_places.sealed();
        damage(path, bytesOf(path));
        const QByteArray sealed = bytesOf(m_places.sealed());
        const QByteArray key = bytesOf(m_places.key);
        start();
        expectNothingButTrouble(name);
        EXPECT_TRUE(bytesOf(m_places.sealed()) == sealed && bytesOf(m_places.key) == key) << name;
    }
}

TEST_F(SealedFile, KeepsTheOldValueOnAFullDiskAndStoresTheNewOneLater) {
    const auto stored = [this] { return SealedFileStore(m_places).perform({.query = kQuery}).attributes; };
    const auto answers = [this] { return m_keychain->fetch({}).error() == Status::ItemNotFound; };
    const auto refuse = [&](const KeychainAttributes& next) {
        const FullDisk full;
        const KeychainAttributes before = stored();
        EXPECT_EQ(m_keychain->update(kQuery, next), Status::NotAvailable);
        EXPECT_FALSE(m_keychain->trouble().isEmpty());
        EXPECT_EQ(m_keychain->fetch(kQuery), next);
        EXPECT_EQ(stored(), before);
        EXPECT_FALSE(fs::exists(m_places.sealed() += ".new"));
    };
    ASSERT_EQ(start().add(kQuery, kOld), Status::Success);
    refuse(kNew);
    EXPECT_TRUE(answers() && answers());
    EXPECT_EQ(stored(), kNew);
    // Before it is heard that the one has been stored, another waits in its place.
    refuse(kOld);
    QCoreApplication::processEvents();
    EXPECT_EQ(m_keychain->fetch(kQuery), kOld);
    EXPECT_TRUE(spinUntil([&] { return answers() && m_keychain->trouble().isEmpty(); }));
    EXPECT_EQ(start().fetch(kQuery), kOld);
}

TEST_F(SealedFile, TakesWhatTwoProgramsWriteAtOnce) {
    const auto write = [this](const QString& account) {
        StoreChoice store(m_places);
        for (int i = 0; i < 25; ++i) {
            const KeychainQuery query{account + QString::number(i), {}, {}};
            EXPECT_EQ(store.perform({StoreRequest::Kind::Add, query, kOld}).status, Status::Success);
        }
    };
    std::thread other(write, QStringLiteral("a"));
    write(QStringLiteral("b"));
    other.join();
    EXPECT_EQ(SealedFileStore(m_places).items()->size(), 50);
}

TEST_F(Keyring, TakesOverWhatAFileHeld) {
    {
        const PrivateBus bus;
        ASSERT_EQ(start().add(kQuery, kOld), Status::Success);
        m_keychain.reset();
    }
    StoreChoice before(m_places);
    m_keyring.endBus();
    before.choose();
    m_keyring.beginAnew();
    std::ofstream(m_places.keyring()) << "keyring 00";
    start();
    expectNothingButTrouble("damaged note");
    EXPECT_EQ(bytesOf(m_places.keyring()), "keyring 00");
    fs::remove(m_places.keyring());
    {
        const FullDisk full;
        EXPECT_EQ(start().fetch(kQuery), kOld);
    }
    EXPECT_EQ(m_keyring.itemCount(), 0);
    EXPECT_EQ(start().fetch(kQuery), kOld);
    EXPECT_FALSE(fs::exists(m_places.sealed()) || fs::exists(m_places.key));
    // A program that found no keyring at its start follows.
    EXPECT_EQ(before.perform({StoreRequest::Kind::Update, kQuery, kNew}).status, Status::Success);
    EXPECT_EQ(start().fetch(kQuery), kNew);
    EXPECT_EQ(m_keyring.itemCount(), 1);
    EXPECT_FALSE(fs::exists(m_places.sealed()));
    // Another container has items of its own.
    m_places.folder = m_container.cachesPath();
    EXPECT_EQ(start().add(kQuery, kOld), Status::Success);
    EXPECT_EQ(m_keyring.itemCount(), 2);
}

TEST_F(Keyring, LeavesADamagedFileWhereItIs) {
    std::ofstream(m_places.sealed()) << "TAVIKC1\n";
    start();
    expectNothingButTrouble("damaged");
    EXPECT_EQ(bytesOf(m_places.sealed()), "TAVIKC1\n");
}

TEST_F(Keyring, IsMissedRatherThanReplaced) {
    ASSERT_EQ(start().add(kQuery, kOld), Status::Success);
    m_keyring.kill();
    expectNothingButTrouble("dead");
    start();
    expectNothingButTrouble("not there at the start");
    m_keyring.start();
    EXPECT_EQ(start().fetch(kQuery), kOld);
    m_keyring.kill();
    m_keyring.start();
    // With a session that the new one does not know.
    EXPECT_EQ(m_keychain->fetch(kQuery), kOld);
    m_keyring.lock();
    expectNothingButTrouble("locked");
    EXPECT_FALSE(fs::exists(m_places.sealed()));
}

TEST_F(Keyring, MayTakeItsTimeWhileTheProgramGoesOn) {
    ASSERT_EQ(start().add(kQuery, kOld), Status::Success);
    start(50);
    int changes = 0;
    m_keychain->setTroubleHandler([&changes] { ++changes; });
    m_keyring.setHanging(true);
    expectNothingButTrouble("hanging");
    EXPECT_EQ(m_keychain->update(kQuery, kNew), Status::NotAvailable);
    EXPECT_EQ(m_keychain->fetch(kQuery), kNew);
    EXPECT_EQ(changes, 1);
    m_keyring.setHanging(false);
    EXPECT_TRUE(spinUntil([this] { return m_keychain->trouble().isEmpty(); }));
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(start().fetch(kQuery), kNew);
    // The end waits for nothing.
    m_keyring.setHanging(true);
    EXPECT_EQ(start(50).fetch(kQuery).error(), Status::NotAvailable);
    m_keyring.endBus();
    start();
    expectNothingButTrouble("no bus");
}

}  // namespace
}  // namespace tavi::test
