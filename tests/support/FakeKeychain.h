#pragma once

#include <QDataStream>
#include <QIODevice>
#include <QMap>
#include <QUrl>
#include <tuple>

#include "platform/Keychain.h"
#include "platform/PropertyLists.h"

namespace tavi::test {

/// Items in memory; a test takes the store away, and says what the trouble is.
struct FakeKeychain : Keychain {
    KeychainStatus add(const KeychainQuery& query, const KeychainAttributes& attributes) override {
        return write(query, attributes, false, KeychainStatus::DuplicateItem);
    }
    KeychainStatus update(const KeychainQuery& query, const KeychainAttributes& attributes) override {
        return write(query, attributes, true, KeychainStatus::ItemNotFound);
    }
    tl::expected<KeychainAttributes, KeychainStatus> fetch(const KeychainQuery& query) override {
        if (!troubleText.isEmpty()) {
            return tl::unexpected(KeychainStatus::NotAvailable);
        }
        const auto found = items.find(keyOf(query));
        if (found == items.end()) {
            return tl::unexpected(KeychainStatus::ItemNotFound);
        }
        return *found;
    }
    KeychainStatus remove(const KeychainQuery& query) override {
        if (!troubleText.isEmpty()) {
            return KeychainStatus::NotAvailable;
        }
        return items.remove(keyOf(query)) > 0 ? KeychainStatus::Success : KeychainStatus::ItemNotFound;
    }
    QString trouble() const override { return troubleText; }
    void setTroubleHandler(std::function<void()> newHandler) override { handler = std::move(newHandler); }

    /// Nothing is read or stored while the text is not empty.
    void setTrouble(const QString& text) {
        troubleText = text;
        if (handler) {
            handler();
        }
    }

    using Key = std::tuple<QString, QString, QString>;
    /// Account, service, access group.
    static Key keyOf(const KeychainQuery& query) { return {query.account, query.service, query.accessGroup}; }

    QMap<Key, KeychainAttributes> items;
    QString troubleText;
    std::function<void()> handler;

private:
    KeychainStatus write(const KeychainQuery& query, const KeychainAttributes& attributes, bool isToBeThere,
                         KeychainStatus otherwise) {
        if (!troubleText.isEmpty()) {
            return KeychainStatus::NotAvailable;
        }
        if (items.contains(keyOf(query)) != isToBeThere) {
            return otherwise;
        }
        items.insert(keyOf(query), attributes);
        return KeychainStatus::Success;
    }
};

/// Property lists in a form of their own; as the real ones, all but a QUrl and an unsigned number is one.
struct FakePropertyLists : PropertyLists {
    Result<QByteArray> dataWithPropertyList(const QVariant& value) const override {
        return isArchivable(value) ? failure(QStringLiteral("no list")) : Result<QByteArray>(written(value));
    }
    Result<QVariant> propertyListWithData(const QByteArray& data) const override {
        if (!data.startsWith("bplist")) {
            return failure(QStringLiteral("no mark"));
        }
        QDataStream stream(data.mid(6));
        QVariant value;
        stream >> value;
        return stream.status() == QDataStream::Ok && value.isValid() ? Result<QVariant>(value)
                                                                     : failure(QStringLiteral("damaged"));
    }
    Result<QByteArray> archivedDataWithRootObject(const QVariant& value) const override {
        return value.typeId() == QMetaType::VoidStar
                   ? failure(QStringLiteral("no value"))
                   : Result<QByteArray>(
                         written(QVariantMap{{QStringLiteral("$archiver"), {}}, {QStringLiteral("root"), value}}));
    }
    Result<QVariant> unarchiveObjectWithData(const QByteArray& data) const override {
        const auto list = propertyListWithData(data);
        const QVariantMap root = list ? list->toMap() : QVariantMap();
        return root.contains(QStringLiteral("root")) ? Result<QVariant>(root.last())
                                                     : failure(QStringLiteral("no archive"));
    }

private:
    static bool isArchivable(const QVariant& value) {
        return value.typeId() == QMetaType::QUrl || value.typeId() == QMetaType::ULongLong;
    }
    static QByteArray written(const QVariant& value) {
        QByteArray data = "bplist";
        QDataStream stream(&data, QIODevice::Append);
        stream << (value.typeId() == QMetaType::Int ? QVariant(value.toLongLong()) : value);
        return data;
    }
};

}  // namespace tavi::test
