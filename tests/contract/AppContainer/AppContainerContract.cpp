#include <gmock/gmock.h>

#include <QSet>

#include "adapters/qt/QtAppContainer.h"
#include "support/TemporaryContainer.h"

namespace tavi::test {

namespace {

std::unique_ptr<AppContainer> created(const QString& folder) {
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
        return created(GetParam() == Kind::Xdg ? QString() : QStringLiteral("./other/../new/relative/"));
    }

    QTemporaryDir m_folder;
};

TEST_P(AppContainerContract, FoldersExistAndAreApart) {
    const auto container = make();
    const QStringList paths = {container->documentsPath(),
                               container->cachesPath(),
                               container->temporaryPath(),
                               container->preferencesPath(),
                               container->groupContainerPath(QStringLiteral("group.One")),
                               container->groupContainerPath(QStringLiteral("group.Two"))};
    EXPECT_EQ(QSet<QString>(paths.begin(), paths.end()).size(), paths.size());
    for (const QString& path : paths) {
        SCOPED_TRACE(qPrintable(path));
        EXPECT_TRUE(QDir::isAbsolutePath(path));
        EXPECT_EQ(path, QDir::cleanPath(path));
        EXPECT_TRUE(QFile(path + QLatin1String("/probe")).open(QIODevice::WriteOnly));
    }
}

INSTANTIATE_TEST_SUITE_P(All, AppContainerContract, ::testing::Values(Kind::Temporary, Kind::BelowRelative, Kind::Xdg));

using QtAppContainerTest = AppContainerContract;
INSTANTIATE_TEST_SUITE_P(Xdg, QtAppContainerTest, ::testing::Values(Kind::Xdg));

TEST_P(QtAppContainerTest, PutsFoldersWherePeopleLookForThem) {
    const auto xdg = created(QString());
    EXPECT_EQ(xdg->documentsPath(), m_folder.filePath(QStringLiteral("Music/Voice Recordings")));
    EXPECT_EQ(xdg->cachesPath(), m_folder.filePath(QStringLiteral("cache/com.quillfen.voicerecorder")));
    EXPECT_EQ(xdg->preferencesPath(), m_folder.filePath(QStringLiteral("config/com.quillfen.voicerecorder")));
    EXPECT_EQ(xdg->groupContainerPath(QStringLiteral("g")),
              m_folder.filePath(QStringLiteral("data/com.quillfen.voicerecorder/Groups/g")));
    const auto own = created(QStringLiteral("mine"));
    EXPECT_EQ(own->documentsPath(), m_folder.filePath(QStringLiteral("mine/Documents")));
    const auto readers = [](const QString& path) {
        return QFile::permissions(path) & (QFile::ReadGroup | QFile::ReadOther);
    };
    EXPECT_EQ(readers(own->documentsPath()), readers(m_folder.filePath(QStringLiteral("mine"))));
    for (const QString& path : {own->cachesPath(), own->temporaryPath(), own->preferencesPath(),
                                own->groupContainerPath(QStringLiteral("g"))}) {
        EXPECT_EQ(readers(path), QFile::Permissions()) << qPrintable(path);
    }
}

TEST_P(QtAppContainerTest, SaysWhichFolderCannotBeMade) {
    QFile file(m_folder.filePath(QStringLiteral("file")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const auto container = QtAppContainer::create(QStringLiteral("file/below"));
    ASSERT_FALSE(container.has_value());
    EXPECT_TRUE(container.error().text.contains(file.fileName() + QLatin1String("/below")));
}

}  // namespace

}  // namespace tavi::test
