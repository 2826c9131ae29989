#pragma once

#include <QObject>
#include <QVariant>
#include <optional>

#include "passcode/SecureStore.h"
#include "platform/Keychain.h"
#include "platform/PropertyLists.h"

namespace tavi {

/// Identifies the program; the service of its items.
inline constexpr QLatin1String kBundleIdentifier("com.quillfen.voicerecorder");

/// The value itself: the one place where a type that is no property list would become one before it is stored.
QVariant FXKeychain_propertyListRepresentation(const QVariant& value);

/// Values by key in the user's keychain, one item a key. A text is stored as its UTF-8 bytes, everything else as a
/// binary property list, or where it is none as an archive; types as PropertyLists says.
///
/// Main thread only, but for the first call of defaultKeychain(). Errors are told by nothing but what is returned here,
/// and by trouble(). A call answers soon, see Keychain: false, or no value, where the store does not.
class FXKeychain : public QObject, public SecureStore {
    Q_OBJECT

public:
    /// The ports outlive this, and this takes the keychain's trouble handler. An empty service or access group is none.
    /// The accessibility is the place of one in KeychainAccessibility, 0 to 5.
    FXKeychain(Keychain& keychain, const PropertyLists& propertyLists, const QString& service = {},
               const QString& accessGroup = {}, int accessibility = 0);
    ~FXKeychain() override;

    /// What defaultKeychain() is made of; they outlive its use. Before its first call.
    static void setDefaultPorts(Keychain& keychain, const PropertyLists& propertyLists);
    /// The one that everybody uses: the program's own service, no access group, accessibility 0. Made by the first
    /// call, on any thread.
    static FXKeychain& defaultKeychain();

    QString service() const { return m_service; }
    QString accessGroup() const { return m_accessGroup; }
    int accessibility() const { return m_accessibility; }

    /// The bytes that are stored; nothing where there are none or they cannot be had.
    std::optional<QByteArray> dataForKey(const QString& key) const;
    /// Stores the value; true where it is stored. Nothing (an invalid variant), and what no encoding can hold, removes
    /// the item: true where there was one.
    bool setObject(const QVariant& value, const QString& key) override;
    bool removeObjectForKey(const QString& key) { return setObject({}, key); }
    /// The value as it was stored; an invalid variant where there is none or it cannot be had.
    QVariant objectForKey(const QString& key) const override;

    bool setObjectForKeyedSubscript(const QVariant& value, const QString& key) { return setObject(value, key); }
    QVariant objectForKeyedSubscript(const QString& key) const { return objectForKey(key); }

    /// What keeps the values from being read or stored, in sentences for the user; empty while nothing does. The
    /// passcode cannot be right while it is not empty, so whoever asks for it says this.
    QString trouble() const override { return m_keychain.trouble(); }

Q_SIGNALS:
    void troubleChanged();

private:
    KeychainQuery queryFor(const QString& key) const { return {key, m_service, m_accessGroup}; }
    std::optional<QByteArray> encoded(const QVariant& value) const;
    QVariant decoded(const QByteArray& data) const;

    Keychain& m_keychain;
    const PropertyLists& m_propertyLists;
    const QString m_service;
    const QString m_accessGroup;
    const int m_accessibility;
};

}  // namespace tavi
