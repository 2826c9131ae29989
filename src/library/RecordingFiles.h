#pragma once

#include <QString>
#include <filesystem>
#include <string>

#include "platform/Error.h"

// Rename and delete of recordings as what they are, files: the rules that the window and the command line share.

namespace tavi {

/// What speaks against a new name, in the order in which it is looked for.
enum class NewNameFault {
    None,
    HasSlash,
    IsEmpty,
    /// It is the old name, extension included: there is nothing to do, and nothing to say.
    IsOldName,
    /// Something has the name already. That may be the recording itself, if its name was confirmed as it is without its
    /// extension: that is told like any other, on purpose.
    IsTaken,
};

namespace recordingfiles {

/// A recording's name without its extension, as it is offered for change.
QString nameToEdit(const std::filesystem::path& file);

/// Where the recording would be under a typed name: in its folder, with the extension that it has, if it has one.
std::filesystem::path renamedPath(const std::filesystem::path& file, const QString& typed);
/// The same of a name in the file system's bytes.
std::filesystem::path renamedPath(const std::filesystem::path& file, const std::string& typed);

/// Looks at the file system. Names are compared exactly, and no character but the slash is refused. On a file system
/// that takes small and capital letters for the same, a name that differs in them alone is not taken.
NewNameFault faultOfNewName(const std::filesystem::path& file, const QString& typed);
NewNameFault faultOfNewName(const std::filesystem::path& file, const std::string& typed);

/// Gives a file its new path, and replaces nothing, whatever comes there meanwhile. The error is the system's words.
/// Waits for no disk. Any thread.
Result<void> rename(const std::filesystem::path& file, const std::filesystem::path& newPath);

/// Removes a file for good, and a folder only if it is empty. The error is the system's words. Any thread.
Result<void> remove(const std::filesystem::path& file);

}  // namespace recordingfiles

}  // namespace tavi
