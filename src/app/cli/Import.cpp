#include "app/cli/Import.h"

#include "app/cli/SoundFile.h"
#include "files/PathText.h"
#include "library/ImportInbox.h"
#include "library/utility/Notifications.h"

namespace tavi {

Result<CommandOutput> run(const ImportOptions& options, const CommandServices& services) {
    const std::filesystem::path documents = services.container.documentsPath();
    importinbox::removeLeftovers(documents);
    CommandOutput output;
    for (const std::filesystem::path file : options.files) {
        if (const int error = importinbox::bringIn(documents, file); error != 0) {
            output.failures += failureOf(file, fileErrorText(error)).value().text;
        } else {
            output.text += lineText(documents / file.filename()).toUtf8() + '\n';
        }
    }
    if (!output.text.isEmpty()) {
        services.notifications.postNotification(kDataUpdatedNotification);
    }
    return output;
}

}  // namespace tavi
