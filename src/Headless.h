#pragma once

#include "adapters/qt/QtUserDefaults.h"
#include "app/cli/CommandLine.h"
#include "app/settings/SettingsStore.h"
#include "platform/AppContainer.h"

namespace tavi {

/// Tells the error stream what is wrong; returns the exit code.
int reportFailure(const Error& error, int exitCode = EXIT_FAILURE);
/// Writes to the standard output; returns the exit code, and tells the error stream when it cannot.
int print(const QByteArray& text);

/// The settings as files of a container.
struct SettingsFiles {
    explicit SettingsFiles(const AppContainer& container)
        : standard(container.preferencesPath() + QStringLiteral("/settings.ini")),
          shared(container.groupContainerPath(kApplicationGroup) + QStringLiteral("/settings.ini")) {}

    QtUserDefaults standard;
    QtUserDefaults shared;
    SettingsStore store{standard};
};

/// Whether a command does its work without the window, in a process of its own.
bool isHeadless(CommandLine::Command command);
/// Runs such a command; returns the exit code.
int runHeadless(int& argc, char** argv, const CommandLine& line, const AppContainer& container);

}  // namespace tavi
