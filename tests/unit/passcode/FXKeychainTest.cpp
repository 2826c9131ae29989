#include <gmock/gmock.h>

#include <QDateTime>

#include "passcode/FXKeychain.h"
#include "support/FakeKeychain.h"
#include "support/Printers.h"

namespace tavi::test {

namespace {

const QString kKey = QStringLiteral("PasscodeKey");

struct FXKeychainTest : ::testing::Test {
    QByteArray stored() const {
        return m_store.items.value(FakeKeychain::keyOf({kKey, kBundleIdentifier, {}})).valueData;
    }
    void store(const QByteArray& bytes) { m_store.items[FakeKeychain::keyOf({kKey, kBundleIdentifier, {}})] = {bytes}; }

    FakeKeychain m_store;
    FakePropertyLists m_lists;
    FXKeychain m_keychain{m_store, m_lists, kBundleIdentifier};
};

TEST_F(FXKeychainTest, GivesBackEveryValueAsItWas) {
    const QByteArray list = m_lists.dataWithPropertyList(7).value();
    enum class Form { Text, List, Archive };
    const std::tuple<const char*, QVariant, Form> rows[] = {
        {"passcode", QStringLiteral("0042"), Form::Text},
        {"empty text", QString(), Form::Text},
        {"other letters, a null and a mark of the byte order", QStringLiteral("\ufeffGrüße 🎤") + QChar(0), Form::Text},
        {"the mark alone", QStringLiteral("bplist"), Form::Text},
        {"the mark before what is no list", QStringLiteral("bplist00 of things"), Form::Text},
        {"text of a property list", QString::fromUtf8(list), Form::List},
        {"number", 5, Form::List},
        {"date", QDateTime(QDate(2024, 3, 5), QTime(14, 3, 59, 123)), Form::List},
        {"bytes", QByteArray("\xff\x00 1", 4), Form::List},
        {"no property list", QUrl(QStringLiteral("file:///a")), Form::Archive},
    };
    for (const auto& [name, value, form] : rows) {
        EXPECT_TRUE(m_keychain.setObjectForKeyedSubscript(value, kKey)) << name;
        EXPECT_EQ(m_keychain.objectForKeyedSubscript(kKey), value) << name;
        const bool isArchive = stored().startsWith("bplist") && m_lists.unarchiveObjectWithData(stored()).has_value();
        const bool isText = value.typeId() == QMetaType::QString && stored() == value.toString().toUtf8();
        EXPECT_EQ(isArchive ? Form::Archive : isText ? Form::Text : Form::List, form) << name;
        EXPECT_EQ(m_store.items.size(), 1) << name;
    }
    ASSERT_EQ(m_keychain.dataForKey(kKey), stored());
    EXPECT_EQ(m_store.items.firstKey(), FakeKeychain::Key(kKey, kBundleIdentifier, QString()));
}

TEST_F(FXKeychainTest, ReadsWhatOthersStored) {
    const QVariantMap foreign{{QStringLiteral("$archiver"), QStringLiteral("other")}};
    const std::tuple<const char*, QByteArray, QVariant> rows[] = {
        {"five bytes", "bplis", QStringLiteral("bplis")},
        {"damaged list", "bplist00", QStringLiteral("bplist00")},
        {"no text", "\xff", {}},
        {"half a letter", "\xc3", {}},
        {"archive of another, whose bytes are no text", m_lists.dataWithPropertyList(foreign).value() + '\xff', {}},
    };
    for (const auto& [name, bytes, value] : rows) {
        store(bytes);
        EXPECT_EQ(m_keychain.objectForKey(kKey), value) << name;
    }
}

TEST_F(FXKeychainTest, RemovesWhatIsToBeNothing) {
    EXPECT_FALSE(m_keychain.removeObjectForKey(kKey));
    for (const QVariant& nothing : {QVariant(), QVariant(QString(QChar(0xd800)))}) {
        ASSERT_TRUE(m_keychain.setObject(1, kKey));
        EXPECT_TRUE(m_keychain.setObject(nothing, kKey));
        EXPECT_FALSE(m_keychain.dataForKey(kKey));
    }
}

TEST_F(FXKeychainTest, KeepsItemsApartByServiceAndGroupAndSaysWhenTheyMayBeRead) {
    EXPECT_EQ(m_keychain.accessibility(), 0);
    FXKeychain bare(m_store, m_lists);
    FXKeychain group(m_store, m_lists, QStringLiteral("s"), QStringLiteral("g"), 4);
    EXPECT_TRUE(bare.setObject(1, kKey) && group.setObject(2, kKey) && m_keychain.setObject(3, kKey));
    EXPECT_TRUE(group.setObject(4, kKey));
    EXPECT_EQ(bare.objectForKey(kKey), 1);
    EXPECT_EQ(group.objectForKey(kKey), 4);
    EXPECT_EQ(m_keychain.objectForKey(kKey), 3);
    const auto item = m_store.items.value({kKey, QStringLiteral("s"), QStringLiteral("g")});
    EXPECT_EQ(item.accessible, KeychainAccessibility::AfterFirstUnlockThisDeviceOnly);
}

TEST_F(FXKeychainTest, HasNothingAndSaysWhyWhileTheStoreIsAway) {
    ASSERT_TRUE(m_keychain.setObject(1, kKey));
    int changes = 0;
    QObject::connect(&m_keychain, &FXKeychain::troubleChanged, [&changes] { ++changes; });
    m_store.setTrouble(QStringLiteral("locked"));
    EXPECT_FALSE(m_keychain.setObject(2, kKey));
    EXPECT_FALSE(m_keychain.objectForKey(kKey).isValid());
    EXPECT_FALSE(m_keychain.removeObjectForKey(kKey));
    EXPECT_EQ(m_keychain.trouble(), QStringLiteral("locked"));
    m_store.setTrouble({});
    EXPECT_EQ(m_keychain.objectForKey(kKey), 1);
    EXPECT_EQ(changes, 2);
}

/// A store that changes after each look at it.
struct ChangingKeychain : FakeKeychain {
    tl::expected<KeychainAttributes, KeychainStatus> fetch(const KeychainQuery& query) override {
        auto found = FakeKeychain::fetch(query);
        change();
        return found;
    }

    std::function<void()> change;
};

TEST(FXKeychainInAChangingStore, LosesNoValue) {
    ChangingKeychain store;
    const FakePropertyLists lists;
    FXKeychain keychain(store, lists);
    for (const bool isOpening : {true, false}) {
        store.items[FakeKeychain::keyOf({kKey, {}, {}})] = {"old"};
        store.troubleText = isOpening ? QStringLiteral("locked") : QString();
        store.change = [&] { isOpening ? store.troubleText.clear() : store.items.clear(); };
        EXPECT_TRUE(keychain.setObject(QStringLiteral("new"), kKey));
        EXPECT_EQ(store.items.first().valueData, "new");
    }
}

TEST(FXKeychainDefault, IsOneForAllAndHoldsTheProgramsOwnItems) {
    FakeKeychain store;
    const FakePropertyLists lists;
    FXKeychain::setDefaultPorts(store, lists);
    EXPECT_TRUE(FXKeychain::defaultKeychain().setObject(QStringLiteral("0042"), kKey));
    EXPECT_EQ(&FXKeychain::defaultKeychain(), &FXKeychain::defaultKeychain());
    EXPECT_EQ(store.items.firstKey(), FakeKeychain::Key(kKey, QStringLiteral("com.quillfen.voicerecorder"), QString()));
}

}  // namespace
}  // namespace tavi::test
