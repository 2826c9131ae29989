#include "files/DurableFile.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <fstream>
#include <set>

#include "support/TemporaryContainer.h"

namespace tavi::test {
namespace {

class DurableFileTest : public ::testing::Test {
protected:
    /// What lies below the folder, by the paths from there.
    std::set<std::string> files() const {
        std::set<std::string> names;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
            if (!entry.is_directory()) {
                names.insert(entry.path().lexically_relative(folder));
            }
        }
        return names;
    }
    static std::string contents(const std::filesystem::path& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    const TemporaryContainer container;
    const std::filesystem::path folder = container.documentsPath();
    const std::filesystem::path path = folder / "a\xff.wav";
};

TEST_F(DurableFileTest, HasItsNameWhenItIsPublishedAndLeavesNothingBefore) {
    for (const bool isHidden : {false, true}) {
        SCOPED_TRACE(isHidden);
        if (isHidden) {
            std::filesystem::create_directory(folder / "PrivateInbox");
        }
        {
            const DurableFile given = DurableFile::create(path, ".m4a");
            ASSERT_TRUE(given.isValid());
            EXPECT_EQ(given.temporaryPath().parent_path(), isHidden ? folder / "PrivateInbox" : folder);
            EXPECT_EQ(given.temporaryPath().extension(), ".m4a");
            EXPECT_EQ(files().size(), 1U);
        }
        EXPECT_EQ(files().size(), 0U) << "given up";
        DurableFile file = DurableFile::create(path);
        DurableFile other = DurableFile::create(path);
        ASSERT_EQ(::write(file.fd(), "sound", 5), 5);
        EXPECT_EQ(file.publish(), 0);
        EXPECT_EQ(other.publish(), EEXIST);
        EXPECT_EQ(contents(path), "sound");
        EXPECT_FALSE(DurableFile::create(path).isValid());
        EXPECT_EQ(errno, EEXIST);
        std::filesystem::remove(other.temporaryPath());
        EXPECT_EQ(files(), std::set<std::string>{path.filename()});
        std::filesystem::remove(path);
    }
}

TEST_F(DurableFileTest, TakesWhatAnotherWriterMadeInItsPlace) {
    DurableFile file = DurableFile::create(path);
    file.discard();
    EXPECT_EQ(file.synchronize(), ENOENT);
    std::ofstream(file.temporaryPath()) << "other";
    EXPECT_EQ(file.publish(), 0);
    EXPECT_EQ(contents(path), "other");
}

TEST_F(DurableFileTest, LeftoversOfKilledProcessesGoAfterAnHour) {
    DurableFile file = DurableFile::create(path);
    const std::string kept = file.temporaryPath().filename();
    std::ofstream(folder / "recording.wav") << "sound";
    std::filesystem::last_write_time(file.temporaryPath(), {});
    const std::time_t now = std::time(nullptr);
    removeLeftovers(folder, now + 3500);
    EXPECT_EQ(files(), (std::set<std::string>{kept, "recording.wav"})) << "it has the date of a source";
    removeLeftovers(folder, now + 3700);
    EXPECT_EQ(files(), std::set<std::string>{"recording.wav"});
}

}  // namespace
}  // namespace tavi::test
