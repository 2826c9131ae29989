#pragma once

#include <QObject>
#include <QRectF>
#include <QVariantMap>
#include <filesystem>
#include <vector>

#include "files/FileContents.h"
#include "library/RecordingExport.h"
#include "platform/DocumentInteraction.h"
#include "platform/DocumentPicker.h"
#include "platform/MailComposer.h"
#include "platform/Notices.h"
#include "platform/Pasteboard.h"
#include "platform/Presenter.h"
#include "platform/RunLoop.h"

namespace tavi {

/// Hands recordings to other programs: opens, shows, mails, exports and copies them. Main thread only; nothing here
/// waits, and what cannot be done is said in one notice.
///
/// Who calls says which file is meant. It may have gone, or be something else by now.
class RecordingSharing : public QObject {
    Q_OBJECT

public:
    /// All of it must outlive this.
    struct Services {
        DocumentInteraction& docController;
        MailComposer& picker;
        Pasteboard& pasteboard;
        Presenter& presenter;
        Notices& notices;
        RunLoop& runLoop;
        RecordingExport& exporter;
    };

    explicit RecordingSharing(const Services& services, QObject* parent = nullptr);

    DocumentInteraction& docController() const { return m_services.docController; }

    /// Opens the file in a program that the user chooses, from the place of its row in the window.
    void openIn(const std::filesystem::path& path, const QRectF& anchor);
    void showInFolder(const std::filesystem::path& path);
    /// Opens a mail with the file, if it is not too large for one; looked at before anything is read.
    void mail(const std::filesystem::path& path);
    /// Asks where a copy of the file is to go, and makes it.
    void upload(const std::filesystem::path& path);
    /// Puts the files on the clipboard, for pasting in a file manager. Those that have gone are left out.
    void copyToClipboard(const std::vector<std::filesystem::path>& paths);

    /// Files as other programs take them from the clipboard and in a drag, by the names of the formats: to be copied,
    /// never to be moved. The values are bytes in ASCII.
    static QVariantMap formats(const std::vector<std::filesystem::path>& paths);

    /// Says that the mail is sent, where that is known, and that it could not be handed over.
    void mailComposeControllerDidFinishWithResult(const std::filesystem::path& path,
                                                  const Result<MailComposeResult>& result);
    /// In mode Import, in which this screen never picks: opens the picked file and hands it on by dataPicked().
    void documentPickerDidPickDocumentAtURL(DocumentPickerMode mode, const std::filesystem::path& path);
    /// Does nothing: who has changed his mind knows it.
    void documentPickerWasCancelled() {}

Q_SIGNALS:
    /// A picked file's contents and its name, to be saved among the recordings.
    void dataPicked(const tavi::FileContents& data, const std::filesystem::path& name);

private:
    /// Whether there is a file at the path; says so if not.
    bool isThere(const std::filesystem::path& path) const;
    /// That text, with the file's name, in a notice.
    void tell(const QString& text, const std::filesystem::path& path) const;
    /// A completion that tells it where something went wrong.
    DocumentInteraction::Completion orTell(const QString& text, const std::filesystem::path& path);

    Services m_services;
};

}  // namespace tavi
