#include "app/cli/Recordings.h"

#include "app/cli/SoundFile.h"
#include "files/FileCopy.h"
#include "files/FileNames.h"
#include "files/PathText.h"
#include "library/RecordingFiles.h"
#include "library/utility/Notifications.h"

namespace tavi {

namespace {

/// The file of a recording, or why there is none.
Result<std::filesystem::path> recordingNamed(const std::filesystem::path& name, const CommandServices& services) {
    if (!isRecordingName(name)) {
        return failureOf(name, QStringLiteral("that is no name of a recording"));
    }
    std::filesystem::path file = services.container.documentsPath() / name;
    if (!existsAt(file)) {
        return failureOf(name, QStringLiteral("there is no such recording"));
    }
    return file;
}

/// What the user means by a new name: whoever types the extension wants it once.
std::string stemOf(const std::string& newName, const std::filesystem::path& file) {
    const std::string extension = file.extension();
    const bool isTyped = extension.size() > 1 && newName.size() > extension.size() && newName.ends_with(extension);
    return isTyped ? newName.substr(0, newName.size() - extension.size()) : newName;
}

Result<QByteArray> changed(const std::filesystem::path& path, const CommandServices& services) {
    services.notifications.postNotification(kDataUpdatedNotification);
    return lineText(path).toUtf8() + '\n';
}

}  // namespace

Result<QByteArray> run(const RenameOptions& options, const CommandServices& services) {
    const auto file = recordingNamed(options.name, services);
    if (!file) {
        return tl::unexpected(file.error());
    }
    const std::string stem = options.newName == options.name ? options.newName : stemOf(options.newName, *file);
    switch (recordingfiles::faultOfNewName(*file, stem)) {
        case NewNameFault::HasSlash:
            return failureOf(options.newName, QStringLiteral("a name holds no “/”"));
        case NewNameFault::IsEmpty:
            return failureOf(options.name, QStringLiteral("the new name is empty"));
        case NewNameFault::IsTaken:
            return failureOf(recordingfiles::renamedPath(*file, stem), fileErrorText(EEXIST));
        case NewNameFault::IsOldName:
            return lineText(*file).toUtf8() + '\n';
        case NewNameFault::None:
            break;
    }
    const std::filesystem::path newPath = recordingfiles::renamedPath(*file, stem);
    if (!isRecordingName(newPath.filename())) {
        return failureOf(newPath, QStringLiteral("that is no name for a recording"));
    }
    if (const auto renamed = recordingfiles::rename(*file, newPath); !renamed) {
        return failureOf(newPath, renamed.error().text);
    }
    return changed(newPath, services);
}

Result<CommandOutput> run(const DeleteOptions& options, const CommandServices& services) {
    CommandOutput output;
    for (const std::string& name : options.names) {
        const auto deleted = recordingNamed(name, services).and_then([&](const auto& file) -> Result<void> {
            if (options.permanently) {
                const auto removed = recordingfiles::remove(file);
                return removed ? Result<void>() : failureOf(name, removed.error().text);
            }
            const auto trashed = services.trash.moveToTrash(file);
            return trashed ? Result<void>()
                           : failureOf(name, QStringLiteral("the trash does not take it (%1); --permanently deletes it")
                                                 .arg(trashed.error().text));
        });
        if (!deleted) {
            output.failures += deleted.error().text;
        }
    }
    if (static_cast<std::size_t>(output.failures.size()) < options.names.size()) {
        services.notifications.postNotification(kDataUpdatedNotification);
    }
    return output;
}

Result<QByteArray> run(const ExportOptions& options, const CommandServices& services) {
    const auto file = recordingNamed(options.name, services);
    if (!file) {
        return tl::unexpected(file.error());
    }
    std::filesystem::path to = options.to;
    std::error_code error;
    if (std::filesystem::is_directory(to, error)) {
        to /= options.name;
    }
    if (const int failed = copyItem(*file, to); failed != 0) {
        return failureOf(failed == EISDIR || failed == EINVAL ? *file : to, systemText(failed));
    }
    return changed(to, services);
}

}  // namespace tavi
