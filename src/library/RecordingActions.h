#pragma once

#include <QObject>
#include <QRectF>
#include <QVariantMap>
#include <filesystem>
#include <optional>
#include <vector>

#include "files/FileIdentity.h"
#include "library/RecordingActionsServices.h"

namespace tavi {

/// What can be done with one recording of the list: which one is meant, the menu and the sheet that offer it, and
/// rename, delete and trim. Main thread only; nothing here waits for a disk.
///
/// Whoever asks for something aims at a row first. What is meant is its file from then on: rows may change their
/// places, and an action whose file has gone, or has become another one, ends with a notice.
class RecordingActions : public QObject {
    Q_OBJECT

public:
    using Services = RecordingActionsServices;

    explicit RecordingActions(const Services& services, QObject* parent = nullptr);

    /// The row and the section, "0" for the local recordings and "1" for the cloud's, that are aimed at. The row is -1
    /// while the file is in none.
    int Buttontag() const { return m_Buttontag; }
    const QString& Section() const { return m_Section; }

public Q_SLOTS:
    /// Means the recording of that row. Its place in the window is where other programs show what they ask.
    void aim(const QString& section, int row, const QRectF& place);

    /// The menu behind a row's button, at a point of the window; what plays is stopped.
    void btnAccessoryViewClick(const QPointF& at);
    /// The sheet that is the second way to the same.
    void accessoryButtonTapped(const QPointF& at);

    // The buttons of the two; by then those have gone.
    void btnrenameClick() { kReNameAudio(); }
    void btnOpenInClick() { openInButtonClicked(); }
    void btnMailClick() { emailAudioFile(); }
    void btnTrmmingClick();
    void btnuploadClick() { uploadToIcloudDocuments(); }
    void btnDeleteClick() { showDeletealert(); }

    /// Asks for a new name.
    void kReNameAudio();
    /// Asks whether to delete.
    void showDeletealert();
    /// Moves the file into the trash, from where a notice brings it back. Where there is none it asks once more.
    void deleteAudio();
    /// Opens the trimmer, or says that this kind of file cannot be trimmed.
    void trimAudio();
    /// Opens the screen that makes an M4A file of whole seconds.
    void trimToM4a();
    void openInButtonClicked();
    void emailAudioFile();
    void uploadToIcloudDocuments();
    void showInFolder();
    void copyToClipboard();
    /// The recording as other programs take it in a drag, by the names of formats; nothing where it has gone.
    QVariantMap dragged();

Q_SIGNALS:
    /// What plays is to stop; with a path, only where it is that file.
    void stopRequested(const std::filesystem::path& path);
    /// The folder has changed.
    void reloadRequested();
    /// The documents of the cloud have changed.
    void cloudRefreshRequested();
    /// A row of the local recordings is to stay in sight.
    void rowRevealed(int row);

private:
    /// A file that is meant, as it was when it was aimed at.
    struct Target {
        std::filesystem::path path;
        FileIdentity identity;
        bool isInCloud = false;
    };

    /// What is meant, if it is still there; says so if not.
    std::optional<Target> target();
    bool isStill(const Target& target) const;
    void follow();
    void rename(const QString& typed);
    void renameInCloud(const std::filesystem::path& oldName, const std::filesystem::path& newName);
    void deleteInCloud(const std::filesystem::path& name);
    void removed(const Target& target);
    void trashed(const Target& target, const Result<std::filesystem::path>& place);
    void undo(const std::filesystem::path& trashed, const Target& target);
    /// What was deleted in the cloud's list goes there again.
    void putBackInCloud(const Target& target, const std::filesystem::path& file);
    void deleteForGood(const Target& target);
    void reloadSoon();
    void tell(const char* id, const std::filesystem::path& path, const QString& reason = {}) const;
    AlertAction item(const char* titleId, const char* image, void (RecordingActions::*act)(), const QString& key = {});
    /// What menu and sheet have in common.
    std::vector<AlertAction> sharedItems();
    void presentItems(std::vector<AlertAction> items, const QPointF& at);

    Services m_services;
    int m_Buttontag = -1;
    QString m_Section;
    QRectF m_place;
    Target m_target;
};

}  // namespace tavi
