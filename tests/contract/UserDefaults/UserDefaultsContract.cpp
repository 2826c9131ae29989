#include <gmock/gmock.h>

#include <QTemporaryDir>

#include "adapters/qt/QtUserDefaults.h"
#include "support/Fakes.h"

namespace tavi::test {

namespace {

struct FakeStore {
    FakeUserDefaults defaults;
    UserDefaults& reopened() { return defaults; }
};

struct IniStore {
    QTemporaryDir folder;
    QtUserDefaults defaults{folder.filePath(QStringLiteral("sub/settings.ini"))};
    std::unique_ptr<QtUserDefaults> copy;

    /// What another process reads. A copy of the file, since objects for one file share its contents within a process.
    UserDefaults& reopened() {
        const QString path = folder.filePath(QStringLiteral("copy.ini"));
        QFile::remove(path);
        QFile::copy(folder.filePath(QStringLiteral("sub/settings.ini")), path);
        copy = std::make_unique<QtUserDefaults>(path);
        return *copy;
    }
};

template <class Store>
class UserDefaultsContract : public ::testing::Test {
protected:
    Store m_store;
};

using Stores = ::testing::Types<FakeStore, IniStore>;
TYPED_TEST_SUITE(UserDefaultsContract, Stores);

TYPED_TEST(UserDefaultsContract, KeepsValuesOfEveryType) {
    UserDefaults& defaults = this->m_store.defaults;
    defaults.setObject(true, QStringLiteral("yes"));
    defaults.setObject(false, QStringLiteral("no"));
    defaults.setObject(-7, QStringLiteral("int"));
    defaults.setObject(0.1, QStringLiteral("double"));
    defaults.setObject(QVariant::fromValue(12.5F), QStringLiteral("float"));
    const auto check = [](const UserDefaults& read) {
        EXPECT_TRUE(read.boolForKey(QStringLiteral("yes")));
        EXPECT_FALSE(read.boolForKey(QStringLiteral("no")));
        EXPECT_TRUE(read.objectForKey(QStringLiteral("no")).isValid());
        EXPECT_EQ(read.integerForKey(QStringLiteral("int")), -7);
        EXPECT_EQ(read.floatForKey(QStringLiteral("double")), 0.1);
        EXPECT_EQ(read.floatForKey(QStringLiteral("float")), 12.5);
        EXPECT_FALSE(read.objectForKey(QStringLiteral("absent")).isValid());
        EXPECT_EQ(read.integerForKey(QStringLiteral("absent")), 0);
    };
    check(defaults);
    EXPECT_TRUE(defaults.synchronize());
    check(this->m_store.reopened());
}

TYPED_TEST(UserDefaultsContract, KeepsKeysAndTextsOfAnyCharactersApart) {
    UserDefaults& defaults = this->m_store.defaults;
    const QStringList keys = {QString(),
                              QStringLiteral("a/b"),
                              QStringLiteral("a//b"),
                              QStringLiteral("a\\b"),
                              QStringLiteral("A"),
                              QStringLiteral("a"),
                              QStringLiteral("%"),
                              QStringLiteral("%25"),
                              QStringLiteral("General/x"),
                              QStringLiteral("x"),
                              QStringLiteral("é = ü;\n[ä]")};
    const QStringList texts = {QString(QLatin1String("")), QStringLiteral("a, b"),  QStringLiteral("@Invalid()"),
                               QStringLiteral("\"q\""),    QStringLiteral("l\nm"),  QStringLiteral("; no comment"),
                               QStringLiteral(" blank "),  QStringLiteral("100 %"), QStringLiteral("\\x41"),
                               QStringLiteral("Grüße 🎤"),  QStringLiteral("true")};
    ASSERT_EQ(keys.size(), texts.size());
    for (qsizetype i = 0; i < keys.size(); ++i) {
        defaults.setObject(texts[i], keys[i]);
    }
    EXPECT_TRUE(defaults.synchronize());
    const UserDefaults& read = this->m_store.reopened();
    for (qsizetype i = 0; i < keys.size(); ++i) {
        EXPECT_EQ(read.stringForKey(keys[i]), texts[i]) << qPrintable(keys[i]);
        EXPECT_TRUE(read.objectForKey(keys[i]).isValid()) << qPrintable(keys[i]);
    }
}

TYPED_TEST(UserDefaultsContract, OverwritesAndRemoves) {
    UserDefaults& defaults = this->m_store.defaults;
    const QString key = QStringLiteral("Sort");
    defaults.setObject(1, key);
    defaults.synchronize();
    defaults.setObject(6, key);
    EXPECT_EQ(defaults.integerForKey(key), 6);
    defaults.synchronize();
    EXPECT_EQ(this->m_store.reopened().integerForKey(key), 6);
    defaults.removeObjectForKey(key);
    EXPECT_FALSE(defaults.objectForKey(key).isValid());
    defaults.synchronize();
    EXPECT_FALSE(this->m_store.reopened().objectForKey(key).isValid());
}

}  // namespace

}  // namespace tavi::test
