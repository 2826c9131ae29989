#include "adapters/desktop/DesktopDocumentPicker.h"

#include <QPointer>
#include <QStringList>
#include <utility>

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
    ask(QStringLiteral("SaveFile"), m_title, {{QStringLiteral("current_name"), pathText(file.filename())}},
        std::move(completion), [this, file](const Completion& chosen) { m_otherwise.presentForExport(file, chosen); });
}

void DesktopDocumentPicker::presentForFolder(const QString& title, Completion completion) {
    ask(QStringLiteral("OpenFile"), title, {{QStringLiteral("directory"), true}}, std::move(completion),
        [this, title](const Completion& chosen) { m_otherwise.presentForFolder(title, chosen); });
}

void DesktopDocumentPicker::ask(const QString& method, const QString& title, const QVariantMap& options,
                                Completion completion, Otherwise otherwise) {
    m_portal.ask(
        QStringLiteral("FileChooser"), method, {title}, options,
        [self = QPointer(this), completion = std::move(completion), otherwise = std::move(otherwise)](
            PortalRequests::Outcome outcome, const QVariantMap& results) {
            if (!self) {
                return;
            }
            switch (outcome) {
                case PortalRequests::Outcome::Done:
                    return completion(pickedOf(results));
                case PortalRequests::Outcome::Cancelled:
                    return completion(std::optional<PickedDocument>());
                case PortalRequests::Outcome::Unavailable:
                    return otherwise(completion);
                case PortalRequests::Outcome::Failed:
                    return completion(failure(QStringLiteral("The desktop's dialog ended without an answer.")));
            }
        });
}

}  // namespace tavi
