#include "library/RecordingExport.h"

#include <QLoggingCategory>
#include <QPointer>
#include <algorithm>
#include <atomic>
#include <cerrno>
#include <stop_token>
#include <system_error>
#include <utility>

#include "files/FileCopy.h"
#include "files/FileNames.h"
#include "files/PathText.h"
#include "library/utility/Notifications.h"

namespace tavi {

namespace {

Q_LOGGING_CATEGORY(lcExport, "tavi.export", QtInfoMsg)

QString nameOf(const std::filesystem::path& path) {
    return lineText(path.filename());
}

}  // namespace

/// A copy in the making: shared with the thread that makes it.
struct RecordingExport::Copy {
    std::filesystem::path from;
    PickedDocument to;
    std::stop_source stop;
    std::atomic<double> progress = 0.0;
    /// Once it has taken so long, and until it ends or is given up. The main thread's.
    std::unique_ptr<ProgressNotice> notice;
};

RecordingExport::RecordingExport(const Services& services, QObject* parent) : QObject(parent), m_services(services) {}

RecordingExport::~RecordingExport() {
    for (const auto& copy : m_copies) {
        copy->stop.request_stop();
        // The thread that copies may be the last to hold it.
        copy->notice.reset();
    }
}

void RecordingExport::present(const std::filesystem::path& file) {
    m_services.documentPicker.presentForExport(file, [self = QPointer(this), file](const auto& answer) {
        if (self) {
            self->picked(file, answer);
        }
    });
}

void RecordingExport::picked(const std::filesystem::path& file, const Result<std::optional<PickedDocument>>& answer) {
    if (!answer) {
        qCWarning(lcExport, "%s", qPrintable(answer.error().text));
        tell(qtTrId("export_no_dialog"), file);
    } else if (*answer) {
        append(file, **answer);
    }
}

void RecordingExport::append(const std::filesystem::path& from, const PickedDocument& to) {
    m_copies.push_back(std::make_shared<Copy>());
    m_copies.back()->from = from;
    m_copies.back()->to = to;
    if (m_copies.size() == 1) {
        start();
    }
}

void RecordingExport::start() {
    const std::shared_ptr<Copy> copy = m_copies.front();
    const QPointer<RecordingExport> self(this);
    RunLoop& runLoop = m_services.runLoop;
    runLoop.dispatchAfter(kPatience, [self, copy] {
        if (self && self->isRunning(copy)) {
            self->show(copy);
        }
    });
    runLoop.dispatchBackground([self, copy, &runLoop] {
        const auto progress = [&](double fraction) {
            copy->progress = fraction;
            runLoop.dispatchMain([copy] {
                if (copy->notice) {
                    copy->notice->setProgress(copy->progress);
                }
            });
        };
        const int error = copyItem(copy->from, copy->to.path, {.progress = progress, .stop = copy->stop.get_token()},
                                   copy->to.mayReplace ? Existing::Replace : Existing::Keep);
        runLoop.dispatchMain([self, copy, error] {
            if (self) {
                self->ended(copy, error);
            }
        });
    });
}

bool RecordingExport::isRunning(const std::shared_ptr<Copy>& copy) const {
    return !m_copies.empty() && m_copies.front() == copy;
}

void RecordingExport::show(const std::shared_ptr<Copy>& copy) {
    const auto cancel = [self = QPointer(this), copy] {
        if (self && self->isRunning(copy)) {
            // A disk that does not answer keeps nobody waiting: the next one may have another.
            copy->stop.request_stop();
            self->leave(copy);
            self->tell(qtTrId("export_cancelled"), copy->from);
        }
    };
    copy->notice =
        m_services.notices.postProgress({qtTrId("export_running").arg(nameOf(copy->from)), qtTrId("Cancel"), cancel});
    copy->notice->setProgress(copy->progress);
}

void RecordingExport::leave(const std::shared_ptr<Copy>& copy) {
    if (!isRunning(copy)) {
        return;
    }
    copy->notice.reset();
    m_copies.pop_front();
    if (!m_copies.empty()) {
        start();
    }
}

void RecordingExport::ended(const std::shared_ptr<Copy>& copy, int error) {
    leave(copy);
    switch (error) {
        case 0:
            return tellDone(*copy);
        case ECANCELED:
            return;
        case EEXIST:
            return askToReplace(copy->from, copy->to.path);
        case ENOENT:
            if (!existsAt(copy->from)) {
                return tell(qtTrId("share_gone"), copy->from);
            }
            break;
        default:
            break;
    }
    const QString reason = QString::fromStdString(std::generic_category().message(error));
    m_services.notices.postNotice({qtTrId("export_failed").arg(nameOf(copy->from), reason)});
}

void RecordingExport::askToReplace(const std::filesystem::path& from, const std::filesystem::path& to) {
    m_services.presenter.presentAlert({qtTrId("export_replace_title").arg(nameOf(to)),
                                       qtTrId("export_replace_message"),
                                       {{.title = qtTrId("Cancel"), .style = AlertAction::Style::Cancel},
                                        {.title = qtTrId("export_replace"),
                                         .style = AlertAction::Style::Destructive,
                                         .handler = [self = QPointer(this), from, to] {
                                             if (self) {
                                                 self->append(from, {.path = to, .mayReplace = true});
                                             }
                                         }}}});
}

void RecordingExport::tellDone(const Copy& copy) {
    if (copy.to.path.parent_path() == m_services.container.documentsPath()) {
        m_services.notifications.postNotification(kDataUpdatedNotification);
    }
    m_services.notices.postNotice({qtTrId("export_done").arg(nameOf(copy.from)), qtTrId("export_show"),
                                   [self = QPointer(this), path = copy.to.path] {
                                       if (self) {
                                           Q_EMIT self->showRequested(path);
                                       }
                                   }});
}

void RecordingExport::tell(const QString& text, const std::filesystem::path& file) const {
    m_services.notices.postNotice({text.arg(nameOf(file))});
}

}  // namespace tavi
