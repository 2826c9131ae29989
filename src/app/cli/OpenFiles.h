#pragma once

#include <QStringList>

#include "app/cli/CommandLine.h"
#include "platform/AppContainer.h"

namespace tavi {

/// What can be said at once of the files that the program is to open.
struct OpenFiles {
    /// The files that are not there, a line each.
    QStringList failures;
    /// Why others cannot be imported. It tells names of recordings: not before a locked program has let the request in.
    QStringList refusals;
    /// What the program ends with where it has nothing else to do.
    int exitCode = 0;
};

/// “tavi FILE…”: puts the request's files, as seen from the current folder, to its URLs. Those that are not there are
/// left out; others that cannot be imported stay, as the window says so, too.
OpenFiles resolveFiles(ProgramRequest& request, const AppContainer& container);

}  // namespace tavi
