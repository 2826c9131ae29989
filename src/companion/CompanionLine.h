#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <filesystem>
#include <optional>
#include <variant>

#include "companion/CompanionCommands.h"
#include "platform/Error.h"

namespace tavi {

/// What the companion is started for.
struct CompanionLine {
    /// Icon: be there until somebody ends it. Listen: print what the recorder does, a line for each change.
    enum class Stay { Icon, Listen };

    std::filesystem::path container;
    std::optional<MMWormholeTransitingType> channel;
    /// A text is that of "--help" or "--version".
    std::variant<Stay, CompanionCommand, QByteArray> task;
    /// For Say.
    QString text;
};

/// Reads the arguments that follow the program's name. The error is one line, without the program's name.
Result<CompanionLine> parseCompanionLine(const QList<QByteArray>& arguments);

}  // namespace tavi
