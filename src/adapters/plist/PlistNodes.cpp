#include "adapters/plist/PlistNodes.h"

#include <QDateTime>
#include <QStringEncoder>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>

namespace tavi {

namespace {

/// Nothing that the program stores is nested like this; what it is given may be, to exhaust the stack.
constexpr int kMaximumDepth = 100;
/// Dates count from 2001-01-01 00:00 UTC.
constexpr qint64 kEpoch = 978'307'200'000;

PlistNode nodeOf(const QVariant& value, int depth);

/// The library ends texts at a null.
std::optional<QByteArray> plainText(const QString& text) {
    QStringEncoder encoder(QStringEncoder::Utf8, QStringConverter::Flag::Stateless);
    QByteArray bytes = encoder(text);
    return encoder.hasError() || bytes.contains('\0') ? std::nullopt : std::optional(bytes);
}

PlistNode integerNode(qint64 value) {
#ifdef TAVI_PLIST_HAS_SIGNED
    return PlistNode(plist_new_int(value));
#else
    // Written as the signed number that it is.
    return PlistNode(plist_new_uint(static_cast<std::uint64_t>(value)));
#endif
}

PlistNode dateNode(const QDateTime& date) {
    const qint64 milliseconds = date.toMSecsSinceEpoch() - kEpoch;
    const qint64 seconds = milliseconds / 1000;
    // The library gives no sign to what is less than a second.
    const bool isExact =
        (milliseconds >= 0 || milliseconds <= -1000) && std::abs(seconds) < std::numeric_limits<std::int32_t>::max();
    return date.isValid() && isExact ? PlistNode(plist_new_date(static_cast<std::int32_t>(seconds),
                                                                static_cast<std::int32_t>(milliseconds % 1000 * 1000)))
                                     : nullptr;
}

PlistNode listNode(const QVariantList& values, int depth) {
    PlistNode list(plist_new_array());
    for (const QVariant& value : values) {
        PlistNode node = nodeOf(value, depth);
        if (!node) {
            return nullptr;
        }
        plist_array_append_item(list.get(), node.release());
    }
    return list;
}

PlistNode dictionaryNode(const QVariantMap& values, int depth) {
    PlistNode dictionary(plist_new_dict());
    for (auto entry = values.begin(); entry != values.end(); ++entry) {
        const auto key = plainText(entry.key());
        PlistNode node = nodeOf(entry.value(), depth);
        if (!key || !node) {
            return nullptr;
        }
        plist_dict_set_item(dictionary.get(), key->constData(), node.release());
    }
    return dictionary;
}

PlistNode nodeOf(const QVariant& value, int depth) {
    if (depth > kMaximumDepth) {
        return nullptr;
    }
    switch (value.typeId()) {
        case QMetaType::Bool:
            return PlistNode(plist_new_bool(value.toBool() ? 1 : 0));
        case QMetaType::Int:
        case QMetaType::UInt:
        case QMetaType::Long:
        case QMetaType::LongLong:
            return integerNode(value.toLongLong());
        case QMetaType::ULong:
        case QMetaType::ULongLong:
            return value.toULongLong() <= static_cast<qulonglong>(std::numeric_limits<qlonglong>::max())
                       ? integerNode(value.toLongLong())
                       : nullptr;
        case QMetaType::Float:
        case QMetaType::Double:
            return PlistNode(plist_new_real(value.toDouble()));
        case QMetaType::QString: {
            const auto text = plainText(value.toString());
            return text ? PlistNode(plist_new_string(text->constData())) : nullptr;
        }
        case QMetaType::QByteArray: {
            const QByteArray bytes = value.toByteArray();
            return PlistNode(plist_new_data(bytes.constData(), static_cast<std::uint64_t>(bytes.size())));
        }
        case QMetaType::QDateTime:
            return dateNode(value.toDateTime());
        case QMetaType::QVariantList:
        case QMetaType::QStringList:
            return listNode(value.toList(), depth + 1);
        case QMetaType::QVariantMap:
        case QMetaType::QVariantHash:
            return dictionaryNode(value.toMap(), depth + 1);
        default:
            return nullptr;
    }
}

QDateTime dateOf(plist_t node) {
    std::int32_t seconds = 0;
    std::int32_t microseconds = 0;
    plist_get_date_val(node, &seconds, &microseconds);
    const qint64 fraction = std::llround(microseconds / 1000.0);
    return QDateTime::fromMSecsSinceEpoch(kEpoch + qint64{seconds} * 1000 + (seconds < 0 ? -fraction : fraction))
        .toUTC();
}

std::optional<QVariant> valueOf(plist_t node, int depth);

std::optional<QVariant> listOf(plist_t node, int depth) {
    QVariantList values;
    for (std::uint32_t i = 0; i < plist_array_get_size(node); ++i) {
        auto value = valueOf(plist_array_get_item(node, i), depth);
        if (!value) {
            return std::nullopt;
        }
        values.append(std::move(*value));
    }
    return values;
}

std::optional<QVariant> dictionaryOf(plist_t node, int depth) {
    struct Free {
        void operator()(void* memory) const { std::free(memory); }
    };
    plist_dict_iter made = nullptr;
    plist_dict_new_iter(node, &made);
    const std::unique_ptr<void, Free> iterator(made);
    QVariantMap values;
    for (;;) {
        char* key = nullptr;
        plist_t item = nullptr;
        plist_dict_next_item(node, iterator.get(), &key, &item);
        const std::unique_ptr<char, Free> owned(key);
        if (item == nullptr) {
            return values;
        }
        const auto value = valueOf(item, depth);
        if (!value) {
            return std::nullopt;
        }
        values.insert(QString::fromUtf8(key), *value);
    }
}

std::optional<QVariant> valueOf(plist_t node, int depth) {
    if (depth > kMaximumDepth) {
        return std::nullopt;
    }
    std::uint64_t size = 0;
    switch (plist_get_node_type(node)) {
        case PLIST_BOOLEAN: {
            std::uint8_t value = 0;
            plist_get_bool_val(node, &value);
            return value != 0;
        }
        case PLIST_UINT: {
            std::uint64_t value = 0;
            plist_get_uint_val(node, &value);
            return static_cast<qlonglong>(value);
        }
        case PLIST_REAL: {
            double value = 0.0;
            plist_get_real_val(node, &value);
            return value;
        }
        case PLIST_STRING: {
            const char* text = plist_get_string_ptr(node, &size);
            return QString::fromUtf8(text, static_cast<qsizetype>(size));
        }
        case PLIST_DATA: {
            const char* bytes = plist_get_data_ptr(node, &size);
            return QByteArray(bytes, static_cast<qsizetype>(size));
        }
        case PLIST_DATE:
            return dateOf(node);
        case PLIST_ARRAY:
            return listOf(node, depth + 1);
        case PLIST_DICT:
            return dictionaryOf(node, depth + 1);
        default:
            return std::nullopt;
    }
}

}  // namespace

PlistNode plistNodeOf(const QVariant& value) {
    return nodeOf(value, 0);
}

std::optional<QVariant> valueOfPlistNode(plist_t node) {
    return valueOf(node, 0);
}

}  // namespace tavi
