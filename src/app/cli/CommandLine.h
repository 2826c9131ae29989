#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>

#include "platform/Error.h"

namespace tavi {

/// What the user asks for on the command line.
struct CommandLine {
    enum class Command {
        /// Start, or bring the running program to the front.
        Open,
        /// Start or pause the recording.
        Record,
        /// Stop and save the recording.
        Stop,
        /// Show the library.
        Library,
        /// Open the URLs.
        Url,
        /// Print a setting; write a setting.
        Get,
        Set,
        /// Print the recordings.
        List,
        Help,
        Version,
    };

    Command command = Command::Open;
    /// Folder below which everything is stored, as it was given; empty for the user's own folders.
    QString container;
    /// For Url: each has one of the program's own schemes, which QUrl holds in lower case.
    QList<QUrl> urls;
    /// For Get and Set.
    QString key;
    QString value;
    /// For List.
    bool json = false;
};

/// Exit code of a program that was called wrongly.
inline constexpr int kUsageExitCode = 2;

/// Reads the arguments that follow the program's name. The error is one line for the standard error stream, without the
/// program's name. Looks at nothing but the arguments.
Result<CommandLine> parseCommandLine(const QStringList& arguments);

/// For "--help" and "--version"; they end with a line break.
QString helpText();
QString versionText();

}  // namespace tavi
