#include "files/FileMove.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cerrno>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <string>

namespace tavi::test {
namespace {

// Files are addressed by bytes, as their names need not be text.

void write(const QByteArray& path, const QByteArray& contents) {
    ASSERT_TRUE(std::ofstream(path.toStdString(), std::ios::binary) << contents.toStdString());
}

std::string read(const QByteArray& path) {
    std::ifstream file(path.toStdString(), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

bool exists(const QByteArray& path) {
    return access(path.constData(), F_OK) == 0;
}

int entriesOf(const QString& folder) {
    return static_cast<int>(
        QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot).size());
}

class FileMoveTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_near.isValid() && m_far.isValid());
        from = QFile::encodeName(m_near.path()) + "/voice\xff.m4a";
        nearTo = QFile::encodeName(m_near.path()) + "/2024\xfe.m4a";
        farTo = QFile::encodeName(m_far.path()) + "/2024\xfe.m4a";
        write(from, "sound");
        // The two must be on two file systems.
        ASSERT_NE(rename(from.constData(), farTo.constData()), 0);
    }

    /// QTemporaryDir itself leaves names behind that are no text.
    void TearDown() override {
        std::filesystem::remove_all(m_near.path().toStdString());
        std::filesystem::remove_all(m_far.path().toStdString());
    }

    QTemporaryDir m_near{QStringLiteral("/var/tmp/tavi-XXXXXX")};
    QTemporaryDir m_far{QStringLiteral("/dev/shm/tavi-XXXXXX")};
    QByteArray from;
    QByteArray nearTo;
    QByteArray farTo;
};

TEST_F(FileMoveTest, everyWayOfRenamingReplacesNothing) {
    for (const RenameMethod method : {RenameMethod::Exclusive, RenameMethod::Link, RenameMethod::Reserve}) {
        SCOPED_TRACE(static_cast<int>(method));
        write(nearTo, "older");
        EXPECT_EQ(renameWithoutReplacing(from, nearTo, method), EEXIST);
        EXPECT_EQ(read(from), "sound");
        EXPECT_EQ(read(nearTo), "older");

        ASSERT_EQ(remove(nearTo.constData()), 0);
        EXPECT_EQ(renameWithoutReplacing(from, nearTo, method), 0);
        EXPECT_FALSE(exists(from));
        EXPECT_EQ(read(nearTo), "sound");

        EXPECT_EQ(renameWithoutReplacing(from + "none", from, method), ENOENT);
        EXPECT_FALSE(exists(from));
        ASSERT_EQ(rename(nearTo.constData(), from.constData()), 0);
    }
}

TEST_F(FileMoveTest, movesWholeFilesWithTheirDates) {
    for (const QByteArray& to : {nearTo, farTo}) {
        const timespec times[2] = {{1700000000, 0}, {1700000001, 0}};
        ASSERT_EQ(utimensat(AT_FDCWD, from.constData(), times, 0), 0);
        const auto moved = moveItem(from, to);
        ASSERT_TRUE(moved.has_value()) << qPrintable(moved.error().text);
        EXPECT_FALSE(exists(from));
        EXPECT_EQ(read(to), "sound");
        struct stat attributes = {};
        ASSERT_EQ(stat(to.constData(), &attributes), 0);
        EXPECT_EQ(attributes.st_mtim.tv_sec, 1700000001);
        write(from, "sound");
    }
    EXPECT_EQ(entriesOf(m_far.filePath(QStringLiteral("PrivateInbox"))), 0);
}

TEST_F(FileMoveTest, aFailureLeavesTheSourceAndNothingElse) {
    write(farTo, "older");
    EXPECT_FALSE(moveItem(from, farTo).has_value());
    EXPECT_EQ(read(farTo), "older");
    ASSERT_EQ(remove(farTo.constData()), 0);
    const QByteArray nowhere = QFile::encodeName(m_far.path()) + "/none/2024.m4a";
    EXPECT_FALSE(moveItem(from, nowhere).has_value());
    EXPECT_FALSE(moveItem(m_near.path(), m_far.filePath(QStringLiteral("folder"))).has_value());
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
    EXPECT_FALSE(exists(farTo));
    EXPECT_EQ(entriesOf(m_far.filePath(QStringLiteral("PrivateInbox"))), 0);
}

}  // namespace
}  // namespace tavi::test
