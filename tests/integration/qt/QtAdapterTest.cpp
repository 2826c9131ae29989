#include <gmock/gmock.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <fstream>

#include "adapters/qt/QtAppContainer.h"
#include "adapters/qt/QtTrash.h"
#include "adapters/qt/QtUserDefaults.h"
#include "adapters/qt/TerminationSignals.h"
#include "app/settings/SettingsStore.h"
#include "files/FileNames.h"
#include "support/EventLoop.h"

namespace tavi::test {

namespace {

struct SettingsFile : ::testing::Test {
    /// Replaces the file as another process does: a new file takes the old one's name.
    void writeAsOther(const QByteArray& text) {
        QFile file(m_path + QLatin1String(".new"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        // All in one second.
        m_written = m_written.addMSecs(10);
        ASSERT_TRUE(file.flush() && file.setFileTime(m_written, QFileDevice::FileModificationTime));
        file.close();
        QFile::remove(m_path);
        ASSERT_TRUE(file.rename(m_path));
    }
    QByteArray text() const {
        QFile file(m_path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir m_folder;
    QDateTime m_written{QDate(2024, 3, 5), QTime(14, 3)};
    QString m_path = m_folder.filePath(QStringLiteral("settings.ini"));
};

TEST_F(SettingsFile, KeepsKeysAndValuesOfEveryKindApart) {
    const std::pair<const char*, QVariant> rows[] = {
        {"", QStringLiteral("")},
        {"a/b", QStringLiteral("a, b")},
        {"a//b", QStringLiteral("@Invalid()")},
        {"a\\b", QStringLiteral("\"q\"")},
        {"A", QStringLiteral("l\nm")},
        {"a", QStringLiteral("; no comment")},
        {"%", QStringLiteral(" blank ")},
        {"%25", QStringLiteral("100 %")},
        {"General/x", QStringLiteral("\\x41")},
        {"x", QStringLiteral("Grüße 🎤")},
        {"é = ü;\n[ä]", QStringLiteral("true")},
        {"int", -7},
        {"no", false},
        {"double", 0.1},
        {"float", 12.5F},
    };
    const QString path = m_folder.filePath(QStringLiteral("new/settings.ini"));
    QtUserDefaults defaults(path.toStdString());
    defaults.setObject(true, QStringLiteral("gone"));
    defaults.setObject(1, QStringLiteral("int"));
    EXPECT_TRUE(defaults.synchronize());
    defaults.removeObjectForKey(QStringLiteral("gone"));
    for (const auto& [key, value] : rows) {
        defaults.setObject(value, QString::fromUtf8(key));
    }
    EXPECT_TRUE(defaults.synchronize());
    // A copy of the file, since objects for one file share its contents within a process.
    const QString copy = m_folder.filePath(QStringLiteral("copy.ini"));
    ASSERT_TRUE(QFile::copy(path, copy));
    QtUserDefaults read(copy.toStdString());
    for (const auto& [key, value] : rows) {
        EXPECT_TRUE(read.objectForKey(QString::fromUtf8(key)).isValid()) << key;
        EXPECT_EQ(read.stringForKey(QString::fromUtf8(key)), value.toString()) << key;
        read.removeObjectForKey(QString::fromUtf8(key));
        EXPECT_FALSE(read.objectForKey(QString::fromUtf8(key)).isValid()) << key;
    }
    EXPECT_EQ(defaults.integerForKey(QStringLiteral("int")), -7);
    EXPECT_EQ(defaults.floatForKey(QStringLiteral("double")), 0.1);
    EXPECT_FALSE(defaults.boolForKey(QStringLiteral("no")));
    EXPECT_FALSE(defaults.objectForKey(QStringLiteral("gone")).isValid());
}

TEST_F(SettingsFile, ShowsWhatOthersWroteAndKeepsIt) {
    QtUserDefaults defaults(m_path.toStdString());
    defaults.setObject(1, QStringLiteral("mine"));
    ASSERT_TRUE(defaults.synchronize());
    // All are as long as the last, and a list is a text that somebody typed without quotes.
    for (const char* list : {"a, b", "b, c", "d, e"}) {
        writeAsOther(QByteArray("[General]\nmine=1\ntheirs=true\nlist=") + list + '\n');
        EXPECT_TRUE(defaults.boolForKey(QStringLiteral("theirs")));
        EXPECT_EQ(defaults.stringForKey(QStringLiteral("list")), QLatin1String(list));
    }
    writeAsOther("[General]\nmine=1\ntheirs=false\nmore=9\n");
    defaults.setObject(2, QStringLiteral("mine"));
    ASSERT_TRUE(defaults.synchronize());
    EXPECT_EQ(text(), "[General]\nmine=2\nmore=9\ntheirs=false\n");
}

TEST_F(SettingsFile, NamesEveryRecordingThatIsStillToGoToTheCloud) {
    const std::vector<std::filesystem::path> files{"/a b.m4a", "/c,d.m4a", "/\xff%20.m4a"};
    for (std::size_t count = 1; count <= files.size(); ++count) {
        QtUserDefaults defaults(m_path.toStdString());
        SettingsStore(defaults).setCloudPending(files[count - 1], true);
        ASSERT_TRUE(defaults.synchronize());
        QtUserDefaults read(m_path.toStdString());
        EXPECT_EQ(SettingsStore(read).cloudPending(),
                  std::vector(files.begin(), files.begin() + static_cast<long>(count)));
    }
}

TEST_F(SettingsFile, SurvivesDamageAndRecoversFromWhatIsInTheWay) {
    writeAsOther(QByteArray("[General]\nSort=3\nno equals sign\n[broken\n\xff\xfe") + QByteArray(64, '\0'));
    QtUserDefaults damaged(m_path.toStdString());
    EXPECT_EQ(damaged.integerForKey(QStringLiteral("Sort")), 3);
    damaged.setObject(4, QStringLiteral("Sort"));
    EXPECT_TRUE(damaged.synchronize());
    EXPECT_EQ(damaged.integerForKey(QStringLiteral("Sort")), 4);

    m_path += QLatin1String(".other");
    ASSERT_TRUE(QDir().mkpath(m_path + QLatin1String("/in the way")));
    QtUserDefaults defaults(m_path.toStdString());
    EXPECT_FALSE(defaults.objectForKey(QStringLiteral("Sort")).isValid());
    defaults.setObject(4, QStringLiteral("Sort"));
    EXPECT_FALSE(defaults.synchronize());
    EXPECT_EQ(defaults.integerForKey(QStringLiteral("Sort")), 4);
    ASSERT_TRUE(QDir(m_path).removeRecursively());
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_EQ(text(), "[General]\nSort=4\n");
}

TEST(Container, HasItsFoldersWherePeopleLookForThemOrBelowOne) {
    const QTemporaryDir home;
    const std::filesystem::path folder = home.path().toStdString();
    ASSERT_TRUE(QDir::setCurrent(home.path()));
    qputenv("HOME", home.path().toUtf8());
    for (const char* name : {"CACHE", "CONFIG", "DATA"}) {
        qputenv((QByteArray("XDG_") + name + "_HOME"), (folder / name).c_str());
    }
    const QString group = QStringLiteral("group.One");
    const auto foldersOf = [&group](const char* path) {
        const auto container = std::move(QtAppContainer::create(path).value());
        return std::vector{container->documentsPath(),   container->unsavedPath(),
                           container->cachesPath(),      container->temporaryPath(),
                           container->preferencesPath(), container->groupContainerPath(group)};
    };
    const std::string id = "com.quillfen.voicerecorder";
    EXPECT_EQ(foldersOf(""), (std::vector{folder / "Music/Voice Recordings", folder / "DATA" / id / "Unsaved",
                                          folder / "CACHE" / id, folder / "CACHE" / id / "tmp", folder / "CONFIG" / id,
                                          folder / "DATA" / id / "Groups/group.One"}));
    const auto own = foldersOf("./other/../mine/");
    const std::filesystem::path mine = folder / "mine";
    EXPECT_EQ(own, (std::vector{mine / "Documents", mine / "Unsaved", mine / "Caches", mine / "tmp",
                                mine / "Preferences", mine / "Groups/group.One"}));
    for (const auto& path : own) {
        // Others may look at the recordings only.
        const bool isShared = path == own.front();
        const auto permissions = std::filesystem::status(path).permissions();
        EXPECT_EQ(permissions,
                  isShared ? std::filesystem::status(mine).permissions() : std::filesystem::perms::owner_all);
        EXPECT_TRUE(std::ofstream(path / "probe"));
    }
    const auto impossible = QtAppContainer::create("mine/Documents/probe/below");
    ASSERT_FALSE(impossible);
    EXPECT_TRUE(impossible.error().text.contains(home.path() + QLatin1String("/mine/Documents/probe/below")));
    qputenv("HOME", "");
    EXPECT_TRUE(QtAppContainer::create({}).error().text.startsWith(QLatin1String("HOME")));
}

TEST(TerminationSignals, ArriveOnTheMainThreadAndAreRestored) {
    const auto previous = ::signal(SIGHUP, SIG_IGN);
    std::vector<int> received;
    {
        const TerminationSignals termination([&received](int number) { received.push_back(number); });
        for (const int number : {SIGHUP, SIGPIPE, SIGXFSZ, SIGTERM, SIGQUIT, SIGUSR1, SIGUSR2}) {
            ::kill(::getpid(), number);
        }
        EXPECT_TRUE(received.empty());
        ASSERT_TRUE(spinUntil([&received] { return !received.empty(); }));
        ::kill(::getpid(), SIGINT);
        ASSERT_TRUE(spinUntil([&received] { return received.size() == 5; }));
    }
    EXPECT_EQ(received.back(), SIGINT);
    EXPECT_EQ(::signal(SIGTERM, SIG_DFL), SIG_DFL);
    ::signal(SIGHUP, previous);
}

TEST(Trash, TakesWhateverIsThereAndBringsItBackUnderAFreeName) {
    namespace fs = std::filesystem;
    const QTemporaryDir home;
    qputenv("XDG_DATA_HOME", home.filePath(QStringLiteral("data")).toLocal8Bit());
    const fs::path folder = home.path().toStdString();
    for (const char* name : {"voice.m4a", "x\xff.m4a", "-a\nb.m4a", "folder.m4a"}) {
        SCOPED_TRACE(name);
        QtTrash trash;
        const fs::path path = folder / name;
        name == std::string("folder.m4a") ? void(fs::create_directory(path)) : void(std::ofstream(path) << "sound");
        const auto trashed = trash.moveToTrash(path);
        ASSERT_TRUE(trashed) << qPrintable(trashed.error().text);
        EXPECT_FALSE(existsAt(path));
        EXPECT_EQ(trashed->parent_path(), folder / "data/Trash/files");
        std::ofstream(path) << "other";
        const auto back = trash.putBack(*trashed, path);
        ASSERT_TRUE(back) << qPrintable(back.error().text);
        EXPECT_EQ(*back, numberedPath(path, 2));
        EXPECT_TRUE(existsAt(*back) && fs::is_empty(folder / "data/Trash/info"));
        EXPECT_FALSE(trash.putBack(*trashed, path)) << "it is gone from there";
    }
    // Where the trash should be there is something else.
    for (const char* place : {"data", "data/Trash/files"}) {
        fs::remove_all(folder / "data");
        fs::create_directories((folder / place).parent_path());
        std::ofstream(folder / place) << "";
        for (const char* name : {"voice.m4a", "x\xff.m4a", "gone.m4a"}) {
            const bool wasThere = existsAt(folder / name);
            EXPECT_FALSE(QtTrash().moveToTrash(folder / name)) << name;
            EXPECT_EQ(existsAt(folder / name), wasThere) << name;
        }
    }
    fs::remove_all(folder);
}

}  // namespace

}  // namespace tavi::test
