#pragma once

#include <QObject>
#include <functional>

#include "adapters/desktop/PortalRequests.h"
#include "platform/DocumentPicker.h"

namespace tavi {

/// Asks by the interface org.freedesktop.portal.FileChooser of the desktop portal, else by another picker. The portal's
/// dialog itself asks before it lets a name be chosen that is taken.
class DesktopDocumentPicker final : public QObject, public DocumentPicker {
    Q_OBJECT

public:
    /// The title is the dialog's; portal and the other picker must outlive this.
    DesktopDocumentPicker(PortalRequests& portal, const QString& title, DocumentPicker& otherwise)
        : m_portal(portal), m_title(title), m_otherwise(otherwise) {}

    void presentForExport(const std::filesystem::path& file, Completion completion) override;
    void presentForFolder(const QString& title, Completion completion) override;

private:
    using Otherwise = std::function<void(const Completion& completion)>;
    void ask(const QString& method, const QString& title, const QVariantMap& options, Completion completion,
             Otherwise otherwise);

    PortalRequests& m_portal;
    QString m_title;
    DocumentPicker& m_otherwise;
};

}  // namespace tavi
