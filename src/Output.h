#pragma once

#include <QByteArray>
#include <cstdlib>

#include "platform/Error.h"

namespace tavi {

/// Tells the error stream what is wrong; returns the exit code.
int reportFailure(const Error& error, int exitCode = EXIT_FAILURE);
/// Writes to the standard output; returns the exit code, and tells the error stream when it cannot.
int print(const QByteArray& text);

}  // namespace tavi
