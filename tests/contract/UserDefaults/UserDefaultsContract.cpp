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
    QtUserDefaults defaults{folder.filePath(QStringLiteral("sub/settings.ini")).toStdString()};
    std::unique_ptr<QtUserDefaults> copy;

    /// What another process reads. A copy of the file, since objects for one file share its contents within a process.
    UserDefaults& reopened() {
        const QString path = folder.filePath(QStringLiteral("copy.ini"));
        QFile::remove(path);
        QFile::copy(folder.filePath(QStringLiteral("sub/settings.ini")), path);
        copy = std::make_unique<QtUserDefaults>(path.toStdString());
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

TYPED_TEST(UserDefaultsContract, KeepsValuesOfEveryTypeAndRemovesThem) {
    UserDefaults& defaults = this->m_store.defaults;
    defaults.setObject(1, QStringLiteral("int"));
    defaults.setObject(false, QStringLiteral("no"));
    defaults.setObject(0.1, QStringLiteral("double"));
    defaults.setObject(QVariant::fromValue(12.5F), QStringLiteral("float"));
    defaults.setObject(true, QStringLiteral("gone"));
    EXPECT_TRUE(defaults.synchronize());
    defaults.setObject(-7, QStringLiteral("int"));
    defaults.removeObjectForKey(QStringLiteral("gone"));
    const auto check = [](const UserDefaults& read) {
        EXPECT_EQ(read.integerForKey(QStringLiteral("int")), -7);
        EXPECT_FALSE(read.boolForKey(QStringLiteral("no")));
        EXPECT_TRUE(read.objectForKey(QStringLiteral("no")).isValid());
        EXPECT_EQ(read.floatForKey(QStringLiteral("double")), 0.1);
        EXPECT_EQ(read.floatForKey(QStringLiteral("float")), 12.5);
        EXPECT_FALSE(read.objectForKey(QStringLiteral("gone")).isValid());
        EXPECT_EQ(read.integerForKey(QStringLiteral("absent")), 0);
    };
    check(defaults);
    EXPECT_TRUE(defaults.synchronize());
    check(this->m_store.reopened());
}

TYPED_TEST(UserDefaultsContract, KeepsKeysAndTextsOfAnyCharactersApart) {
    UserDefaults& defaults = this->m_store.defaults;
    const std::pair<const char*, const char*> rows[] = {
        {"", ""},          {"a/b", "a, b"},        {"a//b", "@Invalid()"},
        {"a\\b", "\"q\""}, {"A", "l\nm"},          {"a", "; no comment"},
        {"%", " blank "},  {"%25", "100 %"},       {"General/x", "\\x41"},
        {"x", "Grüße 🎤"},  {"é = ü;\n[ä]", "true"}};
    for (const auto& [key, text] : rows) {
        defaults.setObject(QString::fromUtf8(text), QString::fromUtf8(key));
    }
    EXPECT_TRUE(defaults.synchronize());
    const UserDefaults& read = this->m_store.reopened();
    for (const auto& [key, text] : rows) {
        EXPECT_EQ(read.stringForKey(QString::fromUtf8(key)), QString::fromUtf8(text)) << key;
        EXPECT_TRUE(read.objectForKey(QString::fromUtf8(key)).isValid()) << key;
        defaults.removeObjectForKey(QString::fromUtf8(key));
        EXPECT_FALSE(defaults.objectForKey(QString::fromUtf8(key)).isValid()) << key;
    }
}

}  // namespace

}  // namespace tavi::test
