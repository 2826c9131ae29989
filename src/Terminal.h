#pragma once

#include <QString>
#include <optional>

namespace tavi {

/// Asks for a line on the terminal that the process belongs to, without showing what is typed. Nothing where there is
/// no terminal, or the user gives up by Ctrl+C or Ctrl+D.
std::optional<QString> askOnTerminal(const QString& question);

}  // namespace tavi
