#pragma once

#include <QByteArray>
#include <QVariant>

#include "platform/Error.h"

namespace tavi {

/// Values as bytes and back, as binary property lists. Any thread.
///
/// A property list is a bool, an integer that fits 64 bits with a sign, a floating-point number, a QString, a
/// QByteArray, a QDateTime, or a QVariantList or QVariantMap of such. They come back as bool, qlonglong, double,
/// QString, QByteArray, QDateTime in UTC, QVariantList and QVariantMap; dates to the millisecond.
class PropertyLists {
public:
    virtual ~PropertyLists() = default;

    /// The value as a binary property list. Fails for what is no property list, at any depth, and for what the format
    /// cannot hold exactly: the character U+0000, and dates further than 68 years from 2001.
    virtual Result<QByteArray> dataWithPropertyList(const QVariant& value) const = 0;
    /// The value of a binary property list. Fails for anything else.
    virtual Result<QVariant> propertyListWithData(const QByteArray& data) const = 0;

    /// The value as an archive: a binary property list whose root is a dictionary with the entry "$archiver". Also
    /// takes what is said above to fail, unsigned integers of 64 bits, QUrl, and nothing (an invalid QVariant) as a
    /// member.
    virtual Result<QByteArray> archivedDataWithRootObject(const QVariant& value) const = 0;
    /// The value of such an archive. Fails for anything else, archives of others included.
    virtual Result<QVariant> unarchiveObjectWithData(const QByteArray& data) const = 0;
};

}  // namespace tavi
