#include "adapters/plist/LibplistPropertyLists.h"

#include <QDateTime>
#include <QUrl>
#include <cstdlib>
#include <limits>
#include <optional>

#include "adapters/plist/PlistNodes.h"

namespace tavi {

namespace {

const QString kArchiver = QStringLiteral("$archiver");
const QString kName = QStringLiteral("tavi");
const QString kVersion = QStringLiteral("$version");
const QString kRoot = QStringLiteral("root");
const QString kType = QStringLiteral("type");
const QString kValue = QStringLiteral("value");
const QString kKeys = QStringLiteral("keys");
const QString kValues = QStringLiteral("values");

QVariantMap typed(const char* type, const QVariant& value) {
    return {{kType, QString::fromLatin1(type)}, {kValue, value}};
}

/// A value that says its type. What can be in no archive makes it one that is no property list.
QVariant archived(const QVariant& value) {
    switch (value.typeId()) {
        case QMetaType::UnknownType:
        case QMetaType::Nullptr:
            return QVariantMap{{kType, QStringLiteral("nothing")}};
        case QMetaType::QString: {
            const QByteArray bytes = value.toString().toUtf8();
            return typed("text", QString::fromUtf8(bytes) == value.toString() ? QVariant(bytes) : QVariant());
        }
        case QMetaType::QDateTime:
            return typed("date", value.toDateTime().isValid() ? value.toDateTime().toMSecsSinceEpoch() : QVariant());
        case QMetaType::ULongLong:
            return typed("unsigned", QByteArray::number(value.toULongLong()));
        case QMetaType::QUrl:
            return typed("url", value.toUrl().toEncoded());
        case QMetaType::QVariantList:
        case QMetaType::QStringList: {
            QVariantList values;
            for (const QVariant& member : value.toList()) {
                values.append(archived(member));
            }
            return typed("list", values);
        }
        case QMetaType::QVariantMap:
        case QMetaType::QVariantHash: {
            const QVariantMap map = value.toMap();
            QVariantList keys;
            QVariantList values;
            for (auto entry = map.begin(); entry != map.end(); ++entry) {
                keys.append(entry.key().toUtf8());
                values.append(archived(entry.value()));
            }
            return QVariantMap{{kType, QStringLiteral("dictionary")}, {kKeys, keys}, {kValues, values}};
        }
        default:
            return typed("plain", value);
    }
}

std::optional<QVariant> unarchived(const QVariantMap& typedValue);

std::optional<QVariantList> unarchivedList(const QVariantList& typedValues) {
    QVariantList values;
    for (const QVariant& member : typedValues) {
        auto value = unarchived(member.toMap());
        if (!value) {
            return std::nullopt;
        }
        values.append(std::move(*value));
    }
    return values;
}

std::optional<QVariant> unarchivedDictionary(const QVariantMap& typedValue) {
    const QVariantList keys = typedValue.value(kKeys).toList();
    const auto values = unarchivedList(typedValue.value(kValues).toList());
    if (!values || values->size() != keys.size()) {
        return std::nullopt;
    }
    QVariantMap map;
    for (qsizetype i = 0; i < keys.size(); ++i) {
        map.insert(QString::fromUtf8(keys[i].toByteArray()), values->at(i));
    }
    return map;
}

std::optional<QVariant> unarchived(const QVariantMap& typedValue) {
    const QString type = typedValue.value(kType).toString();
    const QVariant value = typedValue.value(kValue);
    if (type == QLatin1String("nothing")) {
        return QVariant();
    }
    if (type == QLatin1String("dictionary")) {
        return unarchivedDictionary(typedValue);
    }
    if (type == QLatin1String("list")) {
        const auto values = unarchivedList(value.toList());
        return values ? std::optional<QVariant>(*values) : std::nullopt;
    }
    if (type == QLatin1String("text")) {
        return QString::fromUtf8(value.toByteArray());
    }
    if (type == QLatin1String("date")) {
        return QDateTime::fromMSecsSinceEpoch(value.toLongLong()).toUTC();
    }
    if (type == QLatin1String("unsigned")) {
        return value.toByteArray().toULongLong();
    }
    if (type == QLatin1String("url")) {
        return QUrl::fromEncoded(value.toByteArray(), QUrl::StrictMode);
    }
    return type == QLatin1String("plain") && value.isValid() ? std::optional(value) : std::nullopt;
}

}  // namespace

Result<QByteArray> LibplistPropertyLists::dataWithPropertyList(const QVariant& value) const {
    const PlistNode node = plistNodeOf(value);
    if (!node) {
        return failure(QStringLiteral("The value is no property list."));
    }
    char* bytes = nullptr;
    std::uint32_t size = 0;
    plist_to_bin(node.get(), &bytes, &size);
    if (bytes == nullptr) {
        return failure(QStringLiteral("The property list cannot be written."));
    }
    const QByteArray data(bytes, size);
    // The library's own functions for this differ from release to release; all of them are this one.
    std::free(bytes);
    return data;
}

Result<QVariant> LibplistPropertyLists::propertyListWithData(const QByteArray& data) const {
    plist_t made = nullptr;
    if (data.startsWith("bplist") && data.size() <= std::numeric_limits<std::int32_t>::max()) {
        plist_from_bin(data.constData(), static_cast<std::uint32_t>(data.size()), &made);
    }
    const PlistNode node(made);
    const auto value = node ? valueOfPlistNode(node.get()) : std::nullopt;
    return value ? Result<QVariant>(*value) : failure(QStringLiteral("The bytes are no property list."));
}

Result<QByteArray> LibplistPropertyLists::archivedDataWithRootObject(const QVariant& value) const {
    if (!value.isValid()) {
        return failure(QStringLiteral("There is nothing to archive."));
    }
    return dataWithPropertyList(QVariantMap{{kArchiver, kName}, {kVersion, 1}, {kRoot, archived(value)}});
}

Result<QVariant> LibplistPropertyLists::unarchiveObjectWithData(const QByteArray& data) const {
    const auto list = propertyListWithData(data);
    const QVariantMap root = list ? list->toMap() : QVariantMap();
    const bool isOurs = root.value(kArchiver) == kName && root.value(kVersion).toInt() == 1;
    const auto value = isOurs ? unarchived(root.value(kRoot).toMap()) : std::nullopt;
    return value ? Result<QVariant>(*value) : failure(QStringLiteral("The bytes are no archive of this program."));
}

}  // namespace tavi
