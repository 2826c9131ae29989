#pragma once

#include "app/cli/CommandLine.h"
#include "platform/AppContainer.h"

namespace tavi {

/// The program with its window, until it is closed; returns the exit code. Nobody else may use the container.
int runProgram(int& argc, char** argv, const ProgramRequest& request, const QString& busName,
               const AppContainer& container);

}  // namespace tavi
