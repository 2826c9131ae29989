#pragma once

#include <QByteArray>
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
        /// Print or draw the waveform of a file.
        Waveform,
        /// Cut a file down to a part.
        Trim,
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
    /// For List and Waveform.
    bool json = false;
    /// For Waveform and Trim: paths as the bytes that were given, which need not be text. The picture or the new file
    /// is output, empty where none is named.
    QByteArray file;
    QByteArray output;
    /// For Waveform.
    int points = 1024;
    /// For Trim. Seconds.
    double from = 0.0;
    double to = 0.0;
};

/// Exit code of a program that was called wrongly.
inline constexpr int kUsageExitCode = 2;

/// Reads the arguments that follow the program's name, in the encoding of the locale. The error is one line for the
/// standard error stream, without the program's name. Looks at nothing but the arguments.
Result<CommandLine> parseCommandLine(const QList<QByteArray>& arguments);

/// For "--help" and "--version"; they end with a line break.
QString helpText();
QString versionText();

}  // namespace tavi
