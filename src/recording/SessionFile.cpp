#include "recording/SessionFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QLoggingCategory>
#include <QPointer>
#include <mutex>

#include "files/FileMove.h"
#include "library/utility/Notifications.h"
#include "library/utility/Utility.h"
#include "recording/RecordingMail.h"

namespace tavi {

namespace {

Q_LOGGING_CATEGORY(lcRecording, "tavi.recording", QtInfoMsg)

constexpr double kMailDelay = 2.0;

}  // namespace

/// A move that is made once, by whichever thread comes first; the others wait for it.
class SessionFile::Move {
public:
    Move(QString from, QString to) : m_from(std::move(from)), m_to(std::move(to)) {}

    void make() {
        std::call_once(m_once, [this] {
            if (const auto moved = moveItem(m_from, m_to); !moved) {
                // The user is not told, on purpose: the recording stays at the temporary path until the next one
                // starts.
                qCWarning(lcRecording, "%s", qPrintable(moved.error().text));
            }
        });
    }

private:
    QString m_from;
    QString m_to;
    std::once_flag m_once;
};

SessionFile::SessionFile(const Services& services, QObject* parent) : QObject(parent), m_services(services) {}

SessionFile::~SessionFile() = default;

void SessionFile::updateRecordFilePath() {
    m_recordFilePath =
        m_services.container.cachesPath() + QStringLiteral("/vexmosounds.") + m_services.settings.audioFileType();
}

void SessionFile::begin() {
    // The type may have changed since the screen appeared, and the file is to be of the type that it is saved as.
    updateRecordFilePath();
    QFile::remove(m_recordFilePath);
}

void SessionFile::saveFileToDoc(const QString& name) {
    const QString destination = m_services.container.documentsPath() + QLatin1Char('/') + name + QLatin1Char('.') +
                                m_services.settings.audioFileType();
    m_move = std::make_shared<Move>(m_recordFilePath, destination);
    const QPointer<SessionFile> self(this);
    RunLoop& runLoop = m_services.runLoop;
    // Another file system takes as long as copying hours of sound takes.
    runLoop.dispatchBackground([self, &runLoop, move = m_move, destination] {
        move->make();
        runLoop.dispatchMain([self, destination] {
            if (self) {
                self->didMove(destination);
            }
        });
    });
}

void SessionFile::didMove(const QString& path) {
    m_move.reset();
    m_services.notifications.postNotification(kDataUpdatedNotification);
    const QPointer<SessionFile> self(this);
    m_services.runLoop.dispatchAfter(kMailDelay, [self, path] {
        if (self && self->m_services.settings.isQuickMailOn()) {
            self->emailAudioFile(path);
        }
    });
    Q_EMIT saved();
}

void SessionFile::finishBeforeTermination() {
    if (m_move != nullptr) {
        m_move->make();
    }
}

void SessionFile::emailAudioFile(const QString& path) {
    if (isTooLargeToMail(path)) {
        m_services.presenter.presentAlert(
            {qtTrId("alert_error"), qtTrId("file_size_msg"), {{qtTrId("alert_title_ok")}}});
    } else if (m_services.mailComposer.canSendMail()) {
        m_services.mailComposer.compose(mailWithAudioFile(path), [](const Result<void>& result) {
            if (!result) {
                qCWarning(lcRecording, "%s", qPrintable(result.error().text));
            }
        });
    }
}

}  // namespace tavi
