#include "recording/RecordingRescue.h"

#include <gmock/gmock.h>

#include "files/LockedFolder.h"
#include "support/FakeRecording.h"
#include "support/Files.h"

namespace tavi::test {

namespace {

namespace fs = std::filesystem;

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct RecordingRescueTest : ::testing::Test, FakeServices {
    RecordingRescueTest() {
        QObject::connect(&notifications, &NotificationCenter::posted, &notifications, [&] { ++updates; });
    }
    ~RecordingRescueTest() override { setWritable(true); }

    /// A file as a killed program leaves it: below Unsaved, or anywhere in the container.
    fs::path add(const fs::path& name, const char* contents = "sound") const {
        return written(container.root() / name, contents);
    }
    void setWritable(bool isWritable) const {
        // Root may write everywhere; a file in the folder's place stops root, too.
        const fs::path documents = container.root() / "Documents", aside = container.root() / "aside";
        if (isWritable && fs::is_directory(aside)) {
            fs::remove(documents);
            fs::rename(aside, documents);
        } else if (!isWritable) {
            fs::rename(container.documentsPath(), aside);
            written(documents, "in the way");
        }
    }
    /// Rescues, and says what the user hears: the notices, and how often the library is told.
    std::string rescued() {
        rescue.rescue();
        rescue.rescue();
        runLoop.drain();
        return heard();
    }
    std::string heard() {
        const std::string text = notices.said();
        return text + (text.empty() ? "" : " ") + std::to_string(std::exchange(updates, 0));
    }
    std::vector<std::string> names(const fs::path& folder) const {
        std::vector<std::string> found;
        for (const auto& item : fs::directory_iterator(container.root() / folder)) {
            found.push_back(item.path().filename());
        }
        std::sort(found.begin(), found.end());
        return found;
    }

    FakeAudioFileRepair repair;
    int updates = 0;
    RecordingRescue rescue{{container, repair, runLoop, notifications, notices}};
};

}  // namespace

TEST_F(RecordingRescueTest, WhatWasLeftIsSavedOnceUnderAFreeNameAndSaidOnce) {
    container.unsavedPath();
    EXPECT_EQ(rescued(), "0");
    // While another one is recorded.
    formatHold.setHeld(true);
    const fs::path one = add("Unsaved/2024_Mar_05_14_03_59/vexmosounds.m4a");
    fs::create_hard_link(one, container.cachesPath() / "vexmosounds.m4a");
    add("Unsaved/2024_Mar_05_14_03_00/vexmosounds.wav", "");
    fs::create_directories(container.unsavedPath() / "2024_Mar_05_14_03_01");
    container.addDocument("Recovered_2024_Mar_05_14_03_59.m4a", "older");
    EXPECT_EQ(rescued(), "rescue_saved 1");
    EXPECT_THAT(names("Documents"),
                ElementsAre("Recovered_2024_Mar_05_14_03_59.m4a", "Recovered_2024_Mar_05_14_03_59_2.m4a"));
    EXPECT_EQ(fs::file_size(container.documentsPath() / "Recovered_2024_Mar_05_14_03_59_2.m4a"), 5U);
    EXPECT_EQ(fs::hard_link_count(container.documentsPath() / "Recovered_2024_Mar_05_14_03_59_2.m4a"), 1U);
    EXPECT_THAT(names("Unsaved"), IsEmpty());
    EXPECT_EQ(rescued(), "0");

    fs::remove_all(container.unsavedPath());
    add("Unsaved/a/vexmosounds.caf");
    add("Unsaved/a/vexmosounds.mp4");
    EXPECT_EQ(rescued(), "rescue_saved_many 1");
    EXPECT_EQ(names("Documents").size(), 4U);
    EXPECT_EQ(runLoop.activeTimers(), 0U) << "wakes up for nothing";
}

TEST_F(RecordingRescueTest, WhatSomebodyElseHasStaysWithIt) {
    auto folder = LockedFolder::create(container.unsavedPath(), "running");
    ASSERT_TRUE(folder);
    add("Unsaved/running/vexmosounds.m4a");
    EXPECT_EQ(LockedFolder::create(container.unsavedPath(), "running")->path().filename(), "running_2");
    EXPECT_EQ(rescued(), "0");
    EXPECT_THAT(names("Unsaved"), ElementsAre("running"));
    EXPECT_THAT(repair.repaired, IsEmpty());
    EXPECT_EQ(runLoop.activeTimers(), 0U);
    folder = fileFailure("");
    EXPECT_EQ(rescued(), "rescue_saved 1");
}

TEST_F(RecordingRescueTest, WhatCannotBeSavedIsKeptAndTriedAgain) {
    const fs::path one = add("Unsaved/one/vexmosounds.m4a");
    setWritable(false);
    EXPECT_EQ(rescued(), "rescue_waits 0");
    EXPECT_EQ(rescued(), "0");
    add("Unsaved/two/vexmosounds.m4a", "");
    runLoop.advance(60.0);
    EXPECT_EQ(heard(), "0") << "says it again";
    EXPECT_EQ(repair.repaired.size(), 7U) << "tries too seldom or too often";
    EXPECT_TRUE(fs::exists(one));
    setWritable(true);
    repair.answer = failure(QStringLiteral("damaged"));
    runLoop.advance(30.0);
    EXPECT_EQ(heard(), "0");
    repair.answer = {};
    runLoop.advance(30.0);
    EXPECT_EQ(heard(), "rescue_saved 1");
    EXPECT_THAT(names("Documents"), ElementsAre("Recovered_one.m4a"));
    EXPECT_EQ(runLoop.activeTimers(), 0U);
}

TEST_F(RecordingRescueTest, WhatLiesInTheCachesFolderIsTakenIn) {
    add("Caches/vexmosounds.wav");
    add("Caches/vexmosounds_2.wav");
    add("Caches/other.wav");
    fs::create_hard_link(container.addDocument("Saved.mp4", "sound"), container.cachesPath() / "vexmosounds.mp4");
    // A recording is running: the name that it may have is let be.
    formatHold.setHeld(true);
    EXPECT_EQ(rescued(), "rescue_saved 1");
    EXPECT_THAT(names("Caches"), ElementsAre("other.wav", "recording.lock", "vexmosounds.mp4", "vexmosounds.wav"));
    formatHold.setHeld(false);
    EXPECT_EQ(rescued(), "rescue_saved 1");
    EXPECT_THAT(names("Caches"), ElementsAre("other.wav", "recording.lock"));
    EXPECT_THAT(names("Documents"),
                ElementsAre(::testing::StartsWith("Recovered_2"), ::testing::StartsWith("Recovered_2"), "Saved.mp4"));
}

}  // namespace tavi::test
