#include "adapters/desktop/DesktopDocumentInteraction.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QPointer>

#include "files/FileNames.h"
#include "files/FileUri.h"

namespace tavi {

namespace {

/// In milliseconds, for a file manager to start.
constexpr int kPatience = 10000;

}  // namespace

void DesktopDocumentInteraction::presentOpenInMenu(const std::filesystem::path& path, const QRectF&,
                                                   Completion completion) {
    const auto file = PortalRequests::openedFile(path);
    if (!file) {
        QMetaObject::invokeMethod(
            this, [completion, error = file.error()] { completion(tl::unexpected(error)); }, Qt::QueuedConnection);
        return;
    }
    m_portal.ask(QStringLiteral("OpenURI"), QStringLiteral("OpenFile"), {QVariant::fromValue(*file)},
                 {{QStringLiteral("ask"), true}},
                 [self = QPointer(this), path, completion](PortalRequests::Outcome outcome, const QVariantMap&) {
                     if (self && outcome == PortalRequests::Outcome::Unavailable) {
                         self->openWithXdgOpen(path, completion);
                     } else if (self && outcome == PortalRequests::Outcome::Failed) {
                         completion(failure(QStringLiteral("The desktop opened the file with no program.")));
                     } else if (self) {
                         completion({});
                     }
                 });
}

void DesktopDocumentInteraction::showInFolder(const std::filesystem::path& path, Completion completion) {
    if (!m_bus.isConnected()) {
        // A call without a bus is never said to be finished.
        QMetaObject::invokeMethod(
            this, [this, path, completion] { openWithXdgOpen(folderOf(path), completion); }, Qt::QueuedConnection);
        return;
    }
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    call << QStringList{QString::fromStdString(fileUri(path))} << QString();
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call, kPatience), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this, path, completion = std::move(completion)](QDBusPendingCallWatcher* finished) {
                finished->deleteLater();
                if (finished->isError()) {
                    openWithXdgOpen(folderOf(path), completion);
                } else {
                    completion({});
                }
            });
}

void DesktopDocumentInteraction::openWithXdgOpen(const std::filesystem::path& path, const Completion& completion) {
    if (m_xdgOpen.isAvailable()) {
        // An address, since not every path is text.
        m_xdgOpen.run({QString::fromStdString(fileUri(path))}, completion);
    } else {
        completion(failure(QStringLiteral("There is no xdg-open.")));
    }
}

}  // namespace tavi
