#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QTemporaryDir>
#include <cerrno>
#include <csignal>
#include <fstream>
#include <set>

#include "files/DurableFile.h"
#include "files/FileCopy.h"
#include "files/FileMove.h"
#include "files/FileNames.h"
#include "support/Files.h"

namespace tavi::test {
namespace {

namespace fs = std::filesystem;
using Names = std::set<std::string>;

/// Two folders on two file systems; a file in the first, with a name that is no text.
struct FilesTest : ::testing::Test {
    FilesTest() { EXPECT_NE(::rename(from.c_str(), farTo.c_str()), 0) << "not on two file systems"; }
    /// QTemporaryDir itself leaves names behind that are no text.
    ~FilesTest() override {
        fs::remove_all(near);
        fs::remove_all(far);
    }

    QTemporaryDir m_near{QStringLiteral("/var/tmp/tavi-XXXXXX")};
    QTemporaryDir m_far{QStringLiteral("/dev/shm/tavi-XXXXXX")};
    const fs::path near = m_near.path().toStdString();
    const fs::path far = m_far.path().toStdString();
    const fs::path from = written(near / "voice\xff.m4a");
    const fs::path nearTo = near / "2024\xfe.m4a";
    const fs::path farTo = far / "2024\xfe.m4a";
};

TEST_F(FilesTest, ADurableFileHasItsNameWhenItIsPublishedAndLeavesNothingBefore) {
    for (const bool isHidden : {false, true}) {
        SCOPED_TRACE(isHidden);
        fs::create_directory(isHidden ? far / "PrivateInbox" : far);
        {
            const DurableFile given = DurableFile::create(farTo, ".m4a");
            ASSERT_TRUE(given.isValid());
            EXPECT_EQ(given.temporaryPath().parent_path(), isHidden ? far / "PrivateInbox" : far);
            EXPECT_EQ(given.temporaryPath().extension(), ".m4a");
            EXPECT_EQ(filesIn(far).size(), 1U);
        }
        EXPECT_EQ(filesIn(far), Names()) << "given up";
        DurableFile file = DurableFile::create(farTo);
        {
            DurableFile other = DurableFile::create(farTo);
            ASSERT_EQ(::write(file.fd(), "sound", 5), 5);
            EXPECT_EQ(file.publish(), 0);
            EXPECT_EQ(other.publish(), EEXIST);
        }
        EXPECT_EQ(contentsOf(farTo), "sound");
        EXPECT_FALSE(DurableFile::create(farTo).isValid());
        EXPECT_EQ(errno, EEXIST);
        EXPECT_EQ(filesIn(far), Names{farTo.filename()});
        fs::remove(farTo);
    }
}

TEST_F(FilesTest, ADurableFileTakesWhatAnotherWriterMadeInItsPlace) {
    DurableFile file = DurableFile::create(nearTo);
    file.discard();
    EXPECT_EQ(file.synchronize(), ENOENT);
    written(file.temporaryPath(), "other");
    EXPECT_EQ(file.publish(), 0);
    EXPECT_EQ(contentsOf(nearTo), "other");
}

TEST_F(FilesTest, LeftoversOfKilledProcessesGoAfterAnHour) {
    DurableFile file = DurableFile::create(nearTo);
    fs::last_write_time(file.temporaryPath(), {});
    const std::time_t now = std::time(nullptr);
    removeLeftovers(near, now + 3500);
    EXPECT_EQ(filesIn(near), (Names{file.temporaryPath().filename(), from.filename()}))
        << "it has the date of a source";
    removeLeftovers(near, now + 3700);
    EXPECT_EQ(filesIn(near), Names{from.filename()});
}

TEST_F(FilesTest, EveryWayOfRenamingReplacesNothing) {
    for (const RenameMethod method : {RenameMethod::Exclusive, RenameMethod::Link, RenameMethod::Reserve}) {
        SCOPED_TRACE(static_cast<int>(method));
        written(nearTo, "older");
        EXPECT_EQ(renameWithoutReplacing(from, nearTo, method), EEXIST);
        EXPECT_EQ(contentsOf(from) + contentsOf(nearTo), "soundolder");

        fs::remove(nearTo);
        EXPECT_EQ(renameWithoutReplacing(from, nearTo, method), 0);
        EXPECT_EQ(contentsOf(nearTo), "sound");
        EXPECT_EQ(renameWithoutReplacing(near / "none", from, method), ENOENT);
        EXPECT_EQ(filesIn(near), Names{nearTo.filename()});
        fs::rename(nearTo, from);
    }
}

TEST_F(FilesTest, MovesWholeFilesWithTheirDates) {
    for (const fs::path& to : {nearTo, farTo}) {
        const timespec times[2] = {{1700000000, 0}, {1700000001, 0}};
        ASSERT_EQ(::utimensat(AT_FDCWD, from.c_str(), times, 0), 0);
        ASSERT_EQ(::chmod(from.c_str(), 0640), 0);
        const auto moved = moveItem(from, to);
        ASSERT_TRUE(moved) << moved.error().text;
        EXPECT_FALSE(fs::exists(from));
        EXPECT_EQ(contentsOf(to), "sound");
        struct stat attributes = {};
        ASSERT_EQ(::stat(to.c_str(), &attributes), 0);
        EXPECT_EQ(attributes.st_mtim.tv_sec, 1700000001);
        EXPECT_EQ(attributes.st_mode & 0777U, 0640U);
        written(from, "sound");
    }
    EXPECT_EQ(filesIn(far), Names{farTo.filename()});
}

TEST_F(FilesTest, AFailureLeavesTheSourceAndNothingElse) {
    written(farTo, "older");
    EXPECT_FALSE(moveItem(from, farTo));
    EXPECT_EQ(contentsOf(farTo), "older");
    fs::remove(farTo);
    EXPECT_FALSE(moveItem(from, far / "none/2024.m4a"));
    EXPECT_FALSE(moveItem(near, far / "folder"));
    EXPECT_EQ(contentsOf(from), "sound");

    // A disk that is full half-way through the copy.
    const std::string large(3 << 20, 'x');
    written(from, large);
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small{2 << 20, RLIM_INFINITY};
    const rlimit none{RLIM_INFINITY, RLIM_INFINITY};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
    const auto moved = moveItem(from, farTo);
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &none), 0);
    EXPECT_FALSE(moved);
    EXPECT_EQ(contentsOf(from), large);
    EXPECT_EQ(filesIn(far), Names());
}

TEST_F(FilesTest, CopiesARegularFileWholeOrNotAtAll) {
    const timespec times[2] = {{1700000000, 0}, {1700000001, 0}};
    written(from, std::string(3 << 20, 'x'));
    ASSERT_EQ(::utimensat(AT_FDCWD, from.c_str(), times, 0), 0);
    ASSERT_EQ(::chmod(from.c_str(), 04555), 0);
    fs::create_symlink(from, near / "link");
    std::vector<double> told;
    EXPECT_EQ(copyItem(near / "link", farTo, {[&told](double fraction) { told.push_back(fraction); }}), 0);
    EXPECT_EQ(contentsOf(farTo), std::string(3 << 20, 'x'));
    EXPECT_EQ(told, (std::vector{0.33, 0.66, 1.0}));
    struct stat attributes = {};
    ASSERT_EQ(::lstat(farTo.c_str(), &attributes), 0);
    EXPECT_EQ(attributes.st_mode, S_IFREG | 0644U);
    EXPECT_EQ(attributes.st_mtim.tv_sec, 1700000001);
    EXPECT_EQ(copyItem(from, farTo), EEXIST);
    fs::remove(farTo);

    ASSERT_EQ(::mkfifo((near / "pipe").c_str(), 0600), 0);
    ASSERT_EQ(::mknod((near / "socket").c_str(), S_IFSOCK | 0600, 0), 0);
    written(near / "huge", "x");
    ASSERT_EQ(::truncate((near / "huge").c_str(), off_t{1} << 42), 0);
    std::stop_source stop;
    const auto append = [this](double) { std::ofstream(from, std::ios::app) << "more"; };
    const struct {
        fs::path source;
        CopyWatch watch;
        int error;
    } cases[] = {{near, {}, EISDIR},
                 {near / "pipe", {}, EINVAL},
                 {near / "socket", {}, EINVAL},
                 {"/dev/zero", {}, EINVAL},
                 {near / "none", {}, ENOENT},
                 {near / "huge", {}, ENOSPC},
                 {from, {append}, EBUSY},
                 {from, {[this](double) { fs::resize_file(from, 1 << 20); }}, EBUSY},
                 {from, {[&stop](double) { stop.request_stop(); }, stop.get_token()}, ECANCELED}};
    ASSERT_EQ(::chmod(from.c_str(), 0600), 0);
    for (const auto& row : cases) {
        EXPECT_EQ(copyItem(row.source, farTo, row.watch), row.error) << row.source;
        EXPECT_EQ(filesIn(far), Names()) << row.source;
    }
}

TEST_F(FilesTest, FindsAFreeNameBesideWhateverIsThere) {
    for (const char* name : {"a.b.wav", "a.b_3.wav", "a.b_3_2.wav", "name"}) {
        written(near / name, "there");
    }
    fs::create_symlink("nowhere", near / "link.wav");
    fs::create_directories(near / "dotted.d/x\xff");
    const std::pair<const char*, const char*> cases[] = {
        {"free.wav", "free.wav"},
        {"a.b.wav", "a.b_2.wav"},
        {"a.b_3.wav", "a.b_3_3.wav"},
        {"name", "name_2"},
        {"dotted.d/x\xff", "dotted.d/x\xff_2"},
        {"dotted.d", "dotted_2.d"},
        {"link.wav", "link_2.wav"},
    };
    for (const auto& [wanted, free] : cases) {
        EXPECT_EQ(freePath(near / wanted), near / free);
        if (existsAt(near / wanted)) {
            const auto aside = stepAside(near / wanted);
            ASSERT_TRUE(aside) << wanted;
            EXPECT_EQ(*aside, near / free);
            EXPECT_FALSE(existsAt(near / wanted));
        }
    }
    EXPECT_EQ(contentsOf(near / "a.b_3_3.wav") + contentsOf(near / "a.b_3_2.wav"), "therethere");
    EXPECT_FALSE(stepAside(near / "missing.wav"));
}

}  // namespace
}  // namespace tavi::test
