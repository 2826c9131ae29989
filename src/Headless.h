#pragma once

#include "app/cli/CommandLine.h"
#include "platform/AppContainer.h"

namespace tavi {

/// Whether a command does its work without the window, in a process of its own.
bool isHeadless(CommandLine::Command command);
/// Runs such a command; returns the exit code.
int runHeadless(int& argc, char** argv, const CommandLine& line, const AppContainer& container);

}  // namespace tavi
