#include "library/RecordingFiles.h"

#include <gtest/gtest.h>

#include <fstream>

#include "files/FileNames.h"
#include "support/TemporaryContainer.h"

namespace tavi::test {
namespace {

using Fault = NewNameFault;

TEST(RecordingFiles, ANewNameIsCheckedInItsOrderAndTheFileGetsItOrStays) {
    const std::string longest(251, 'x');
    const struct {
        const char* name;
        std::string typed;
        Fault fault;
        /// The file's name afterwards.
        std::string expected;
    } cases[] = {
        {"memo.m4a", "a/b", Fault::HasSlash, "memo.m4a"},
        {"memo.m4a", "", Fault::IsEmpty, "memo.m4a"},
        {"memo.m4a", "memo.m4a", Fault::IsOldName, "memo.m4a"},
        {"memo.m4a", "memo", Fault::IsTaken, "memo.m4a"},
        {"memo.m4a", "there", Fault::IsTaken, "memo.m4a"},
        {"memo.m4a", "link", Fault::IsTaken, "memo.m4a"},
        {"memo", "..", Fault::IsTaken, "memo"},
        {"memo.m4a", "talk", Fault::None, "talk.m4a"},
        {"memo.m4a", "MEMO", Fault::None, "MEMO.m4a"},
        {"memo.M4A", "there", Fault::None, "there.M4A"},
        {"memo.m4a", "-x\n\xE2\x80\xAE.m4a", Fault::None, "-x\n\xE2\x80\xAE.m4a.m4a"},
        {"memo", "x", Fault::None, "x"},
        {".hidden", "x", Fault::None, "x"},
        {"memo.", "x", Fault::None, "x"},
        {"memo.m4a", longest, Fault::None, longest + ".m4a"},
        {"memo.m4a", longest + "x", Fault::None, "memo.m4a"},
        {"x\xff.m4a", "x\xEF\xBF\xBD", Fault::IsTaken, "x\xff.m4a"},
        {"x\xff.m4a", "y", Fault::None, "y.m4a"},
    };
    for (const auto& [name, typed, fault, expected] : cases) {
        SCOPED_TRACE(std::string(name) + " to " + typed);
        const TemporaryContainer container;
        const std::filesystem::path folder = container.documentsPath();
        container.addDocument("there.m4a", "there");
        std::filesystem::create_symlink("nowhere", folder / "link.m4a");
        std::ofstream(folder / name) << "sound";
        EXPECT_EQ(recordingfiles::faultOfNewName(folder / name, QString::fromStdString(typed)), fault);
        if (fault == Fault::None || fault == Fault::IsTaken) {
            const auto renamed = recordingfiles::rename(
                folder / name, recordingfiles::renamedPath(folder / name, QString::fromStdString(typed)));
            EXPECT_EQ(renamed.has_value(), expected != name) << "what came meanwhile is not replaced";
            EXPECT_TRUE(renamed || !renamed.error().text.isEmpty());
        }
        EXPECT_EQ(std::filesystem::file_size(folder / expected), 5U);
        EXPECT_EQ(existsAt(folder / name), expected == name);
        EXPECT_TRUE(existsAt(folder / "there.m4a") && existsAt(folder / "link.m4a"));
    }
}

}  // namespace
}  // namespace tavi::test
