#pragma once

#include <QByteArray>
#include <QVariantMap>
#include <filesystem>

#include "platform/PropertyLists.h"

namespace tavi {

/// The dictionary that an end of the session has last told, with a stamp by which a telling is told from another of
/// the same values.
struct SessionContext {
    QByteArray stamp;
    QVariantMap values;

    /// With a stamp that nobody else has.
    static SessionContext stamped(QVariantMap values);
    /// As a property list, with which it travels and lies in a file.
    Result<QByteArray> encoded(const PropertyLists& propertyLists) const;
    /// A failure for what is none.
    static Result<SessionContext> decoded(const QByteArray& bytes, const PropertyLists& propertyLists);

    /// Of a file; an empty one, without a stamp, where there is none.
    static SessionContext read(const std::filesystem::path& file, const PropertyLists& propertyLists);
    /// Replaces the file in one step.
    static bool write(const std::filesystem::path& file, const QByteArray& encoded);
};

}  // namespace tavi
