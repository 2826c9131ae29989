#pragma once

#include "platform/PropertyLists.h"

namespace tavi {

/// Binary property lists through libplist.
///
/// An archive's root is {"$archiver": "tavi", "$version": 1, "root": VALUE}. Each value in it is a dictionary that
/// names its type: {"type": "plain", "value": a bool, an integer, a number or bytes}; "text" with its UTF-8 bytes;
/// "date" with milliseconds since 1970; "unsigned" with its decimal digits as bytes; "url" with its encoded bytes;
/// "list" with its values; "dictionary" with "keys" (bytes) and "values"; and "nothing".
class LibplistPropertyLists final : public PropertyLists {
public:
    Result<QByteArray> dataWithPropertyList(const QVariant& value) const override;
    Result<QVariant> propertyListWithData(const QByteArray& data) const override;
    Result<QByteArray> archivedDataWithRootObject(const QVariant& value) const override;
    Result<QVariant> unarchiveObjectWithData(const QByteArray& data) const override;
};

}  // namespace tavi
