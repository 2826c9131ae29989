#include "files/FileMove.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QTemporaryDir>
#include <cerrno>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <string>

namespace tavi::test {
namespace {

void write(const std::filesystem::path& path, const QByteArray& contents) {
    ASSERT_TRUE(std::ofstream(path, std::ios::binary) << contents.toStdString());
}

std::string read(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

bool isThere(const std::filesystem::path& path) {
    return access(path.c_str(), F_OK) == 0;
}

int entriesOf(const std::filesystem::path& folder) {
    return static_cast<int>(std::distance(std::filesystem::directory_iterator(folder), {}));
}

class FileMoveTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_near.isValid() && m_far.isValid());
        from = near() / "voice\xff.m4a";
        nearTo = near() / "2024\xfe.m4a";
        farTo = far() / "2024\xfe.m4a";
        write(from, "sound");
        // The two must be on two file systems.
        ASSERT_NE(rename(from.c_str(), farTo.c_str()), 0);
    }

    /// QTemporaryDir itself leaves names behind that are no text.
    void TearDown() override {
        std::filesystem::remove_all(near());
        std::filesystem::remove_all(far());
    }

    QTemporaryDir m_near{QStringLiteral("/var/tmp/tavi-XXXXXX")};
    QTemporaryDir m_far{QStringLiteral("/dev/shm/tavi-XXXXXX")};
    std::filesystem::path near() const { return m_near.path().toStdString(); }
    std::filesystem::path far() const { return m_far.path().toStdString(); }
    std::filesystem::path from;
    std::filesystem::path nearTo;
    std::filesystem::path farTo;
};

TEST_F(FileMoveTest, everyWayOfRenamingReplacesNothing) {
    for (const RenameMethod method : {RenameMethod::Exclusive, RenameMethod::Link, RenameMethod::Reserve}) {
        SCOPED_TRACE(static_cast<int>(method));
        write(nearTo, "older");
        EXPECT_EQ(renameWithoutReplacing(from, nearTo, method), EEXIST);
        EXPECT_EQ(read(from), "sound");
        EXPECT_EQ(read(nearTo), "older");

        ASSERT_EQ(remove(nearTo.c_str()), 0);
        EXPECT_EQ(renameWithoutReplacing(from, nearTo, method), 0);
        EXPECT_FALSE(isThere(from));
        EXPECT_EQ(read(nearTo), "sound");

        EXPECT_EQ(renameWithoutReplacing(from.native() + "none", from, method), ENOENT);
        EXPECT_FALSE(isThere(from));
        ASSERT_EQ(rename(nearTo.c_str(), from.c_str()), 0);
    }
}

TEST_F(FileMoveTest, movesWholeFilesWithTheirDates) {
    for (const std::filesystem::path& to : {nearTo, farTo}) {
        const timespec times[2] = {{1700000000, 0}, {1700000001, 0}};
        ASSERT_EQ(utimensat(AT_FDCWD, from.c_str(), times, 0), 0);
        ASSERT_EQ(chmod(from.c_str(), 0640), 0);
        const auto moved = moveItem(from, to);
        ASSERT_TRUE(moved.has_value()) << moved.error().text;
        EXPECT_FALSE(isThere(from));
        EXPECT_EQ(read(to), "sound");
        struct stat attributes = {};
        ASSERT_EQ(stat(to.c_str(), &attributes), 0);
        EXPECT_EQ(attributes.st_mtim.tv_sec, 1700000001);
        EXPECT_EQ(attributes.st_mode & 0777U, 0640U);
        write(from, "sound");
    }
    EXPECT_EQ(entriesOf(far() / "PrivateInbox"), 0);
}

TEST_F(FileMoveTest, aFailureLeavesTheSourceAndNothingElse) {
    write(farTo, "older");
    EXPECT_FALSE(moveItem(from, farTo).has_value());
    EXPECT_EQ(read(farTo), "older");
    ASSERT_EQ(remove(farTo.c_str()), 0);
    const std::filesystem::path nowhere = far() / "none/2024.m4a";
    EXPECT_FALSE(moveItem(from, nowhere).has_value());
    EXPECT_FALSE(moveItem(near(), far() / "folder").has_value());
    EXPECT_EQ(read(from), "sound");

    // A disk that is full half-way through the copy.
    const QByteArray large(3 << 20, 'x');
    write(from, large);
    rlimit before = {};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    const rlimit small{2 << 20, before.rlim_max};
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    const auto moved = moveItem(from, farTo);
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
    std::signal(SIGXFSZ, handler);
    EXPECT_FALSE(moved.has_value());
    EXPECT_EQ(read(from), large.toStdString());
    EXPECT_FALSE(isThere(farTo));
    EXPECT_EQ(entriesOf(far() / "PrivateInbox"), 0);
}

TEST_F(FileMoveTest, WhatStepsAsideGetsTheFirstFreeName) {
    const std::pair<const char*, const char*> cases[] = {
        {"talk.wav", "talk_3.wav"}, {"talk.old.m4a", "talk.old_2.m4a"}, {"talk", "talk_2"}, {"t\xfflk.", "t\xfflk_2."}};
    write(near() / "talk_2.wav", "other");
    for (const auto& [name, expected] : cases) {
        write(near() / name, "new");
        const auto aside = stepAside(near() / name);
        ASSERT_TRUE(aside) << name;
        EXPECT_EQ(aside->filename(), expected);
        EXPECT_EQ(read(*aside), "new");
        EXPECT_FALSE(isThere(near() / name));
    }
    EXPECT_EQ(read(near() / "talk_2.wav"), "other");
    EXPECT_FALSE(stepAside(near() / "missing.wav"));
}

}  // namespace
}  // namespace tavi::test
