#include "library/RecordingImport.h"

#include <unistd.h>

#include <QLoggingCategory>
#include <QPointer>
#include <algorithm>
#include <cerrno>
#include <deque>
#include <stop_token>
#include <system_error>
#include <utility>
#include <vector>

#include "files/FileNames.h"
#include "files/FileUri.h"
#include "files/PathText.h"
#include "library/ImportInbox.h"

namespace tavi {

namespace {

Q_LOGGING_CATEGORY(lcImport, "tavi.import", QtInfoMsg)

/// More lines than that are no help in an alert.
constexpr std::size_t kMostLines = 12;

std::filesystem::path pathOf(const QUrl& url) {
    return pathOfFileUri(url.toEncoded().toStdString()).value_or(std::filesystem::path());
}

QString reasonOf(int error) {
    switch (error) {
        case EEXIST:
            return qtTrId("import_taken");
        case EISDIR:
            return qtTrId("import_folder");
        case EINVAL:
            return qtTrId("import_no_file");
        case ENOENT:
            return qtTrId("import_gone");
        case ENOSPC:
        case EDQUOT:
            return qtTrId("import_full");
        case EBUSY:
            return qtTrId("import_busy");
        case EREMOTE:
            return qtTrId("import_remote");
        default:
            return QString::fromStdString(std::generic_category().message(error));
    }
}

}  // namespace

/// Files that are imported together.
struct RecordingImport::Batch {
    struct Failure {
        QString name;
        QString reason;
    };

    int imported() const { return count - static_cast<int>(failures.size()); }
    /// How far all of it has come, when the file that is being copied has come so far.
    double progress(double fraction) const {
        const auto done = static_cast<double>(count) - static_cast<double>(waiting.size()) - 1.0;
        return (done + fraction) / static_cast<double>(count);
    }

    int count = 0;
    /// The first one is being copied next.
    std::deque<std::filesystem::path> waiting;
    QString last;
    std::vector<Failure> failures;
    std::stop_source stop;
    std::unique_ptr<ProgressNotice> line;
};

RecordingImport::RecordingImport(const Services& services, QObject* parent) : QObject(parent), m_services(services) {}

RecordingImport::~RecordingImport() {
    if (m_batch) {
        m_batch->stop.request_stop();
        // The thread that copies may be the last to hold the batch.
        m_batch->line.reset();
    }
}

void RecordingImport::openOtherAppFile(const QUrl& url) {
    RunLoop& runLoop = m_services.runLoop;
    runLoop.dispatchBackground(
        [self = QPointer(this), &runLoop, file = pathOf(url), documents = m_services.container.documentsPath()] {
            if (const int error = importinbox::takeOver(documents, file); error != 0 && error != EEXIST) {
                qCInfo(lcImport, "%s: %s", file.c_str(), std::generic_category().message(error).c_str());
            }
            runLoop.dispatchMain([self] {
                if (self) {
                    Q_EMIT self->imported();
                }
            });
        });
}

void RecordingImport::saveImagesInIPhoneWithName(const FileContents& data, const std::filesystem::path& name) {
    RunLoop& runLoop = m_services.runLoop;
    runLoop.dispatchBackground(
        [self = QPointer(this), &runLoop, data, name, documents = m_services.container.documentsPath()] {
            const int error = importinbox::save(documents, name, data);
            runLoop.dispatchMain([self, data, name, error] {
                if (self) {
                    self->didSave(data, name, error);
                }
            });
        });
}

void RecordingImport::didSave(const FileContents& data, const std::filesystem::path& name, int error) {
    if (error != 0) {
        // What has that name is somebody else's.
        m_services.notices.postNotice({qtTrId("import_failed").arg(lineText(name), reasonOf(error))});
        return;
    }
    Q_EMIT imported();
    if (m_services.settings.isICloudSyncOn()) {
        m_services.cloud.saveAndCloseDocumentWithName(
            name, data, [self = QPointer(this), name](const auto&, const FileContents&, const auto& cloudError) {
                if (self && !cloudError) {
                    self->removeFile(name);
                }
            });
    }
}

void RecordingImport::removeFile(const std::filesystem::path& name) {
    RunLoop& runLoop = m_services.runLoop;
    runLoop.dispatchBackground(
        [self = QPointer(this), &runLoop, name, file = m_services.container.documentsPath() / name] {
            const int error = !isRecordingName(name) ? EINVAL : ::unlink(file.c_str()) != 0 ? errno : 0;
            if (error != 0) {
                qCInfo(lcImport, "Could not delete file -:%s ", std::generic_category().message(error).c_str());
            }
            runLoop.dispatchMain([self] {
                if (self) {
                    Q_EMIT self->imported();
                }
            });
        });
}

void RecordingImport::importFiles(const QList<QUrl>& urls) {
    if (urls.isEmpty()) {
        return;
    }
    const bool isNew = !m_batch;
    if (isNew) {
        m_batch = std::make_shared<Batch>();
    }
    for (const QUrl& url : urls) {
        const std::filesystem::path file = pathOf(url);
        ++m_batch->count;
        if (file.empty()) {
            m_batch->failures.push_back({url.toDisplayString(), reasonOf(EREMOTE)});
        } else {
            m_batch->waiting.push_back(file);
        }
    }
    if (isNew) {
        m_services.runLoop.dispatchAfter(kPatience, [self = QPointer(this), batch = std::weak_ptr(m_batch)] {
            if (const auto shown = batch.lock(); self && shown && self->m_batch == shown) {
                self->showLine();
            }
        });
        startNext();
    } else if (m_batch->line) {
        showLine();
    }
}

void RecordingImport::showLine() {
    const QString text = m_batch->count == 1 ? qtTrId("import_running").arg(m_batch->last)
                                             : qtTrId("import_running_many", m_batch->count);
    m_batch->line = m_services.notices.postProgress({text, qtTrId("Cancel"), [self = QPointer(this)] {
                                                         if (self) {
                                                             self->cancel();
                                                         }
                                                     }});
}

void RecordingImport::startNext() {
    if (m_batch->waiting.empty()) {
        const std::shared_ptr<Batch> batch = std::exchange(m_batch, nullptr);
        batch->line.reset();
        if (batch->imported() > 0) {
            Q_EMIT imported();
        }
        tell(*batch);
        return;
    }
    const std::filesystem::path file = m_batch->waiting.front();
    m_batch->waiting.pop_front();
    m_batch->last = lineText(file.filename());
    RunLoop& runLoop = m_services.runLoop;
    const QPointer<RecordingImport> self(this);
    runLoop.dispatchBackground([self, &runLoop, batch = m_batch, file, documents = m_services.container.documentsPath(),
                                stop = m_batch->stop.get_token()] {
        const auto progress = [&](double fraction) {
            runLoop.dispatchMain([self, batch, fraction] {
                if (self) {
                    self->showProgress(batch, fraction);
                }
            });
        };
        const int error = importinbox::bringIn(documents, file, {.progress = progress, .stop = stop});
        runLoop.dispatchMain([self, batch, file, error] {
            if (self) {
                self->ended(batch, file, error);
            }
        });
    });
}

void RecordingImport::showProgress(const std::shared_ptr<Batch>& batch, double fraction) {
    if (batch->line) {
        batch->line->setProgress(batch->progress(fraction));
    }
}

void RecordingImport::ended(const std::shared_ptr<Batch>& batch, const std::filesystem::path& file, int error) {
    if (batch != m_batch) {
        // Given up, and yet too late.
        if (error == 0) {
            Q_EMIT imported();
        }
        return;
    }
    if (error != 0) {
        batch->failures.push_back({lineText(file.filename()), reasonOf(error)});
    }
    showProgress(batch, 1.0);
    startNext();
}

void RecordingImport::cancel() {
    if (!m_batch) {
        return;
    }
    // A disk that does not answer keeps nobody waiting.
    const std::shared_ptr<Batch> batch = std::exchange(m_batch, nullptr);
    batch->stop.request_stop();
    batch->line.reset();
    Q_EMIT imported();
    m_services.notices.postNotice({qtTrId("import_cancelled")});
}

void RecordingImport::removeLeftovers() {
    m_services.runLoop.dispatchBackground(
        [documents = m_services.container.documentsPath()] { importinbox::removeLeftovers(documents); });
}

void RecordingImport::tell(const Batch& batch) const {
    const auto lineOf = [](const Batch::Failure& failure) {
        return qtTrId("import_failed").arg(failure.name, failure.reason);
    };
    if (batch.failures.empty()) {
        m_services.notices.postNotice(
            {batch.count == 1 ? qtTrId("import_done").arg(batch.last) : qtTrId("import_done_many", batch.count)});
    } else if (batch.count == 1) {
        m_services.notices.postNotice({lineOf(batch.failures[0])});
    } else {
        QStringList lines;
        for (std::size_t i = 0; i < std::min(batch.failures.size(), kMostLines); ++i) {
            lines += lineOf(batch.failures[i]);
        }
        if (batch.failures.size() > kMostLines) {
            lines += qtTrId("import_more", static_cast<int>(batch.failures.size() - kMostLines));
        }
        m_services.notices.postNotice(
            {qtTrId("import_some", batch.imported()).arg(batch.failures.size()), qtTrId("import_details"),
             [&presenter = m_services.presenter, text = lines.join(QLatin1Char('\n'))] {
                 presenter.presentAlert({qtTrId("import_details_title"), text, {{qtTrId("OK")}}});
             }});
    }
}

}  // namespace tavi
