#include "files/FileNames.h"

#include <gtest/gtest.h>

#include <fstream>

#include "support/TemporaryContainer.h"

namespace tavi::test {
namespace {

TEST(FileNames, FindAFreeNameBesideWhateverIsThere) {
    const TemporaryContainer container;
    const std::filesystem::path folder = container.documentsPath();
    std::ofstream(folder / "a.b.wav") << "sound";
    std::ofstream(folder / "a.b_3.wav") << "sound";
    std::filesystem::create_symlink("nowhere", folder / "link.wav");
    std::filesystem::create_directories(folder / "dotted.d/x\xff");
    const std::pair<const char*, const char*> cases[] = {
        {"free.wav", "free.wav"},
        {"a.b.wav", "a.b_2.wav"},
        {"a.b_3.wav", "a.b_3_2.wav"},
        {"link.wav", "link_2.wav"},
        {"dotted.d/x\xff", "dotted.d/x\xff_2"},
        {"dotted.d", "dotted_2.d"},
    };
    for (const auto& [wanted, free] : cases) {
        EXPECT_EQ(freePath(folder / wanted), folder / free);
    }
    std::ofstream(folder / "a.b_2.wav") << "sound";
    EXPECT_EQ(freePath(folder / "a.b.wav"), folder / "a.b_4.wav");
}

}  // namespace
}  // namespace tavi::test
