#pragma once

#include <QString>

#include "files/FileError.h"
#include "platform/Error.h"

namespace tavi {

/// What went wrong with a file, as the ports say it.
inline Error errorOf(const FileError& error) {
    return {QString::fromStdString(error.text)};
}

/// The same of a whole result.
inline Result<void> resultOf(const FileResult<void>& result) {
    return result ? Result<void>() : tl::unexpected(errorOf(result.error()));
}

}  // namespace tavi
