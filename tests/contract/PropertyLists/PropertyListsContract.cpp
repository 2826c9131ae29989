#include <gmock/gmock.h>

#include <QTimeZone>
#include <limits>

#include "adapters/plist/LibplistPropertyLists.h"
#include "passcode/FXKeychain.h"
#include "support/FakeKeychain.h"
#include "support/Printers.h"

namespace tavi::test {

namespace {

const QDateTime kDate(QDate(2026, 11, 23), QTime(16, 20, 59, 123), QTimeZone::utc());

QVariant nested(int depth) {
    QVariant value = 1;
    for (int i = 0; i < depth; ++i) {
        value = QVariantList{value};
    }
    return value;
}

struct PropertyListsContract : ::testing::TestWithParam<const PropertyLists*> {
    const PropertyLists& m_lists = *GetParam();
};

TEST_P(PropertyListsContract, GivesBackEveryTypeAsItWas) {
    const QVariant rows[] = {
        true,
        false,
        0,
        -5,
        std::numeric_limits<qlonglong>::max(),
        std::numeric_limits<qlonglong>::min(),
        0.1,
        std::numeric_limits<double>::infinity(),
        QStringLiteral("Grüße 🎤"),
        QString(),
        QString(1 << 20, u'x'),
        QByteArray(),
        QByteArray("\xff\x00\xfe", 3),
        QByteArray(1 << 20, '\xff'),
        kDate,
        QDateTime(QDate(1999, 1, 2), QTime(3, 4, 5, 678), QTimeZone::utc()),
        QVariantList{},
        QVariantMap{},
        QVariantMap{{QStringLiteral("ä"), QVariantList{1, QVariantMap{{QString(), kDate}}}}, {QStringLiteral("b"), 2}},
    };
    for (const QVariant& value : rows) {
        const auto data = m_lists.dataWithPropertyList(value);
        ASSERT_TRUE(data && data->startsWith("bplist")) << value.typeName();
        const auto read = m_lists.propertyListWithData(*data);
        ASSERT_TRUE(read) << value.typeName();
        EXPECT_EQ(*read, value) << value.typeName();
        EXPECT_EQ(read->typeName(), std::string(value.typeId() == QMetaType::Int ? "qlonglong" : value.typeName()));
        EXPECT_FALSE(m_lists.unarchiveObjectWithData(*data)) << value.typeName();
    }
}

TEST_P(PropertyListsContract, ArchivesWhatIsNoPropertyList) {
    for (const QVariant& value :
         {QVariant(QUrl(QStringLiteral("file:///a%20b"))), QVariant(std::numeric_limits<qulonglong>::max())}) {
        EXPECT_FALSE(m_lists.dataWithPropertyList(value)) << value.typeName();
        const QByteArray data = m_lists.archivedDataWithRootObject(value).value();
        EXPECT_TRUE(m_lists.propertyListWithData(data).value().toMap().contains(QStringLiteral("$archiver")));
        EXPECT_EQ(m_lists.unarchiveObjectWithData(data).value(), value);
    }
    const QByteArray foreign =
        m_lists.dataWithPropertyList(QVariantMap{{QStringLiteral("$archiver"), QStringLiteral("x")}}).value();
    EXPECT_FALSE(m_lists.unarchiveObjectWithData(foreign));
}

const LibplistPropertyLists g_real;
const FakePropertyLists g_fake;
INSTANTIATE_TEST_SUITE_P(, PropertyListsContract, ::testing::Values(&g_real, &g_fake),
                         [](const auto& one) { return std::string(one.param == &g_real ? "Libplist" : "Fake"); });

TEST(LibplistPropertyLists, RefusesAnArchiveThatLacksAValueForAKey) {
    for (const int keys : {1, 2}) {
        const QVariantMap root{
            {QStringLiteral("type"), QStringLiteral("dictionary")},
            {QStringLiteral("keys"), QVariantList(keys, QByteArray("a"))},
            {QStringLiteral("values"), QVariantList{QVariantMap{{QStringLiteral("type"), QStringLiteral("nothing")}}}}};
        const auto data = g_real.dataWithPropertyList(QVariantMap{{QStringLiteral("$archiver"), QStringLiteral("tavi")},
                                                                  {QStringLiteral("$version"), 1},
                                                                  {QStringLiteral("root"), root}});
        EXPECT_EQ(g_real.unarchiveObjectWithData(data.value()).has_value(), keys == 1);
    }
}

TEST(LibplistPropertyLists, ArchivesWhatTheFormatCannotHoldAtAnyDepth) {
    const QVariant odd = QVariantList{QStringLiteral("a\0b").leftJustified(4, QChar(0)),
                                      QVariantMap{{QString(QChar(0)), QVariant()}},
                                      QDateTime(QDate(2000, 12, 31), QTime(23, 59, 59, 500), QTimeZone::utc()),
                                      QDateTime(QDate(2101, 1, 1), QTime(0, 0), QTimeZone::utc()),
                                      QStringLiteral("text"),
                                      true,
                                      kDate};
    EXPECT_EQ(g_real.unarchiveObjectWithData(g_real.archivedDataWithRootObject(odd).value()).value(), odd);
    for (const QVariant& member : odd.toList().first(4)) {
        EXPECT_FALSE(g_real.dataWithPropertyList(QVariantList{member})) << member.typeName();
    }
    for (const QVariant& impossible :
         {QVariant(), QVariant(QDateTime()), QVariant(QChar(u'a')), QVariant(QString(QChar(0xd800))), nested(200)}) {
        EXPECT_FALSE(g_real.dataWithPropertyList(impossible)) << impossible.typeName();
        EXPECT_FALSE(g_real.archivedDataWithRootObject(impossible)) << impossible.typeName();
    }
}

TEST(LibplistPropertyLists, ReadsNothingFromDamage) {
    for (const int depth : {99, 110}) {
        // Lists in lists: two bytes each, then the number 1, the places of them all, and the end with their count.
        QByteArray lists = "bplist00";
        QByteArray places;
        for (int i = 1; i <= depth + 1; ++i) {
            places += static_cast<char>(lists.size());
            lists += i <= depth ? QByteArray("\xa1") + static_cast<char>(i) : QByteArray("\x10\x01");
        }
        const auto number = [](qsizetype value) { return QByteArray(7, 0) + static_cast<char>(value); };
        lists += places + QByteArray(6, 0) + "\x01\x01" + number(depth + 1) + number(0) + number(lists.size());
        EXPECT_EQ(g_real.propertyListWithData(lists).value_or(0), depth < 100 ? nested(depth) : 0) << depth;
    }
    const QByteArray whole = g_real.archivedDataWithRootObject(QVariantList{1, kDate, QStringLiteral("text")}).value();
    for (qsizetype size = 0; size < whole.size(); ++size) {
        EXPECT_FALSE(g_real.unarchiveObjectWithData(whole.first(size))) << size;
    }
    for (qsizetype i = 0; i < whole.size(); ++i) {
        // What comes of it is not known; it ends, and within the bytes.
        QByteArray damaged = whole;
        damaged[i] = static_cast<char>(damaged[i] ^ 0x55);
        (void)g_real.unarchiveObjectWithData(damaged);
    }
}

TEST(LibplistPropertyLists, KeepATextThatIsAPropertyListAText) {
    FakeKeychain store;
    FXKeychain keychain(store, g_real);
    const QString key = QStringLiteral("key");
    for (const QVariant& inner : {QVariant(7), QVariant(QStringLiteral("hi"))}) {
        const QString text = QString::fromUtf8(g_real.dataWithPropertyList(inner).value());
        ASSERT_EQ(g_real.propertyListWithData(text.toUtf8()).value(), inner);
        EXPECT_TRUE(keychain.setObject(text, key));
        EXPECT_NE(keychain.dataForKey(key), text.toUtf8());
        EXPECT_EQ(keychain.objectForKey(key), text);
    }
}

}  // namespace
}  // namespace tavi::test
