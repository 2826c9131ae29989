#include "library/RecordingImport.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include "files/FileUri.h"
#include "files/LockedFolder.h"
#include "library/ImportInbox.h"
#include "support/FakeServices.h"
#include "support/Files.h"
#include "support/Texts.h"

namespace tavi::test {

namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

struct RecordingImportTest : ::testing::Test, FakeServices {
    RecordingImportTest() {
        fs::create_directories(outside);
        QObject::connect(&imports, &RecordingImport::imported, &imports, [this] { ++lists; });
    }

    static QUrl urlOf(const fs::path& path) { return QUrl::fromEncoded(QByteArray::fromStdString(fileUri(path))); }
    std::string lastNotice() const { return notices.posted.empty() ? "" : notices.posted.back().text.toStdString(); }

    const Texts texts{{{"import_done", QStringLiteral("done %1")},
                       {"import_running", QStringLiteral("running %1")},
                       {"import_running_many", QStringLiteral("running %n")},
                       {"import_some", QStringLiteral("some %n %1")},
                       {"import_failed", QStringLiteral("failed %1 %2")}}};
    RecordingImport imports{{container, runLoop, notices, presenter, settings, cloud}};
    const fs::path documents = container.documentsPath();
    const fs::path inbox = documents / "Inbox";
    const fs::path outside = container.root() / "outside";
    int lists = 0;
};

}  // namespace

TEST_F(RecordingImportTest, EveryFileComesInUnderItsNameOrIsToldAbout) {
    written(documents / "taken.wav", "older");
    const fs::path taken = written(outside / "taken.wav");
    ::mkfifo((outside / "pipe").c_str(), 0600);
    ::mknod((outside / "socket").c_str(), S_IFSOCK | 0600, 0);
    const struct {
        QUrl url;
        const char* told;
    } cases[] = {{urlOf(written(outside / "a b%20;?#\n.wav")), "done a b%20;?#?.wav"},
                 {urlOf(written(outside / "odd\xff\xe2\x80\xae")), "done odd\uFFFD?"},
                 {urlOf(taken), "failed taken.wav import_taken"},
                 {urlOf(outside), "failed outside import_folder"},
                 {urlOf(outside / "pipe"), "failed pipe import_no_file"},
                 {urlOf(outside / "socket"), "failed socket import_no_file"},
                 {urlOf("/dev/zero"), "failed zero import_no_file"},
                 {urlOf(outside / "none"), "failed none import_gone"},
                 {urlOf(written(outside / "ICloud")), "failed ICloud import_taken"},
                 {QUrl(QStringLiteral("https://x/a.wav")), "failed https://x/a.wav import_remote"},
                 {QUrl(QStringLiteral("file://elsewhere/a.wav")), "failed file://elsewhere/a.wav import_remote"}};
    const auto before = filesIn(outside);
    QList<QUrl> all;
    for (const auto& row : cases) {
        imports.importFiles({row.url});
        runLoop.drain();
        EXPECT_EQ(lastNotice(), row.told);
        all += row.url;
    }
    EXPECT_THAT(filesIn(documents), UnorderedElementsAre("taken.wav", "a b%20;?#\n.wav", "odd\xff\xe2\x80\xae"));
    EXPECT_EQ(contentsOf(documents / "taken.wav") + contentsOf(documents / "odd\xff\xe2\x80\xae"), "oldersound");

    written(outside / "last");
    imports.importFiles(all);
    imports.importFiles({urlOf(outside / "last")});
    runLoop.drain();
    EXPECT_EQ(lastNotice(), "some 1 11");
    EXPECT_EQ(lists, 3);
    notices.posted.back().action();
    EXPECT_THAT(presenter.alerts.back().message.toStdString(),
                ::testing::StartsWith("failed https://x/a.wav import_remote\n"));
    EXPECT_EQ(presenter.alerts.back().message.count(QLatin1Char('\n')), 10);
    EXPECT_EQ(filesIn(outside).size(), before.size() + 1) << "something of the user's is gone";
    EXPECT_TRUE(fs::is_empty(inbox));
}

TEST_F(RecordingImportTest, TakesAwayTheFolderOfAnIncomingFileOnlyBelowInbox) {
    const struct {
        const char *file, *to;
        int error;
        /// What is below Inbox afterwards.
        std::set<std::string> left;
    } cases[] = {{"Documents/Inbox/x/a.wav", "a.wav", 0, {"other", "y/link.wav", "y/taken.wav", "z/away"}},
                 {"Documents/Inbox/y/link.wav", "link.wav", 0, {"other", "x/a.wav", "x/b.wav", "z/away"}},
                 {"Documents/Inbox/y/taken.wav", "taken.wav", EEXIST, {"other", "x/a.wav", "x/b.wav", "z/away"}},
                 {"Documents/Inbox/other", "other", 0, {"x/a.wav", "x/b.wav", "y/link.wav", "y/taken.wav", "z/away"}},
                 {"Documents/Inbox/z/away/a.wav", "a.wav", 0, {}},
                 {"Documents/Inbox/x/../../../outside/a.wav", "a.wav", 0, {}},
                 {"Documents/Inbox/x/..", nullptr, EISDIR, {}},
                 {"Documents/Inbox/z", nullptr, EISDIR, {}},
                 {"outside/a.wav", "a.wav", 0, {}}};
    for (const auto& row : cases) {
        fs::remove_all(documents);
        written(outside / "a.wav", "user's");
        for (const char* name : {"Inbox/x/a.wav", "Inbox/x/b.wav", "Inbox/y/taken.wav", "Inbox/other", "taken.wav"}) {
            written(documents / name);
        }
        fs::create_symlink(outside / "a.wav", inbox / "y/link.wav");
        fs::create_directory(inbox / "z");
        fs::create_symlink(outside, inbox / "z/away");
        const auto all = filesIn(inbox);
        EXPECT_EQ(importinbox::takeOver(documents, container.root() / row.file), row.error) << row.file;
        EXPECT_EQ(filesIn(inbox), row.left.empty() ? all : row.left) << row.file;
        EXPECT_EQ(contentsOf(outside / "a.wav"), "user's") << row.file;
        if (row.to != nullptr) {
            EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(documents / row.to))) << row.file;
        }
    }
    // An Inbox that leads elsewhere is none.
    fs::remove_all(documents);
    fs::create_directory(documents);
    fs::create_symlink(outside, inbox);
    EXPECT_EQ(importinbox::takeOver(documents, inbox / "a.wav"), 0);
    EXPECT_EQ(importinbox::bringIn(documents, written(container.root() / "b.wav")), ENOTDIR);
    importinbox::removeLeftovers(documents);
    EXPECT_THAT(filesIn(outside), ElementsAre("a.wav"));
}

TEST_F(RecordingImportTest, OpensWhatLiesInInboxAndRebuildsTheList) {
    written(inbox / "x/a%20b.wav");
    written(inbox / "y/a%20b.wav", "other");
    for (const char* folder : {"x", "y"}) {
        imports.openOtherAppFile(urlOf(inbox / folder / "a%20b.wav"));
        runLoop.drain();
        EXPECT_FALSE(fs::exists(inbox / folder));
        EXPECT_EQ(contentsOf(documents / "a%20b.wav"), "sound");
    }
    EXPECT_EQ(lists, 2);
    EXPECT_THAT(notices.posted, IsEmpty());
}

TEST_F(RecordingImportTest, LongImportsShowHowFarTheyAreAndCanBeGivenUp) {
    const fs::path large = written(outside / "large.wav", std::string(3 << 20, 'x'));
    for (const bool isGivenUp : {false, true}) {
        fs::remove(documents / "large.wav");
        runLoop.holdBackground(true);
        imports.importFiles({urlOf(large)});
        runLoop.advance(0.49);
        EXPECT_THAT(notices.works, IsEmpty());
        runLoop.advance(0.01);
        ASSERT_EQ(notices.works.size(), 1U);
        EXPECT_EQ(notices.works[0]->notice.text, QStringLiteral("running large.wav"));
        imports.importFiles({urlOf(outside / "none")});
        ASSERT_EQ(notices.works.size(), 1U);
        EXPECT_EQ(notices.works[0]->notice.text, QStringLiteral("running 2"));
        if (isGivenUp) {
            FakeNotices::Work& line = *notices.works[0];
            const auto cancel = line.notice.action;
            cancel();
            cancel();
            EXPECT_EQ(lastNotice(), "import_cancelled");
        }
        runLoop.holdBackground(false);
        runLoop.drain();
        EXPECT_THAT(notices.works, IsEmpty());
        EXPECT_EQ(lastNotice(), isGivenUp ? "import_cancelled" : "some 1 1");
        EXPECT_EQ(fs::exists(documents / "large.wav"), !isGivenUp);
        EXPECT_THAT(notices.shares, ::testing::AllOf(::testing::Contains(0.5), ::testing::Each(::testing::Le(1.0))));
        EXPECT_THAT(filesIn(inbox), IsEmpty());
    }
}

TEST_F(RecordingImportTest, SavesDataUnderAFreeNameAndLeavesItToTheCloudOnlyOnceThatHasIt) {
    const FileContents data(std::string(3 << 20, 'x'));
    const auto save = [&](const char* name) {
        imports.saveImagesInIPhoneWithName(data, name);
        runLoop.drain();
        return fs::exists(documents / name);
    };
    EXPECT_TRUE(save("a.wav"));
    EXPECT_EQ(fs::file_size(documents / "a.wav"), data.size());
    EXPECT_THAT(cloud.saves, IsEmpty());
    defaults.setObject(true, settingskey::kICloudSync);
    written(outside / "b.wav");
    written(documents / "taken.wav");
    for (const char* name : {"taken.wav", "../outside/b.wav", "Inbox"}) {
        save(name);
        EXPECT_THAT(lastNotice(), ::testing::StartsWith(std::string("failed ") + name));
    }
    EXPECT_EQ(contentsOf(documents / "taken.wav") + contentsOf(outside / "b.wav"), "soundsound");
    EXPECT_FALSE(save("c.wav"));
    EXPECT_EQ(cloud.files["c.wav"].size(), data.size());
    cloud.error = CloudError{};
    EXPECT_TRUE(save("d.wav")) << "it is nowhere else";
    cloud.hasAccount = false;
    EXPECT_TRUE(save("e.wav"));

    for (const char* name : {"a.wav", "../outside/b.wav", "Inbox/x", "none"}) {
        written(inbox / "x");
        imports.removeFile(name);
        runLoop.drain();
    }
    EXPECT_FALSE(fs::exists(documents / "a.wav"));
    EXPECT_TRUE(fs::exists(outside / "b.wav") && fs::exists(inbox / "x"));
}

TEST_F(RecordingImportTest, CleansUpAfterAKilledImportAndNothingElse) {
    written(inbox / "tavi-import-killed/half.wav");
    written(inbox / "tavi-import-running/half.wav");
    written(inbox / "tavi-import-mine/folder/a.wav");
    written(inbox / "other/a.wav");
    const auto running = LockedFolder::lock(inbox / "tavi-import-running");
    imports.removeLeftovers();
    runLoop.drain();
    EXPECT_THAT(filesIn(inbox),
                UnorderedElementsAre("tavi-import-running/half.wav", "tavi-import-mine/folder/a.wav", "other/a.wav"));
    EXPECT_FALSE(fs::exists(inbox / "tavi-import-killed"));
}

}  // namespace tavi::test
