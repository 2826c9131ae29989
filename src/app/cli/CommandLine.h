#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QUrl>
#include <filesystem>
#include <functional>
#include <optional>
#include <variant>
#include <vector>

#include "app/cli/CommandServices.h"
#include "platform/Error.h"
#include "watch/TransitingTypes.h"

namespace tavi {

/// What the program with the window is asked to do. The first start does it itself, a later one hands it over. With
/// neither a quick action nor URLs or files it shows the window.
struct ProgramRequest {
    /// Type of a quick action.
    QString shortcutType;
    /// Each has one of the program's own schemes, which QUrl holds in lower case, or is that of a file.
    QList<QUrl> urls;
    /// Files to import, as they were given.
    std::vector<std::filesystem::path> files = {};
    /// How the messages of companions travel; nothing where no channel is to be attached.
    std::optional<MMWormholeTransitingType> companionChannel = {};
};

/// A command that prints and ends.
using PrintingCommand = std::function<Result<CommandOutput>(const CommandServices&)>;

/// What the user asks for on the command line.
struct CommandLine {
    /// Folder below which everything is stored, as it was given; empty for the user's own folders.
    std::filesystem::path container;
    /// The one file that the command looks at; nothing where it looks at the recordings and settings.
    std::optional<std::filesystem::path> soundFile;
    /// The text is that of "--help" or "--version".
    std::variant<ProgramRequest, PrintingCommand, QByteArray> command;
};

/// Exit code of a program that was called wrongly.
inline constexpr int kUsageExitCode = 2;

/// Reads the arguments that follow the program's name, in the encoding of the locale; names of files stay the bytes
/// that they are. The error is one line for the standard error stream, without the program's name. Looks at nothing but
/// the arguments.
Result<CommandLine> parseCommandLine(const QList<QByteArray>& arguments);

}  // namespace tavi
