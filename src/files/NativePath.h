#pragma once

#include <unistd.h>

#include <QByteArray>

namespace tavi {

/// Whether there is something at a path, given in the file system's bytes, which need not be text.
inline bool existsAt(const QByteArray& path) {
    return ::access(path.constData(), F_OK) == 0;
}

/// Removes the file at such a path, if there is one.
inline void removeAt(const QByteArray& path) {
    ::unlink(path.constData());
}

}  // namespace tavi
