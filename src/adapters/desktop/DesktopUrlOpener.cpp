#include "adapters/desktop/DesktopUrlOpener.h"

#include <QProcess>

#include "adapters/desktop/DesktopCommand.h"

namespace tavi {

namespace {

void openWithXdgOpen(const QString& address) {
    // On its own: some desktops have it run for as long as the program that shows the page.
    QProcess process;
    process.setProgram(QStringLiteral("xdg-open"));
    process.setArguments({address});
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.startDetached();
}

}  // namespace

void DesktopUrlOpener::canOpenURL(const QUrl& url, std::function<void(bool canOpen)> completion) {
    runDesktopCommand(
        this, QStringLiteral("xdg-mime"),
        {QStringLiteral("query"), QStringLiteral("default"), QStringLiteral("x-scheme-handler/") + url.scheme()},
        m_limit, [url, completion = std::move(completion)](const std::optional<QByteArray>& output) {
            completion(!url.scheme().isEmpty() && output && !output->trimmed().isEmpty());
        });
}

void DesktopUrlOpener::openURL(const QUrl& url) {
    if (url.scheme().isEmpty()) {
        return;
    }
    const QString address = url.toString(QUrl::FullyEncoded);
    if (url.isLocalFile()) {
        // The portal takes no file by its address, and refuses it; xdg-open knows other ways.
        openWithXdgOpen(address);
        return;
    }
    m_portal.ask(QStringLiteral("OpenURI"), QStringLiteral("OpenURI"), {address}, {},
                 [address](PortalRequests::Outcome outcome, const QVariantMap&) {
                     if (outcome == PortalRequests::Outcome::Unavailable) {
                         openWithXdgOpen(address);
                     }
                 });
}

}  // namespace tavi
