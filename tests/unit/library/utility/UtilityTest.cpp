#include "library/utility/Utility.h"

#include <gtest/gtest.h>

#include "library/utility/DateTexts.h"
#include "support/Fakes.h"
#include "support/TemporaryContainer.h"

namespace tavi::test {
namespace {

TEST(UtilityTest, sizesTurnIntoMegabytesAtExactlyOne) {
    const TemporaryContainer container;
    const auto path = container.addDocument("a", {});
    for (const auto& [bytes, texts] :
         {std::pair{512, "0 KB 0.000488"}, {1048575, "1024 KB 0.999999"}, {1048576, "1.0 MB 1.000000"}}) {
        std::filesystem::resize_file(path, bytes);
        const double megabytes = Utility::getFileSize(path);
        EXPECT_EQ(Utility::displaySize(megabytes) + QLatin1Char(' ') + Utility::fixed(megabytes, 6),
                  QLatin1String(texts));
    }
    EXPECT_EQ(Utility::getFileSize(container.root() / "none"), 0.0);
    EXPECT_FALSE(Utility::getFileModificationDate(container.root() / "none").isValid());
}

TEST(UtilityTest, datesReadAsTheLocaleSpellsThem) {
    const QDateTime afternoon(QDate(2024, 3, 5), QTime(14, 3, 59));
    const QDateTime midnight(QDate(2024, 12, 31), QTime(0, 5));
    const struct {
        const char* locale;
        QDateTime date;
        const char* modified;
        const char* recorded;
        const char* baseName;
    } rows[] = {
        {"en_US", afternoon, "05 Mar,2024 | 02:03 PM", "05 Mar 2024", "2024_Mar_05_14_03_59"},
        {"ja_JP", afternoon, "05 3月,2024 | 02:03 午後", "05 3月 2024", "2024_3月_05_14_03_59"},
        {"fr_FR", midnight, "31 déc.,2024 | 12:05 AM", "31 déc. 2024", "2024_déc._31_00_05_00"},
    };
    for (const auto& row : rows) {
        const QLocale locale{QString::fromLatin1(row.locale)};
        EXPECT_EQ(modificationDateText(row.date, locale), QString::fromUtf8(row.modified)) << row.locale;
        EXPECT_EQ(recordingDateText(row.date, locale), QString::fromUtf8(row.recorded)) << row.locale;
        EXPECT_EQ(fileBaseName(row.date, locale), QString::fromUtf8(row.baseName)) << row.locale;
    }
    const QString hostile = QStringLiteral("2024_1/2") + QChar() + QStringLiteral("_05");
    EXPECT_EQ(pathComponent(hostile), QStringLiteral("2024_1-2_05"));
}

TEST(UtilityTest, aNetworkIsThereWhereNothingHasToBeDoneForIt) {
    FakeReachability network;
    EXPECT_FALSE(Utility::connectedToNetwork(network)) << "cannot be read";
    for (const bool isReachable : {false, true}) {
        for (const bool isRequired : {false, true}) {
            network.flags = {isReachable, isRequired};
            EXPECT_EQ(Utility::connectedToNetwork(network), isReachable && !isRequired);
        }
    }
    FakePresenter presenter;
    Utility::showNetworkError(presenter);
    ASSERT_EQ(presenter.alerts.size(), 1U);
    EXPECT_EQ(presenter.alerts[0].title + presenter.alerts[0].message + presenter.alerts[0].actions.at(0).title,
              QStringLiteral("Network ErrorPlease check your internet connectionOK"));
}

}  // namespace
}  // namespace tavi::test
