#include "app/cli/CommandLock.h"

#include <algorithm>

#include "files/FileNames.h"

namespace tavi {

namespace {

namespace fs = std::filesystem;

/// Whether the path leads to something below the folder; also where nobody can tell.
bool isBelow(const fs::path& path, const fs::path& folder) {
    std::error_code error;
    const fs::path absolute = fs::absolute(path, error);
    const fs::path whole = error ? fs::path() : fs::weakly_canonical(absolute, error);
    const fs::path start = error ? fs::path() : fs::weakly_canonical(folder, error);
    return error || std::mismatch(start.begin(), start.end(), whole.begin(), whole.end()).first == start.end();
}

}  // namespace

bool isGuardedByLock(const CommandLine& line, const AppContainer& container) {
    const auto holdsFile = [&line](const fs::path& folder) { return isBelow(*line.soundFile, folder); };
    return !line.soundFile || holdsFile(container.documentsPath()) || holdsFile(container.unsavedPath()) ||
           holdsFile(container.cachesPath()) || holdsFile(container.temporaryPath()) ||
           holdsFile(container.unsavedPath().parent_path() / kMirrorsFolder);
}

Result<void> passLock(const LockQuestions& questions) {
    if (!questions.isProtectionOn()) {
        return {};
    }
    if (const std::optional<bool> isLocked = questions.isInstanceLocked()) {
        return *isLocked ? failure(QStringLiteral("locked: enter the passcode in the recorder's window"))
                         : Result<void>();
    }
    const std::optional<QString> passcode = questions.askForPasscode();
    if (!passcode) {
        return failure(QStringLiteral("locked: the passcode has to be entered on a terminal"));
    }
    const QString why = questions.whyWrong(*passcode);
    return why.isEmpty() ? Result<void>() : failure(QStringLiteral("locked: ") + why);
}

}  // namespace tavi
