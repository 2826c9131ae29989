#include <gmock/gmock.h>

#include <QTemporaryDir>
#include <semaphore>

#include "adapters/folder/FolderCloud.h"
#include "adapters/qt/QtRunLoop.h"
#include "files/ConflictNames.h"
#include "support/EventLoop.h"
#include "support/FakeCloud.h"
#include "support/Fakes.h"

namespace tavi::test {
namespace {

using ::testing::ElementsAre;

struct Fake {
    template <class Condition>
    bool until(Condition condition) {
        runLoop.drain();
        return condition();
    }
    void put(const char* name, const char* bytes, bool = false) { cloud.put(name, bytes); }
    std::filesystem::path documents() const { return cloud.documents(); }

    QTemporaryDir root;
    ManualRunLoop runLoop;
    FakeCloud cloud{runLoop, root.path().toStdString()};
};

struct Folder {
    Folder() {
        std::filesystem::create_directories(documents());
        markContainer(root.path().toStdString());
    }
    template <class Condition>
    bool until(Condition condition) {
        return spinUntil(condition);
    }
    /// In place, or as a program does that keeps the folder in sync.
    void put(const char* name, const char* bytes, bool isMovedIn = false) const {
        const std::filesystem::path written =
            root.path().toStdString() + (isMovedIn ? ".part" : "/Documents/" + std::string(name));
        std::ofstream(written) << bytes;
        std::filesystem::rename(written, documents() / name);
    }
    std::filesystem::path documents() const { return std::filesystem::path(root.path().toStdString()) / "Documents"; }

    QTemporaryDir root;
    QtRunLoop runLoop;
    NotificationCenter notifications;
    FakeTrash trash{root.path().toStdString() + "/trash"};
    FolderCloud cloud{{runLoop, notifications, trash, root.path().toStdString() + "/lock", QStringLiteral("desk")},
                      {root.path().toStdString(), QStringLiteral("account"), nullptr}};
};

struct Client : DocumentClient {
    FileContents contentsForType() override { return contents; }
    void loadFromContents(const FileContents& loaded) override { contents = loaded; }
    void handleError(const Error&) override { ++errors; }
    FileContents contents;
    int errors = 0;
};

template <class World>
class CloudContract : public ::testing::Test {
protected:
    /// Whether what is asked for succeeds.
    template <class Ask>
    bool succeeds(Ask ask) {
        std::optional<Result<void>> outcome;
        ask([&outcome](const Result<void>& result) { outcome = result; });
        EXPECT_FALSE(outcome) << "a completion comes later";
        EXPECT_TRUE(m_world.until([&] { return outcome.has_value(); }));
        return outcome && outcome->has_value();
    }

    World m_world;
};

using Worlds = ::testing::Types<Fake, Folder>;
TYPED_TEST_SUITE(CloudContract, Worlds);

TYPED_TEST(CloudContract, DocumentsAreWrittenWholeAndReadBack) {
    auto& world = this->m_world;
    Client client;
    const std::filesystem::path url = world.documents() / "talk.m4a";
    const auto document = world.cloud.documentWithFileURL(url, client);
    std::vector<int> states;
    document->setStateObserver([&] { states.push_back(document->documentState()); });
    const auto saves = [&](DocumentSave operation, const char* bytes) {
        client.contents = FileContents(bytes);
        return this->succeeds([&](auto completion) { document->save(operation, completion); });
    };
    EXPECT_FALSE(this->succeeds([&](auto completion) { document->open(completion); }));
    EXPECT_TRUE(saves(DocumentSave::ForCreating, "first"));
    EXPECT_FALSE(saves(DocumentSave::ForCreating, "again"));
    EXPECT_EQ(contentsOf(url), "first");
    EXPECT_EQ(client.errors, 2);
    EXPECT_TRUE(saves(DocumentSave::ForOverwriting, "second"));
    EXPECT_EQ(contentsOf(url), "second");
    EXPECT_TRUE(this->succeeds([&](auto completion) { document->close(completion); }));
    EXPECT_THAT(world.cloud.contentsOfDirectory(world.documents()), ElementsAre(url)) << "no part of any is left";
    Client reader;
    EXPECT_TRUE(this->succeeds([&](auto completion) {
        world.cloud.documentWithFileURL(url, reader)->open(completion);
    })) << "also when it is gone by then";
    const auto other = world.cloud.documentWithFileURL(url, reader);
    EXPECT_TRUE(this->succeeds([&](auto completion) { other->open(completion); }));
    EXPECT_EQ(reader.contents.head(99), "second");
    EXPECT_EQ(other->documentState(), documentstate::kNormal);
    EXPECT_EQ(states.front(), documentstate::kNormal);
    EXPECT_EQ(states.back(), documentstate::kClosed);
}

TYPED_TEST(CloudContract, AQueryListsTheFilesAndFollowsThem) {
    auto& world = this->m_world;
    world.put("a.m4a", "1");
    world.put("b.wav", "1");
    world.put("c", "1");
    const auto query = world.cloud.metadataQuery();
    std::string heard;
    query->setObservers({[&] { heard += 's'; }, [&] { heard += 'u'; }, [&] { heard += 'f'; }});
    query->setExtensionLike(QStringLiteral("*"));
    EXPECT_TRUE(query->startQuery());
    EXPECT_FALSE(query->startQuery()) << "it runs";
    EXPECT_EQ(heard, "");
    EXPECT_TRUE(world.until([&] { return heard.starts_with("sf"); }));
    // More than there are looks under way, which would find one that nothing tells of.
    for (const char* name : {"d.ogg", "e.ogg", "f.ogg", "g.ogg"}) {
        heard.clear();
        world.put(name, "1", *name != 'g');
        EXPECT_TRUE(world.until([&] { return heard.find('u') != std::string::npos; })) << name;
    }
    const auto names = [&](const char* pattern) {
        query->setExtensionLike(QLatin1String(pattern));
        std::vector<std::string> found;
        for (const MetadataItem& item : query->results()) {
            EXPECT_EQ(item.url, world.documents() / item.fileSystemName);
            EXPECT_EQ(item.downloadingStatus, DownloadingStatus::Current);
            found.push_back(item.fileSystemName);
        }
        return found;
    };
    EXPECT_THAT(names("m4a"), ElementsAre("a.m4a"));
    EXPECT_THAT(names("?a?"), ElementsAre("b.wav"));
    EXPECT_TRUE(world.until([&] { return names("ogg").size() == 4U; }));
    // A list that is asked for while the folder is being read.
    query->stopQuery();
    heard.clear();
    EXPECT_EQ(names("*").size(), 7U);
    EXPECT_TRUE(query->startQuery());
    EXPECT_TRUE(world.until([&] { return heard.starts_with("sf"); }));
}

TYPED_TEST(CloudContract, FilesAreMovedAndRemovedAndNothingIsReplaced) {
    auto& world = this->m_world;
    const std::filesystem::path folder = world.documents();
    EXPECT_EQ(world.cloud.urlForUbiquityContainerIdentifier({}), folder.parent_path());
    world.put("a", "123");
    world.put("b", "4");
    const auto moves = [&](const char* from, const char* to) {
        return this->succeeds([&](auto completion) { world.cloud.moveItem(folder / from, folder / to, completion); });
    };
    EXPECT_FALSE(moves("a", "b"));
    EXPECT_FALSE(moves("none", "c"));
    EXPECT_TRUE(moves("a", "c"));
    EXPECT_EQ(contentsOf(folder / "b") + contentsOf(folder / "c"), "4123");
    EXPECT_EQ(world.cloud.attributesOfItem(folder / "c")->size, 3U);
    EXPECT_FALSE(world.cloud.attributesOfItem(folder / "a"));
    EXPECT_TRUE(this->succeeds([&](auto completion) { world.cloud.removeItem(folder / "c", completion); }));
    EXPECT_FALSE(this->succeeds([&](auto completion) { world.cloud.removeItem(folder / "c", completion); }));
    EXPECT_THAT(world.cloud.contentsOfDirectory(folder), ElementsAre(folder / "b"));
    std::string order;
    for (const char letter : {'1', '2'}) {
        world.cloud.coordinate([&order, letter] { order += letter; }, [&order, letter] { order += letter; });
    }
    EXPECT_TRUE(world.until([&] { return order.size() == 4U; }));
    EXPECT_LT(order.find('1'), order.find('2'));
}

TEST(FolderCloud, IsNotThereWithoutItsMarkAndNeverWaitsForADisk) {
    auto world = std::make_unique<Folder>();
    world->put("a", "1");
    EXPECT_THAT(world->cloud.contentsOfDirectory(world->documents()), ElementsAre(world->documents() / "a"));
    std::filesystem::remove(world->documents().parent_path() / kContainerMark);
    EXPECT_EQ(world->cloud.urlForUbiquityContainerIdentifier({}), std::nullopt) << "as a disk that is not mounted";
    // A disk that does not answer.
    const auto hanging = std::make_shared<std::binary_semaphore>(0);
    world->cloud.coordinate([hanging] { hanging->acquire(); }, [] { FAIL(); });
    world->put("b", "1");
    EXPECT_THAT(world->cloud.contentsOfDirectory(world->documents()), ElementsAre(world->documents() / "a"));
    EXPECT_EQ(world->cloud.attributesOfItem(world->documents() / "a"), std::nullopt);
    world.reset();
    hanging->release();

    // A disk that goes and comes again.
    Folder other;
    for (const char* name : {"a", "b"}) {
        std::filesystem::create_directories(other.documents());
        other.put(name, "1");
        EXPECT_TRUE(other.until([&] { return other.cloud.knownItems().contains(name); }));
        std::filesystem::remove_all(other.documents().parent_path());
        EXPECT_TRUE(other.until([&] { return other.cloud.knownItems().empty(); }));
    }
    std::filesystem::create_directories(other.documents());
    other.put("moved", "1234");
    EXPECT_TRUE(other.until([&] { return other.cloud.knownItems().contains("moved"); }));
    // What is cut short while it is saved is not saved.
    Client client;
    client.contents = *FileContents::ofFile(other.documents() / "moved");
    std::filesystem::resize_file(other.documents() / "moved", 2);
    std::optional<Result<void>> saved;
    const auto document = other.cloud.documentWithFileURL(other.documents() / "cut", client);
    document->save(DocumentSave::ForCreating, [&saved](const Result<void>& result) { saved = result; });
    EXPECT_TRUE(other.until([&] { return saved.has_value(); }));
    EXPECT_FALSE(saved->has_value() || std::filesystem::exists(other.documents() / "cut"));
    other.cloud.setPlace({});
    EXPECT_TRUE(other.cloud.knownItems().empty());
}

TEST(FolderCloud, AVersionThatNobodyHasSeenStaysAsAConflict) {
    for (const bool canExchange : {true, false}) {
        QTemporaryDir root;
        const std::filesystem::path folder = root.path().toStdString();
        const auto write = [&folder](const char* name, const char* bytes) {
            std::ofstream(folder / name) << bytes;
            return FileIdentity::at(folder / name);
        };
        const auto replace = [&](const std::optional<FileIdentity>& seen) {
            write("new", "new");
            return replaceSeen(folder / "a.m4a", folder / "new", seen, folder / conflictName("a.m4a", "D", "desk"),
                               canExchange)
                ->filename();
        };
        EXPECT_EQ(replace(std::nullopt), "") << "nothing was there";
        const auto seen = FileIdentity::at(folder / "a.m4a");
        EXPECT_EQ(replace(seen), "");
        write("a.m4a", "unseen");
        EXPECT_EQ(replace(seen), "a (conflict D desk).m4a");
        write("a.m4a", "other");
        EXPECT_EQ(replace(seen), "a (conflict D desk)_2.m4a");
        EXPECT_EQ(contentsOf(folder / "a.m4a") + contentsOf(folder / "a (conflict D desk).m4a") +
                      contentsOf(folder / "a (conflict D desk)_2.m4a"),
                  "newunseenother");
        EXPECT_FALSE(existsAt(folder / "new"));
    }
}

TEST(FolderCloud, KnowsConflictCopiesByTheirNamesAndLetsOneBeChosen) {
    const std::pair<const char*, const char*> cases[] = {{"a (conflict 2026-11-23 desk).m4a", "a.m4a"},
                                                         {"a (conflicted copy 2026).m4a", "a.m4a"},
                                                         {"a.sync-conflict-20261123-AB.m4a", "a.m4a"},
                                                         {"a (conflict).m4a", ""},
                                                         {" (conflict x).m4a", ""},
                                                         {"a.m4a", ""}};
    for (const auto& [name, original] : cases) {
        EXPECT_EQ(originalOfConflict(name).value_or(""), original) << name;
    }
    Folder world;
    world.put("a", "1");
    world.put("a (conflict D x)", "2");
    world.put("a (conflict D y)", "3");
    const auto versions = world.cloud.unresolvedConflictVersionsOfItem(world.documents() / "a");
    ASSERT_EQ(versions.size(), 2U);
    bool isDone = false;
    world.cloud.resolveConflict(world.documents() / "a", versions[1],
                                [&isDone](const Result<void>& result) { isDone = result.has_value(); });
    EXPECT_TRUE(world.until([&isDone] { return isDone; }));
    EXPECT_EQ(contentsOf(world.documents() / "a"), "3");
    EXPECT_THAT(world.cloud.contentsOfDirectory(world.documents()), ElementsAre(world.documents() / "a"));
    EXPECT_EQ(
        contentsOf(world.documents() / "../trash/a") + contentsOf(world.documents() / "../trash/a (conflict D x)"),
        "12");
}

}  // namespace
}  // namespace tavi::test
