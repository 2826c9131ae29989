#include <gmock/gmock.h>

#include <QDir>
#include <fstream>
#include <set>

#include "adapters/qt/QtAppContainer.h"
#include "support/TemporaryContainer.h"

namespace tavi::test {

namespace {

std::unique_ptr<AppContainer> created(const std::filesystem::path& folder) {
    return std::move(QtAppContainer::create(folder).value());
}

enum class Kind { Temporary, BelowRelative, Xdg };

class AppContainerContract : public ::testing::TestWithParam<Kind> {
protected:
    AppContainerContract() {
        QDir::setCurrent(m_folder.path());
        const QByteArray folder = m_folder.path().toUtf8();
        qputenv("HOME", folder);
        qputenv("XDG_CACHE_HOME", folder + "/cache");
        qputenv("XDG_CONFIG_HOME", folder + "/config");
        qputenv("XDG_DATA_HOME", folder + "/data");
    }

    std::unique_ptr<AppContainer> make() const {
        if (GetParam() == Kind::Temporary) {
            return std::make_unique<TemporaryContainer>();
        }
        return created(GetParam() == Kind::Xdg ? "" : "./other/../new/relative/");
    }

    std::filesystem::path below(const char* name) const { return m_folder.filePath(QLatin1String(name)).toStdString(); }

    QTemporaryDir m_folder;
};

TEST_P(AppContainerContract, FoldersExistAndAreApart) {
    const auto container = make();
    const std::vector<std::filesystem::path> paths = {container->documentsPath(),
                                                      container->cachesPath(),
                                                      container->temporaryPath(),
                                                      container->preferencesPath(),
                                                      container->groupContainerPath(QStringLiteral("group.One")),
                                                      container->groupContainerPath(QStringLiteral("group.Two"))};
    EXPECT_EQ(std::set(paths.begin(), paths.end()).size(), paths.size());
    for (const auto& path : paths) {
        SCOPED_TRACE(path);
        EXPECT_TRUE(path.is_absolute());
        EXPECT_EQ(path.native(), path.lexically_normal().native());
        EXPECT_TRUE(path.has_filename()) << "no slash at the end";
        EXPECT_TRUE(std::ofstream(path / "probe"));
    }
}

INSTANTIATE_TEST_SUITE_P(All, AppContainerContract, ::testing::Values(Kind::Temporary, Kind::BelowRelative, Kind::Xdg));

using QtAppContainerTest = AppContainerContract;
INSTANTIATE_TEST_SUITE_P(Xdg, QtAppContainerTest, ::testing::Values(Kind::Xdg));

TEST_P(QtAppContainerTest, PutsFoldersWherePeopleLookForThem) {
    const auto xdg = created({});
    EXPECT_EQ(xdg->documentsPath(), below("Music/Voice Recordings"));
    EXPECT_EQ(xdg->cachesPath(), below("cache/com.quillfen.voicerecorder"));
    EXPECT_EQ(xdg->preferencesPath(), below("config/com.quillfen.voicerecorder"));
    EXPECT_EQ(xdg->groupContainerPath(QStringLiteral("g")), below("data/com.quillfen.voicerecorder/Groups/g"));
    const auto own = created("mine");
    EXPECT_EQ(own->documentsPath(), below("mine/Documents"));
    const auto permissions = [](const std::filesystem::path& path) {
        return std::filesystem::status(path).permissions();
    };
    EXPECT_EQ(permissions(own->documentsPath()), permissions(below("mine")));
    for (const auto& path : {own->cachesPath(), own->temporaryPath(), own->preferencesPath(),
                             own->groupContainerPath(QStringLiteral("g"))}) {
        EXPECT_EQ(permissions(path), std::filesystem::perms::owner_all) << path;
        EXPECT_THAT(path.native(), ::testing::StartsWith(below("mine/").native())) << path;
    }
}

TEST_P(QtAppContainerTest, SaysWhichFolderCannotBeMade) {
    QFile file(m_folder.filePath(QStringLiteral("file")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const auto container = QtAppContainer::create("file/below");
    ASSERT_FALSE(container.has_value());
    EXPECT_TRUE(container.error().text.contains(file.fileName() + QLatin1String("/below")));
}

}  // namespace

}  // namespace tavi::test
