#include "library/RecordingActions.h"

#include <QLoggingCategory>
#include <QPointer>
#include <utility>

#include "cloud/CloudSaving.h"
#include "files/FileNames.h"
#include "files/PathText.h"
#include "library/RecordingFiles.h"
#include "library/utility/Utility.h"
#include "trimming/AudioTrimmerViewController.h"

namespace tavi {

namespace {

Q_LOGGING_CATEGORY(lcLibrary, "tavi.library", QtInfoMsg)

/// Seconds until the list is read again, and until the trimmer opens.
constexpr double kReloadDelay = 0.2;
constexpr double kTrimDelay = 0.2;

}  // namespace

RecordingActions::RecordingActions(const Services& services, QObject* parent) : QObject(parent), m_services(services) {
    connect(&m_services.table, &RecordingTable::reloaded, this, &RecordingActions::follow);
    m_services.audioTrims.setTrimDelegate([self = QPointer(this)] {
        if (self) {
            Q_EMIT self->reloadRequested();
        }
    });
}

void RecordingActions::aim(const QString& section, int row, const QRectF& place) {
    m_Section = section;
    m_Buttontag = row;
    m_place = place;
    m_target.path = m_services.table.pathOf(section.toInt(), row);
    m_target.identity = FileIdentity::at(m_target.path).value_or(FileIdentity());
    m_target.isInCloud = section == QLatin1String("1");
}

void RecordingActions::follow() {
    if (!m_target.path.empty()) {
        m_Buttontag = m_services.table.rowOf(m_Section.toInt(), m_target.path.filename());
    }
}

bool RecordingActions::isStill(const Target& target) const {
    const auto now = FileIdentity::at(target.path);
    return now && now->device == target.identity.device && now->node == target.identity.node;
}

std::optional<RecordingActions::Target> RecordingActions::target() {
    if (m_target.path.empty()) {
        return {};
    }
    if (!isStill(m_target)) {
        tell("action_gone", m_target.path);
        return {};
    }
    return m_target;
}

void RecordingActions::tell(const char* id, const std::filesystem::path& path, const QString& reason) const {
    const QString name = lineText(path.filename());
    // Both at once: a name may hold what looks like the place of the other.
    m_services.notices.postNotice({reason.isEmpty() ? qtTrId(id).arg(name) : qtTrId(id).arg(name, reason)});
}

void RecordingActions::reloadSoon() {
    m_services.runLoop.dispatchAfter(kReloadDelay, [self = QPointer(this)] {
        if (self) {
            Q_EMIT self->reloadRequested();
        }
    });
}

AlertAction RecordingActions::item(const char* titleId, const char* image, void (RecordingActions::*act)(),
                                   const QString& key) {
    AlertAction action{qtTrId(titleId), AlertAction::Style::Default, [self = QPointer(this), act] {
                           if (self) {
                               (self->*act)();
                           }
                       }};
    action.image = QLatin1String(image);
    action.shortcut = key;
    return action;
}

std::vector<AlertAction> RecordingActions::sharedItems() {
    std::vector<AlertAction> items;
    items.push_back(item("Rename", "rename", &RecordingActions::btnrenameClick, QStringLiteral("F2")));
    items.push_back(item("Delete", "delete", &RecordingActions::btnDeleteClick, qtTrId("key_delete")));
    items.back().style = AlertAction::Style::Destructive;
    items.push_back(item("open_in", "open-in", &RecordingActions::btnOpenInClick));
    items.push_back(item("mail", "mail", &RecordingActions::btnMailClick));
    items.push_back(item("Trimming", "trim", &RecordingActions::btnTrmmingClick, QStringLiteral("T")));
    const QString exportKey = qtTrId("key_ctrl").arg(QLatin1Char('E'));
    items.push_back(item("upload_drive", "upload", &RecordingActions::btnuploadClick, exportKey));
    return items;
}

void RecordingActions::btnAccessoryViewClick(const QPointF& at) {
    if (!target()) {
        return;
    }
    Q_EMIT stopRequested({});
    std::vector<AlertAction> items = sharedItems();
    items.push_back(item("share_show", "folder", &RecordingActions::showInFolder));
    items.push_back(item("trim_m4a", "trim-m4a", &RecordingActions::trimToM4a));
    items.push_back({qtTrId("menu_close"), AlertAction::Style::Cancel});
    presentItems(std::move(items), at);
}

void RecordingActions::accessoryButtonTapped(const QPointF& at) {
    if (!target()) {
        return;
    }
    std::vector<AlertAction> items = sharedItems();
    items.push_back({qtTrId("alert_dismiss"), AlertAction::Style::Cancel});
    presentItems(std::move(items), at);
}

void RecordingActions::presentItems(std::vector<AlertAction> items, const QPointF& at) {
    const RecordingEntry* entry = m_services.table.entryOf(m_Section.toInt(), m_Buttontag);
    Alert sheet{lineText(m_target.path.filename()),
                entry != nullptr ? RecordingListModel::detailText(*entry) : QString(), std::move(items)};
    sheet.anchor = at;
    sheet.levels = m_services.table.shapeOf(m_Section.toInt(), m_Buttontag);
    m_services.presenter.presentActionSheet(std::move(sheet));
}

void RecordingActions::kReNameAudio() {
    const auto file = target();
    if (!file) {
        return;
    }
    AlertAction accept{qtTrId("OK")};
    accept.textHandler = [self = QPointer(this), path = file->path](const QString& typed) {
        // A finger held on another row while this was asked means that one.
        if (self && self->m_target.path == path) {
            self->rename(typed);
        }
    };
    Alert question{qtTrId("rename_audio"),
                   qtTrId("filename_msg"),
                   {std::move(accept), {qtTrId("Cancel"), AlertAction::Style::Cancel}}};
    question.text = recordingfiles::nameToEdit(file->path);
    m_services.presenter.presentAlert(std::move(question));
}

void RecordingActions::rename(const QString& typed) {
    const auto file = target();
    if (!file) {
        return;
    }
    switch (recordingfiles::faultOfNewName(file->path, typed)) {
        case NewNameFault::HasSlash:
            return m_services.presenter.presentAlert(
                {qtTrId("error_rename"), qtTrId("file_notContain") + QStringLiteral(" \"/\"."), {{qtTrId("Ok")}}});
        case NewNameFault::IsEmpty:
            return m_services.presenter.presentAlert({qtTrId("rename"), qtTrId("audio_file_name"), {{qtTrId("Ok")}}});
        case NewNameFault::IsOldName:
            return;
        case NewNameFault::IsTaken:
            return Utility::showAlrtWithTitle(qtTrId("file_exist"), qtTrId("audio_file_exist"), m_services.presenter);
        case NewNameFault::None:
            break;
    }
    const std::filesystem::path newPath = recordingfiles::renamedPath(file->path, typed);
    if (!isRecordingName(newPath.filename())) {
        // Of a folder that the program keeps, be it there or not: no list would show the recording.
        return Utility::showAlrtWithTitle(qtTrId("file_exist"), qtTrId("audio_file_exist"), m_services.presenter);
    }
    if (const auto renamed = recordingfiles::rename(file->path, newPath); !renamed) {
        return tell("rename_failed", file->path, renamed.error().text);
    }
    Q_EMIT stopRequested(file->path);
    m_services.settings.moveCloudPending(file->path, newPath);
    m_target.path = newPath;
    renameInCloud(file->path.filename(), newPath.filename());
    // Twice, on purpose: the second one sees what the first was too early for.
    reloadSoon();
    reloadSoon();
    m_services.runLoop.dispatchAfter(kReloadDelay, [self = QPointer(this), name = newPath.filename()] {
        const int row = self ? self->m_services.table.rowOf(0, name) : -1;
        if (row >= 0) {
            Q_EMIT self->rowRevealed(row);
        }
    });
}

void RecordingActions::renameInCloud(const std::filesystem::path& oldName, const std::filesystem::path& newName) {
    // A local recording need not be there.
    const bool isTold = m_target.isInCloud;
    if (!m_services.settings.isCloudSyncOn()) {
        return;
    }
    m_services.cloud.renameOriginalDocument(
        oldName, newName, [self = QPointer(this), oldName, isTold](const auto& error) {
            if (self) {
                error&& isTold ? self->tell("rename_failed", oldName, error->domain) : void();
                self->m_services.runLoop.dispatchAfter(kReloadDelay, [self] {
                    if (self) {
                        Q_EMIT self->cloudRefreshRequested();
                    }
                });
            }
        });
}

void RecordingActions::showDeletealert() {
    const auto file = target();
    if (!file) {
        return;
    }
    m_services.presenter.presentAlert(
        {qtTrId("delete_audio"),
         qtTrId("delete_msg").arg(lineText(file->path.filename())),
         {{qtTrId("No"), AlertAction::Style::Cancel},
          {qtTrId("Delete"), AlertAction::Style::Destructive, [self = QPointer(this), path = file->path] {
               // As with a new name.
               if (self && self->m_target.path == path) {
                   self->deleteAudio();
               }
           }}}});
}

void RecordingActions::deleteAudio() {
    const auto file = target();
    if (!file) {
        return;
    }
    Q_EMIT stopRequested(file->path);
    RunLoop& runLoop = m_services.runLoop;
    runLoop.dispatchBackground([self = QPointer(this), &runLoop, &trash = m_services.trash, file = *file] {
        const auto place = trash.moveToTrash(file.path);
        runLoop.dispatchMain([self, file, place] {
            if (self) {
                self->trashed(file, place);
            }
        });
    });
}

void RecordingActions::deleteInCloud(const std::filesystem::path& name) {
    m_services.cloud.deleteDocumentWithName(name, [self = QPointer(this), name](const auto& error) {
        qCInfo(lcLibrary, "%s", error ? "Delete Document  error" : "Delete Success");
        if (self) {
            error ? self->tell("delete_failed", name, error->domain) : void();
            // After an error, too: the row comes back.
            Q_EMIT self->cloudRefreshRequested();
        }
    });
}

/// The file has gone. Only now does its document: whoever answers the second question with "No" keeps both.
void RecordingActions::removed(const Target& target) {
    if (target.isInCloud && m_services.settings.isCloudSyncOn()) {
        deleteInCloud(target.path.filename());
    }
    reloadSoon();
}

void RecordingActions::trashed(const Target& target, const Result<std::filesystem::path>& place) {
    const QString name = lineText(target.path.filename());
    if (place) {
        removed(target);
        m_services.notices.postNotice({qtTrId("delete_trashed").arg(name), qtTrId("delete_undo"),
                                       [self = QPointer(this), place = *place, target] {
                                           if (self) {
                                               self->undo(place, target);
                                           }
                                       }});
        return;
    }
    if (!isStill(target)) {
        return tell("action_gone", target.path);
    }
    m_services.presenter.presentAlert(
        {qtTrId("delete_audio"),
         qtTrId("delete_forever_msg").arg(name),
         {{qtTrId("No"), AlertAction::Style::Cancel},
          {qtTrId("delete_forever"), AlertAction::Style::Destructive, [self = QPointer(this), target] {
               if (self) {
                   self->deleteForGood(target);
               }
           }}}});
}

void RecordingActions::undo(const std::filesystem::path& trashed, const Target& target) {
    RunLoop& runLoop = m_services.runLoop;
    runLoop.dispatchBackground([self = QPointer(this), &runLoop, &trash = m_services.trash, trashed, target] {
        const auto back = trash.putBack(trashed, target.path);
        runLoop.dispatchMain([self, target, path = target.path, back] {
            if (!self) {
                return;
            }
            if (!back) {
                return self->tell("delete_undo_failed", path, back.error().text);
            }
            if (*back != path) {
                self->tell("delete_undone_beside", path, lineText(back->filename()));
            }
            self->putBackInCloud(target, *back);
            Q_EMIT self->reloadRequested();
            if (const int row = self->m_services.table.rowOf(0, back->filename()); row >= 0) {
                Q_EMIT self->rowRevealed(row);
            }
        });
    });
}

void RecordingActions::putBackInCloud(const Target& target, const std::filesystem::path& file) {
    if (target.isInCloud && m_services.settings.isCloudSyncOn()) {
        saveFileToCloud(m_services.cloud, m_services.runLoop, file,
                        [self = QPointer(this)](const auto&, const FileContents&, const auto& /*error*/) {
                            if (self) {
                                Q_EMIT self->cloudRefreshRequested();
                            }
                        });
    }
}

void RecordingActions::deleteForGood(const Target& target) {
    if (!isStill(target)) {
        return tell("action_gone", target.path);
    }
    if (const auto done = recordingfiles::remove(target.path); !done) {
        tell("delete_failed", target.path, done.error().text);
        return reloadSoon();
    }
    removed(target);
}

void RecordingActions::btnTrmmingClick() {
    m_services.runLoop.dispatchAfter(kTrimDelay, [self = QPointer(this)] {
        if (self) {
            self->trimAudio();
        }
    });
}

void RecordingActions::trimAudio() {
    const auto file = target();
    if (!file) {
        return;
    }
    const std::string name = file->path.filename();
    const QByteArray extension = QByteArray::fromStdString(file->path.extension()).toLower();
    const auto refuse = [this](const QString& text) {
        m_services.presenter.presentAlert({text, {}, {{qtTrId("ok")}}});
    };
    if (extension == ".mp3") {
        return refuse(qtTrId("trim_no_mp3"));
    }
    if (extension == ".aac") {
        // The trimmer opens nevertheless, on purpose: it makes an M4A file of it.
        refuse(qtTrId("trim_no_aac"));
    }
    Q_EMIT stopRequested({});
    const RecordingEntry* entry = m_services.table.entryOf(m_Section.toInt(), m_Buttontag);
    const QVariantMap data{{entrykey::kDuration, entry != nullptr ? entry->value(entrykey::kDuration) : QString()}};
    AudioTrimmerViewController::presentAudioTrimmerController(m_services.trimmers, this, file->path.native(), data,
                                                              name, {});
}

void RecordingActions::trimToM4a() {
    if (const auto file = target()) {
        m_services.audioTrims.show(file->path, m_Section);
    }
}

void RecordingActions::openInButtonClicked() {
    if (const auto file = target()) {
        m_services.sharing.openIn(file->path, m_place);
    }
}

void RecordingActions::emailAudioFile() {
    if (const auto file = target()) {
        m_services.sharing.mail(file->path);
    }
}

void RecordingActions::uploadToIcloudDocuments() {
    if (const auto file = target()) {
        m_services.sharing.upload(file->path);
    }
}

void RecordingActions::showInFolder() {
    if (const auto file = target()) {
        m_services.sharing.showInFolder(file->path);
    }
}

void RecordingActions::copyToClipboard() {
    if (const auto file = target()) {
        m_services.sharing.copyToClipboard({file->path});
    }
}

QVariantMap RecordingActions::dragged() {
    const auto file = target();
    return file ? RecordingSharing::formats({file->path}) : QVariantMap();
}

}  // namespace tavi
