#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <fstream>

#include "adapters/local/LocalCoordinatedFiles.h"
#include "support/FakeChannel.h"
#include "support/TemporaryContainer.h"

namespace tavi::test {
namespace {

using namespace std::chrono_literals;
using Make = std::unique_ptr<CoordinatedFiles> (*)(const std::filesystem::path& folder);

class CoordinatedFilesContract : public ::testing::TestWithParam<Make> {};

TEST_P(CoordinatedFilesContract, LetOneAtATimeAtAFile) {
    const TemporaryContainer container;
    const auto files = GetParam()(container.cachesPath());
    const auto one = container.documentsPath() / "one";
    const auto two = container.documentsPath() / "two";
    for (int round = 0; round < 2; ++round) {
        std::vector<bool> inner;
        EXPECT_TRUE(files->coordinate(one, [&] {
            inner.push_back(files->coordinate(one, [] { ADD_FAILURE() << "two at one file"; }));
            inner.push_back(files->coordinate(two, [] {}));
        }));
        EXPECT_EQ(inner, (std::vector{false, true}));
    }
}

INSTANTIATE_TEST_SUITE_P(All, CoordinatedFilesContract,
                         ::testing::Values(
                             [](const auto&) -> std::unique_ptr<CoordinatedFiles> {
                                 return std::make_unique<FakeCoordinatedFiles>();
                             },
                             [](const auto& folder) -> std::unique_ptr<CoordinatedFiles> {
                                 return std::make_unique<LocalCoordinatedFiles>(folder, 20ms);
                             }));

TEST(LocalCoordinatedFiles, AreFreeAgainWhenTheirProgramIsKilled) {
    const TemporaryContainer container;
    const auto folder = container.documentsPath();
    std::filesystem::create_directory_symlink(folder, container.root() / "link");
    std::array<int, 2> pipe = {};
    ASSERT_EQ(::pipe(pipe.data()), 0);
    const pid_t other = ::fork();
    if (other == 0) {
        LocalCoordinatedFiles(container.cachesPath()).coordinate(container.root() / "link" / "one", [&] {
            (void)::write(pipe[1], "x", 1);
            ::pause();
        });
        ::_exit(0);
    }
    char held = 0;
    ASSERT_EQ(::read(pipe[0], &held, 1), 1);
    LocalCoordinatedFiles files(container.cachesPath(), 20ms);
    int calls = 0;
    EXPECT_FALSE(files.coordinate(folder / "one", [&calls] { ++calls; }));
    EXPECT_TRUE(files.coordinate(folder / "other", [&calls] { ++calls; }));
    ::kill(other, SIGKILL);
    ::waitpid(other, nullptr, 0);
    EXPECT_TRUE(files.coordinate(folder / "one", [&calls] { ++calls; }));
    // Without a place for the locks nobody is let in.
    EXPECT_FALSE(LocalCoordinatedFiles(folder / "absent", 20ms).coordinate(folder / "one", [&calls] { ++calls; }));
    EXPECT_EQ(calls, 2);
}

}  // namespace
}  // namespace tavi::test
