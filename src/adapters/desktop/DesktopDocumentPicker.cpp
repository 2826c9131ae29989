#include "adapters/desktop/DesktopDocumentPicker.h"

#include <QPointer>
#include <QStringList>

#include "files/FileNames.h"
#include "files/FileUri.h"
#include "files/PathText.h"

namespace tavi {

namespace {

Result<std::optional<PickedDocument>> pickedOf(const QVariantMap& results) {
    const QStringList uris = results.value(QStringLiteral("uris")).toStringList();
    const auto path = pathOfFileUri(uris.value(0).toStdString());
    if (!path) {
        return failure(QStringLiteral("The desktop chose no place on a disk: %1.").arg(uris.value(0)));
    }
    // Of what comes there from now on, the user has not been asked.
    return PickedDocument{.path = *path, .mayReplace = existsAt(*path)};
}

}  // namespace

void DesktopDocumentPicker::presentForExport(const std::filesystem::path& file, Completion completion) {
    m_portal.ask(
        QStringLiteral("FileChooser"), QStringLiteral("SaveFile"), {m_title},
        {{QStringLiteral("current_name"), pathText(file.filename())}},
        [self = QPointer(this), file, completion](PortalRequests::Outcome outcome, const QVariantMap& results) {
            if (!self) {
                return;
            }
            switch (outcome) {
                case PortalRequests::Outcome::Done:
                    return completion(pickedOf(results));
                case PortalRequests::Outcome::Cancelled:
                    return completion(std::optional<PickedDocument>());
                case PortalRequests::Outcome::Unavailable:
                    return self->m_otherwise.presentForExport(file, completion);
                case PortalRequests::Outcome::Failed:
                    return completion(failure(QStringLiteral("The desktop's dialog ended without an answer.")));
            }
        });
}

}  // namespace tavi
