#include <gmock/gmock.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "adapters/qt/QtUserDefaults.h"
#include "adapters/qt/TerminationSignals.h"
#include "support/EventLoop.h"

namespace tavi::test {

namespace {

class SettingsFile : public ::testing::Test {
protected:
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

TEST_F(SettingsFile, ShowsWhatOthersWroteAndKeepsIt) {
    QtUserDefaults defaults(m_path.toStdString());
    defaults.setObject(1, QStringLiteral("mine"));
    ASSERT_TRUE(defaults.synchronize());
    writeAsOther("[General]\nmine=1\ntheirs=true\nlist=a, b\n");
    EXPECT_TRUE(defaults.boolForKey(QStringLiteral("theirs")));
    EXPECT_EQ(defaults.stringForKey(QStringLiteral("list")), QStringLiteral("a, b"));
    // As long as the last.
    for (const char* list : {"b, c", "d, e"}) {
        writeAsOther(QByteArray("[General]\nmine=1\ntheirs=true\nlist=") + list + '\n');
        EXPECT_EQ(defaults.stringForKey(QStringLiteral("list")), QLatin1String(list));
    }
    writeAsOther("[General]\nmine=1\ntheirs=false\nmore=9\n");
    defaults.setObject(2, QStringLiteral("mine"));
    ASSERT_TRUE(defaults.synchronize());
    EXPECT_FALSE(defaults.boolForKey(QStringLiteral("theirs")));
    EXPECT_EQ(text(), "[General]\nmine=2\nmore=9\ntheirs=false\n");
}

TEST_F(SettingsFile, SurvivesDamage) {
    writeAsOther(QByteArray("[General]\nSort=3\nno equals sign\n[broken\n\xff\xfe") + QByteArray(64, '\0'));
    QtUserDefaults defaults(m_path.toStdString());
    EXPECT_EQ(defaults.integerForKey(QStringLiteral("Sort")), 3);
    defaults.setObject(4, QStringLiteral("Sort"));
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_EQ(defaults.integerForKey(QStringLiteral("Sort")), 4);
}

TEST_F(SettingsFile, SaysThatItCannotBeWrittenAndRecovers) {
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

TEST(TerminationSignals, ArriveOnTheMainThreadAndAreRestored) {
    const auto previous = ::signal(SIGHUP, SIG_IGN);
    std::vector<int> received;
    {
        const TerminationSignals termination([&received](int number) { received.push_back(number); });
        ::kill(::getpid(), SIGHUP);
        ::kill(::getpid(), SIGTERM);
        EXPECT_TRUE(received.empty());
        ASSERT_TRUE(spinUntil([&received] { return !received.empty(); }));
        ::kill(::getpid(), SIGINT);
        ASSERT_TRUE(spinUntil([&received] { return received.size() == 2; }));
    }
    EXPECT_THAT(received, ::testing::ElementsAre(SIGTERM, SIGINT));
    EXPECT_EQ(::signal(SIGTERM, SIG_DFL), SIG_DFL);
    ::signal(SIGHUP, previous);
}

}  // namespace

}  // namespace tavi::test
