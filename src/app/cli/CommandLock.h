#pragma once

#include <QString>
#include <functional>
#include <optional>

#include "app/cli/CommandLine.h"
#include "platform/AppContainer.h"
#include "platform/Error.h"

namespace tavi {

/// Exit code where the passcode lock does not allow what is asked for.
inline constexpr int kLockedExitCode = 3;

/// Whether a command that prints and ends tells or changes something of the program's own: all do but those on a sound
/// file elsewhere. The file is looked at through its links.
bool isGuardedByLock(const CommandLine& line, const AppContainer& container);

/// Who knows about the lock; each is asked only when the one before it does not decide.
struct LockQuestions {
    std::function<bool()> isProtectionOn;
    /// Nothing where no program runs, or it does not say.
    std::function<std::optional<bool>()> isInstanceLocked;
    /// What the user types; nothing where there is no terminal, or nothing was typed.
    std::function<std::optional<QString>()> askForPasscode;
    /// Empty where this is the passcode, else why not.
    std::function<QString(const QString& passcode)> whyWrong;
};

/// Whether a command that the lock guards may go on; if not, why. The program that runs decides; where none does, the
/// passcode.
Result<void> passLock(const LockQuestions& questions);

}  // namespace tavi
