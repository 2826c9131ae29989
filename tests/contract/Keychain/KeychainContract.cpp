#include <gmock/gmock.h>

#include "adapters/plist/LibplistPropertyLists.h"
#include "adapters/qt/QtRunLoop.h"
#include "adapters/secret/SystemKeychain.h"
#include "passcode/FXKeychain.h"
#include "support/FakeKeychain.h"
#include "support/PrivateKeyring.h"
#include "support/TemporaryContainer.h"

namespace tavi::test {

namespace {

using Status = KeychainStatus;

const KeychainQuery kQuery{QStringLiteral("Käy"), QStringLiteral("service"), {}};

struct Kind {
    const char* name;
    bool isReal;
    bool hasKeyring;

    friend void PrintTo(const Kind& kind, std::ostream* out) { *out << kind.name; }
};

struct KeychainContract : ::testing::TestWithParam<Kind> {
    KeychainContract() {
        if (GetParam().hasKeyring) {
            m_keyring.emplace();
        } else {
            m_bus.emplace();
        }
        if (GetParam().isReal) {
            const std::filesystem::path folder = m_container.preferencesPath();
            m_keychain = std::make_unique<SystemKeychain>(StorePlaces{folder, m_container.root() / "keychain.key"},
                                                          m_runLoop, std::chrono::seconds(20));
        } else {
            m_keychain = std::make_unique<FakeKeychain>();
        }
    }

    TemporaryContainer m_container;
    /// Of a part that is not to find a keyring.
    std::optional<PrivateBus> m_bus;
    std::optional<PrivateKeyring> m_keyring;
    QtRunLoop m_runLoop;
    std::unique_ptr<Keychain> m_keychain;
};

TEST_P(KeychainContract, AddsUpdatesFetchesAndRemovesOneItemAQuery) {
    const auto fetch = [this](const KeychainQuery& query) { return m_keychain->fetch(query); };
    const KeychainAttributes first{QByteArray("\xff\x00 1", 4), KeychainAccessibility::AlwaysThisDeviceOnly};
    EXPECT_EQ(fetch(kQuery).error(), Status::ItemNotFound);
    EXPECT_EQ(m_keychain->update(kQuery, first), Status::ItemNotFound);
    EXPECT_EQ(m_keychain->remove(kQuery), Status::ItemNotFound);
    EXPECT_EQ(m_keychain->add(kQuery, first), Status::Success);
    EXPECT_EQ(m_keychain->add(kQuery, {}), Status::DuplicateItem);
    EXPECT_EQ(fetch(kQuery), first);
    const QByteArray large(1 << 20, '\xfe');
    for (const KeychainAttributes& next : {KeychainAttributes{{}, KeychainAccessibility::Always},
                                           KeychainAttributes{large}, KeychainAttributes{"0042"}}) {
        EXPECT_EQ(m_keychain->update(kQuery, next), Status::Success);
        EXPECT_EQ(fetch(kQuery), next) << next.valueData.size();
    }
    // Other items beside it.
    const KeychainQuery others[] = {{kQuery.account, {}, {}}, {kQuery.account, kQuery.service, kQuery.service}};
    for (const KeychainQuery& other : others) {
        EXPECT_EQ(fetch(other).error(), Status::ItemNotFound);
        EXPECT_EQ(m_keychain->add(other, first), Status::Success);
    }
    EXPECT_EQ(m_keychain->remove(kQuery), Status::Success);
    EXPECT_EQ(fetch(kQuery).error(), Status::ItemNotFound);
    EXPECT_EQ(fetch(others[0]), first);
    EXPECT_EQ(fetch(others[1]), first);
    EXPECT_EQ(m_keychain->trouble(), QString());
    if (m_keyring) {
        EXPECT_EQ(m_keyring->itemCount(), 2);
    }
}

TEST_P(KeychainContract, HoldsValuesWithTheirTypes) {
    const LibplistPropertyLists lists;
    FXKeychain keychain(*m_keychain, lists, kBundleIdentifier);
    const QDateTime date(QDate(2026, 11, 23), QTime(16, 20, 59, 123));
    for (const QVariant& value : {QVariant(QStringLiteral("0042")), QVariant(5), QVariant(date), QVariant(QString())}) {
        EXPECT_TRUE(keychain.setObject(value, kQuery.account));
        EXPECT_EQ(keychain.objectForKey(kQuery.account), value);
    }
    EXPECT_TRUE(keychain.removeObjectForKey(kQuery.account));
    EXPECT_FALSE(keychain.removeObjectForKey(kQuery.account));
}

INSTANTIATE_TEST_SUITE_P(, KeychainContract,
                         ::testing::Values(Kind{"Fake", false, false}, Kind{"File", true, false},
                                           Kind{"Keyring", true, true}),
                         ::testing::PrintToStringParamName());

}  // namespace
}  // namespace tavi::test
