#include "library/RecordingSharing.h"

#include <sys/stat.h>

#include <QLoggingCategory>
#include <QPointer>

#include "files/FileUri.h"
#include "files/PathText.h"
#include "library/utility/RecordingMail.h"
#include "library/utility/Utility.h"

namespace tavi {

namespace {

Q_LOGGING_CATEGORY(lcSharing, "tavi.sharing", QtInfoMsg)

enum class Kind { None, File, Other };

Kind kindAt(const std::filesystem::path& path) {
    struct stat attributes = {};
    if (::stat(path.c_str(), &attributes) != 0) {
        return Kind::None;
    }
    return S_ISREG(attributes.st_mode) ? Kind::File : Kind::Other;
}

}  // namespace

RecordingSharing::RecordingSharing(const Services& services, QObject* parent) : QObject(parent), m_services(services) {
    connect(&m_services.exporter, &RecordingExport::showRequested, this, &RecordingSharing::showInFolder);
}

void RecordingSharing::openIn(const std::filesystem::path& path, const QRectF& anchor) {
    if (isThere(path)) {
        m_services.docController.presentOpenInMenu(path, anchor, orTell(qtTrId("share_open_failed"), path));
    }
}

void RecordingSharing::showInFolder(const std::filesystem::path& path) {
    if (isThere(path)) {
        m_services.docController.showInFolder(path, orTell(qtTrId("share_folder_failed"), path));
    }
}

void RecordingSharing::mail(const std::filesystem::path& path) {
    if (!isThere(path)) {
        return;
    }
    if (isTooLargeToMail(path)) {
        m_services.presenter.presentAlert(
            {qtTrId("alert_error"), qtTrId("file_size_msg"), {{qtTrId("alert_title_ok")}}});
    } else if (!m_services.picker.canSendMail()) {
        m_services.notices.postNotice({qtTrId("share_mail_none")});
    } else {
        m_services.picker.compose(mailWithAudioFile(path), [self = QPointer(this), path](const auto& result) {
            if (self) {
                self->mailComposeControllerDidFinishWithResult(path, result);
            }
        });
    }
}

void RecordingSharing::mailComposeControllerDidFinishWithResult(const std::filesystem::path& path,
                                                                const Result<MailComposeResult>& result) {
    if (!result) {
        qCWarning(lcSharing, "%s", qPrintable(result.error().text));
        tell(qtTrId("share_mail_failed"), path);
    } else if (*result == MailComposeResult::Sent) {
        Utility::showAlrtWithTitle(qtTrId("Your Mail has been sent successfully"), {}, m_services.presenter);
    }
}

void RecordingSharing::upload(const std::filesystem::path& path) {
    if (isThere(path)) {
        m_services.exporter.present(path);
    }
}

void RecordingSharing::copyToClipboard(const std::vector<std::filesystem::path>& paths) {
    std::vector<std::filesystem::path> files;
    std::copy_if(paths.begin(), paths.end(), std::back_inserter(files),
                 [](const auto& path) { return kindAt(path) == Kind::File; });
    if (!files.empty()) {
        auto data = std::make_unique<QMimeData>();
        const QVariantMap all = formats(files);
        for (auto format = all.begin(); format != all.end(); ++format) {
            data->setData(format.key(), format.value().toByteArray());
        }
        m_services.pasteboard.setMimeData(std::move(data));
        m_services.notices.postNotice({files.size() == 1
                                           ? qtTrId("share_copied").arg(lineText(files.front().filename()))
                                           : qtTrId("share_copied_many", static_cast<int>(files.size()))});
    } else if (!paths.empty()) {
        isThere(paths.front());
    }
}

QVariantMap RecordingSharing::formats(const std::vector<std::filesystem::path>& paths) {
    QByteArray lines;
    QByteArray copied("copy");
    for (const std::filesystem::path& path : paths) {
        const QByteArray uri = QByteArray::fromStdString(fileUri(path));
        lines += uri + "\r\n";
        copied += '\n' + uri;
    }
    // RFC 2483, section 5; and what file managers of desktops read: whether to copy or to move.
    return {{QStringLiteral("text/uri-list"), lines},
            {QStringLiteral("x-special/gnome-copied-files"), copied},
            {QStringLiteral("application/x-kde-cutselection"), QByteArray("0")}};
}

void RecordingSharing::documentPickerDidPickDocumentAtURL(DocumentPickerMode mode, const std::filesystem::path& path) {
    if (mode != DocumentPickerMode::Import) {
        return;
    }
    RunLoop& runLoop = m_services.runLoop;
    runLoop.dispatchBackground([self = QPointer(this), path, &runLoop] {
        runLoop.dispatchMain([self, path, data = FileContents::ofFile(path)] {
            if (self && data) {
                Q_EMIT self->dataPicked(*data, path.filename());
            } else if (self) {
                self->tell(qtTrId("share_gone"), path);
            }
        });
    });
}

bool RecordingSharing::isThere(const std::filesystem::path& path) const {
    const Kind kind = kindAt(path);
    if (kind != Kind::File) {
        tell(kind == Kind::None ? qtTrId("share_gone") : qtTrId("share_no_file"), path);
    }
    return kind == Kind::File;
}

void RecordingSharing::tell(const QString& text, const std::filesystem::path& path) const {
    m_services.notices.postNotice({text.arg(lineText(path.filename()))});
}

DocumentInteraction::Completion RecordingSharing::orTell(const QString& text, const std::filesystem::path& path) {
    return [self = QPointer(this), text, path](const Result<void>& result) {
        if (self && !result) {
            qCWarning(lcSharing, "%s", qPrintable(result.error().text));
            self->tell(text, path);
        }
    };
}

}  // namespace tavi
