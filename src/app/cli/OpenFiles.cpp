#include "app/cli/OpenFiles.h"

#include <cerrno>

#include "app/cli/SoundFile.h"
#include "files/FileUri.h"
#include "files/PathText.h"
#include "library/ImportInbox.h"

namespace tavi {

OpenFiles resolveFiles(ProgramRequest& request, const AppContainer& container) {
    OpenFiles opened;
    bool isWrongWord = false;
    for (const std::filesystem::path& file : request.files) {
        const int error = importinbox::refusal(container.documentsPath(), file);
        const bool isThere = error != ENOENT && error != ENOTDIR;
        if (isThere) {
            request.urls.append(QUrl::fromEncoded(QByteArray::fromStdString(fileUri(file))));
        }
        if (error != 0) {
            const bool isWord = !isThere && !file.has_parent_path();
            isWrongWord = isWrongWord || isWord;
            (isThere ? opened.refusals : opened.failures) +=
                isWord ? QStringLiteral("there is no command and no file “%1”").arg(lineText(file))
                       : failureOf(file, fileErrorText(error)).value().text;
            opened.exitCode = isWrongWord ? kUsageExitCode : EXIT_FAILURE;
        }
    }
    request.files.clear();
    return opened;
}

}  // namespace tavi
