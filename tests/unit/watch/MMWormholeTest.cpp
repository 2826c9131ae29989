#include <gmock/gmock.h>

#include <fstream>

#include "files/PathText.h"
#include "support/FakeChannel.h"
#include "support/FakeKeychain.h"
#include "support/ManualRunLoop.h"
#include "support/Printers.h"
#include "support/TemporaryContainer.h"
#include "watch/MMWormholeFileTransiting.h"
#include "watch/MMWormholeSession.h"
#include "watch/MMWormholeSessionTransiting.h"

namespace tavi::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using Type = MMWormholeTransitingType;

const QString kGroup = QStringLiteral("group.Test");
const QString kRecord = QStringLiteral("Record");

class Wormhole : public ::testing::Test {
protected:
    std::unique_ptr<MMWormhole> channel(Type type = Type::File, const QString& directory = {}) {
        return MMWormhole::withApplicationGroupIdentifier(m_services, kGroup, directory, type);
    }
    std::function<void(const QVariant&)> into(QVariantList& heard) {
        return [&heard](const QVariant& message) { heard.append(message); };
    }
    QByteArray archive(const QVariant& message) const { return *m_lists.archivedDataWithRootObject(message); }
    std::filesystem::path inGroup(const std::filesystem::path& name) const {
        return m_container.groupContainerPath(kGroup) / name;
    }
    static void put(const std::filesystem::path& path, const QByteArray& bytes) {
        std::ofstream(path, std::ios::binary).write(bytes.constData(), bytes.size());
    }

    TemporaryContainer m_container;
    FakePropertyLists m_lists;
    FakeCoordinatedFiles m_files;
    FakeWatchSession m_session;
    FakeNotifyCenter m_center;
    NotificationCenter m_notifications;
    ManualRunLoop m_runLoop;
    const MMWormholeServices m_services{.container = m_container,
                                        .propertyLists = m_lists,
                                        .files = m_files,
                                        .session = m_session,
                                        .notifyCenter = m_center,
                                        .notifications = m_notifications,
                                        .queues = m_runLoop};
};

TEST_F(Wormhole, HandsAMessageToTheListenerOfAnotherChannelLater) {
    for (const Type type : {Type::File, Type::CoordinatedFile, static_cast<Type>(9)}) {
        const auto sender = channel(type, QStringLiteral("messages"));
        const auto receiver = channel(type, QStringLiteral("messages"));
        QVariantList first;
        QVariantList heard;
        QVariantList others;
        receiver->listenForMessageWithIdentifier(kRecord, into(first));
        receiver->listenForMessageWithIdentifier(kRecord, into(heard));
        receiver->listenForMessageWithIdentifier(QStringLiteral("Stop"), into(others));
        receiver->listenForMessageWithIdentifier({}, into(others));
        EXPECT_THAT(m_center.observers, SizeIs(2));
        const QVariantMap message{{QStringLiteral("seconds"), 7.5}, {QStringLiteral("name"), QStringLiteral("talk")}};
        sender->passMessageObject(message, kRecord);
        sender->passMessageObject(QStringLiteral("unheard"), QStringLiteral("Unheard"));
        EXPECT_THAT(heard, IsEmpty());
        m_runLoop.drain();
        // Nothing as a message changes nothing, and is told of all the same.
        sender->passMessageObject({}, kRecord);
        sender->passMessageObject(message, {});
        m_runLoop.drain();
        EXPECT_THAT(heard, ElementsAre(QVariant(message), QVariant(message)));
        EXPECT_THAT(first + others, IsEmpty());
        EXPECT_EQ(sender->messageWithIdentifier(QStringLiteral("Unheard")), QVariant(QStringLiteral("unheard")));
        EXPECT_TRUE(std::filesystem::exists(inGroup("messages/Record.archive")));
        sender->clearMessageContentsForIdentifier(kRecord);
        EXPECT_FALSE(receiver->messageWithIdentifier(kRecord).isValid());
        sender->clearAllMessageContents();
        EXPECT_TRUE(std::filesystem::is_empty(inGroup("messages")));
        sender->passMessageObject({}, kRecord);
        receiver->stopListeningForMessageWithIdentifier(kRecord);
        sender->passMessageObject(1, kRecord);
        m_runLoop.drain();
        EXPECT_THAT(heard.mid(2), ElementsAre(QVariant()));
    }
    EXPECT_THAT(m_center.observers, IsEmpty());
    EXPECT_THAT(m_files.files, ::testing::Contains(inGroup("messages/Record.archive")));
}

TEST_F(Wormhole, SaysNothingOfAMessageThatCouldNotBeWritten) {
    const auto coordinated = channel(Type::CoordinatedFile);
    m_files.isHeld = true;
    coordinated->passMessageObject(1, kRecord);
    EXPECT_FALSE(coordinated->messageWithIdentifier(kRecord).isValid());
    const auto plain = channel();
    for (const QString& name : {QStringLiteral("../x"), QStringLiteral("a/b"), QStringLiteral("a..b"),
                                QString(201, u'a'), QStringLiteral("a") + QChar(0)}) {
        plain->passMessageObject(1, name);
    }
    plain->passMessageObject(QByteArray(17 << 20, 'x'), kRecord);
    plain->passMessageObject(QVariant::fromValue<void*>(this), kRecord);
    std::filesystem::create_directory(inGroup("Folder.archive"));
    plain->passMessageObject(1, QStringLiteral("Folder"));
    EXPECT_THAT(m_center.posted, IsEmpty());
    plain->passMessageObject(1, QString(200, u'a'));
    EXPECT_THAT(m_center.posted, SizeIs(1));
}

TEST_F(Wormhole, ReadsNothingFromWhatIsNoMessage) {
    const auto plain = channel();
    put(inGroup("Large.archive"), archive(QByteArray((16 << 20) + 1, 'x')));
    put(inGroup("List.archive"), *m_lists.dataWithPropertyList(1));
    put(inGroup("Cut.archive"), archive(QStringLiteral("a text")).chopped(3));
    std::filesystem::create_directory(inGroup("Folder.archive"));
    for (const char* name : {"Large", "List", "Cut", "Folder", "Absent"}) {
        EXPECT_FALSE(plain->messageWithIdentifier(QLatin1String(name)).isValid()) << name;
    }
    // A group's own folder is never emptied, nor what a strange name of a directory would mean.
    for (const char* directory : {"", "..", "a/b", "."}) {
        channel(Type::File, QLatin1String(directory))->clearAllMessageContents();
        EXPECT_TRUE(std::filesystem::exists(inGroup("Cut.archive"))) << directory;
    }
    const MMWormholeFileTransiting misused(m_services);
    EXPECT_EQ(misused.filePathForIdentifier(kRecord)->parent_path().filename(),
              "dev.assertion.nonDesignatedInitializer");
}

TEST_F(Wormhole, ReachesTheListenerForEveryNotificationOfAFlood) {
    const auto receiver = channel();
    QVariantList heard;
    receiver->listenForMessageWithIdentifier(kRecord, into(heard));
    for (int i = 0; i < 1000; ++i) {
        receiver->passMessageObject(i, kRecord);
    }
    m_runLoop.drain();
    ASSERT_THAT(heard, SizeIs(1000));
    EXPECT_TRUE(
        std::is_sorted(heard.begin(), heard.end(), [](const auto& a, const auto& b) { return a.toInt() < b.toInt(); }));
    EXPECT_EQ(heard.first().toInt(), 0);
    EXPECT_EQ(heard.last().toInt(), 999);
    receiver->passMessageObject(1000, kRecord);
    m_runLoop.drain();
    EXPECT_EQ(heard.last().toInt(), 1000);
    for (int i = 0; i < 50; ++i) {
        receiver->passMessageObject(i, kRecord);
    }
}

TEST_F(Wormhole, KeepsTheLastOfEachMessageInTheContext) {
    const auto sender = channel(Type::SessionContext);
    m_session.context = {{QStringLiteral("kept"), archive(5)}};
    sender->passMessageObject(1, QStringLiteral("a"));
    // What the system loses of the context is there again with the next message.
    m_session.context.remove(QStringLiteral("a"));
    sender->passMessageObject(2, QStringLiteral("b"));
    sender->passMessageObject({}, QStringLiteral("c"));
    EXPECT_EQ(m_session.context, (QVariantMap{{QStringLiteral("kept"), archive(5)},
                                              {QStringLiteral("a"), archive(1)},
                                              {QStringLiteral("b"), archive(2)}}));
    m_session.received = {{QStringLiteral("a"), archive(9)}, {QStringLiteral("b"), 3}};
    EXPECT_EQ(sender->messageWithIdentifier(QStringLiteral("a")), QVariant(9));
    EXPECT_EQ(sender->messageWithIdentifier(QStringLiteral("kept")), QVariant(5));
    EXPECT_FALSE(sender->messageWithIdentifier(QStringLiteral("b")).isValid());
    sender->clearMessageContentsForIdentifier(QStringLiteral("a"));
    sender->passMessageObject(4, QStringLiteral("b"));
    EXPECT_THAT(m_session.context.keys(), ElementsAre(QStringLiteral("b"), QStringLiteral("kept")));
    sender->clearAllMessageContents();
    sender->passMessageObject(1, QStringLiteral("d"));
    EXPECT_THAT(m_session.context.keys(), ElementsAre(QStringLiteral("d")));
    EXPECT_THAT(m_center.posted, IsEmpty());
}

TEST_F(Wormhole, SendsOnlyToACompanionThatIsThere) {
    const auto messages = channel(Type::SessionMessage);
    const auto files = channel(Type::SessionFile, QStringLiteral("sent"));
    MMWormholeSessionFileTransiting homeless(m_services, {});
    const QByteArray large(20 << 20, 'x');
    for (const bool isThere : {false, true}) {
        m_session.reachable = isThere;
        messages->passMessageObject(1, kRecord);
        messages->passMessageObject({}, kRecord);
        files->passMessageObject(large, kRecord);
        files->passMessageObject({}, kRecord);
        files->passMessageObject(1, QStringLiteral("."));
        homeless.writeMessageObject(2, kRecord);
    }
    EXPECT_THAT(m_session.messages, ElementsAre(QVariantMap{{kRecord, archive(1)}}));
    ASSERT_THAT(m_session.files, SizeIs(2));
    EXPECT_EQ(m_session.files[0].first, inGroup("sent/Record"));
    EXPECT_EQ(m_session.files[0].second, (QVariantMap{{QStringLiteral("identifier"), kRecord}}));
    EXPECT_EQ(messagefile::read(inGroup("sent/Record"), messagefile::kMostFileBytes), archive(large));
    EXPECT_EQ(m_session.files[1].first, m_container.temporaryPath() / "Record");
    EXPECT_FALSE(messages->messageWithIdentifier(kRecord).isValid());
    EXPECT_THAT(m_center.posted, IsEmpty());
}

TEST_F(Wormhole, HearsWhatTheCompanionSends) {
    QVariantList heard;
    MMWormholeSession session(m_services, kGroup);
    session.activateSessionListening();
    EXPECT_TRUE(m_session.isActive);
    session.listenForMessageWithIdentifier(kRecord, into(heard));
    session.passMessageObject(0, kRecord);
    EXPECT_THAT(m_center.posted, IsEmpty());
    EXPECT_EQ(m_center.added, 0);
    const QByteArray strange = *m_lists.dataWithPropertyList(1);
    m_session.delegate->sessionDidReceiveMessage({{kRecord, archive(1)}, {QStringLiteral("Other"), archive(1)}});
    m_session.delegate->sessionDidReceiveApplicationContext({{kRecord, archive(2)}});
    m_session.delegate->sessionDidReceiveMessage({{kRecord, strange}});
    m_session.delegate->sessionDidReceiveMessage({{kRecord, QStringLiteral("no archive")}});
    const auto file = m_container.temporaryPath() / "arrived";
    put(file, archive(3));
    m_session.delegate->sessionDidReceiveFile(file, {{QStringLiteral("identifier"), kRecord}});
    put(file, strange);
    m_session.delegate->sessionDidReceiveFile(file, {{QStringLiteral("identifier"), kRecord}});
    m_session.delegate->sessionDidReceiveFile(file / "absent", {{QStringLiteral("identifier"), kRecord}});
    EXPECT_THAT(heard, IsEmpty());
    m_runLoop.drain();
    EXPECT_THAT(heard, ElementsAre(QVariant(1), QVariant(2), QVariant(3)));
    EXPECT_FALSE(session.messageWithIdentifier(kRecord).isValid());
    EXPECT_EQ(channel()->messageWithIdentifier(kRecord), QVariant(3));
}

}  // namespace
}  // namespace tavi::test
