#pragma once

#include <QString>
#include <tl/expected.hpp>

namespace tavi {

/// What went wrong, in words for the user or the log.
struct Error {
    QString text;
};

/// A value, or the reason why there is none.
template <class T>
using Result = tl::expected<T, Error>;

/// Shorthand for a failed Result.
inline tl::unexpected<Error> failure(const QString& text) {
    return tl::unexpected<Error>(Error{text});
}

}  // namespace tavi
