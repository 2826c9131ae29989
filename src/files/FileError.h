#pragma once

#include <string>
#include <tl/expected.hpp>
#include <utility>

namespace tavi {

/// What went wrong with a file, in words for the user or the log, as UTF-8.
struct FileError {
    std::string text;
};

/// A value, or the reason why there is none.
template <class T>
using FileResult = tl::expected<T, FileError>;

/// Shorthand for a failed FileResult.
inline tl::unexpected<FileError> fileFailure(std::string text) {
    return tl::unexpected<FileError>(FileError{std::move(text)});
}

/// "The disk is full." or "The recording could not be written: " and the system's words for an errno value.
std::string writeErrorText(int error);

}  // namespace tavi
