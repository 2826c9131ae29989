#pragma once

#include <QStringList>

#include "app/cli/CommandLine.h"
#include "platform/AppContainer.h"

namespace tavi {

/// What can be said at once of the files that the program is to open.
struct OpenFiles {
    /// Why a file cannot be imported, a line each.
    QStringList failures;
    /// What the program ends with where it has nothing else to do.
    int exitCode = 0;
};

/// “tavi FILE…”: puts the request's files, as seen from the current folder, to its URLs. Those that are not there are
/// left out; others that cannot be imported stay, as the window says so, too.
OpenFiles resolveFiles(ProgramRequest& request, const AppContainer& container);

}  // namespace tavi
