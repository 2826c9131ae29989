#include "recording/SessionFile.h"

#include <QCoreApplication>
#include <QLoggingCategory>
#include <QPointer>
#include <mutex>
#include <utility>
#include <vector>

#include "files/FileMove.h"
#include "files/FileNames.h"
#include "files/PathText.h"
#include "library/utility/Notifications.h"
#include "library/utility/Utility.h"
#include "recording/RecordingMail.h"

namespace tavi {

namespace {

Q_LOGGING_CATEGORY(lcRecording, "tavi.recording", QtInfoMsg)

constexpr double kMailDelay = 2.0;

}  // namespace

/// Moves that are made once, by whichever thread comes first; the others wait for it.
class SessionFile::Moves {
public:
    explicit Moves(std::vector<std::pair<std::filesystem::path, std::filesystem::path>> moves)
        : m_moves(std::move(moves)) {}

    void make() {
        std::call_once(m_once, [this] {
            for (const auto& [from, to] : m_moves) {
                if (const auto moved = moveItem(from, to); !moved) {
                    // No alert says so, on purpose: the recording stays at the temporary path until the next one
                    // starts.
                    qCWarning(lcRecording, "%s", moved.error().text.c_str());
                } else {
                    m_moved = to;
                }
            }
        });
    }
    /// Where the file has gone; empty where it is still in its place.
    const std::filesystem::path& moved() const { return m_moved; }

private:
    std::vector<std::pair<std::filesystem::path, std::filesystem::path>> m_moves;
    std::once_flag m_once;
    std::filesystem::path m_moved;
};

SessionFile::SessionFile(const Services& services, QObject* parent) : QObject(parent), m_services(services) {}

SessionFile::~SessionFile() = default;

void SessionFile::updateRecordFilePath() {
    m_recordFilePath = m_services.container.cachesPath() /
                       nativePath(QStringLiteral("vexmosounds.") + m_services.settings.audioFileType());
}

void SessionFile::begin() {
    m_services.formatHold.setHeld(true);
    // The type may have changed since the screen appeared, and the file is to be of the type that it is saved as.
    updateRecordFilePath();
    m_sessionPath = m_recordFilePath;
    removeAt(m_recordFilePath);
}

void SessionFile::abandon() {
    m_services.formatHold.setHeld(false);
}

void SessionFile::saveFileToDoc(const QString& name, bool endedByItself) {
    m_endedByItself = endedByItself;
    const std::filesystem::path base = m_services.container.documentsPath() / nativePath(name);
    const auto named = [&base](const std::string& extension) {
        return std::filesystem::path(base.native() + extension);
    };
    std::filesystem::path destination = named('.' + m_services.settings.audioFileType().toStdString());
    std::vector<std::pair<std::filesystem::path, std::filesystem::path>> moves{{m_recordFilePath, destination}};
    if (m_sessionPath != m_recordFilePath) {
        // Somebody has edited the type in the settings' file, and the screen has appeared since: the path is another
        // one by now, and the session would stay where a later one removes it.
        destination = named(m_sessionPath.extension());
        moves.emplace(moves.begin(), m_sessionPath, destination);
    }
    m_moves = std::make_shared<Moves>(std::move(moves));
    const QPointer<SessionFile> self(this);
    RunLoop& runLoop = m_services.runLoop;
    // Another file system takes as long as copying hours of sound takes.
    runLoop.dispatchBackground([self, &runLoop, moves = m_moves, destination] {
        moves->make();
        runLoop.dispatchMain([self, destination] {
            if (self) {
                self->didMove(destination);
            }
        });
    });
}

void SessionFile::didMove(const std::filesystem::path& path) {
    const std::filesystem::path moved = m_moves != nullptr ? m_moves->moved() : std::filesystem::path();
    m_moves.reset();
    m_services.formatHold.setHeld(false);
    m_services.notifications.postNotification(kDataUpdatedNotification);
    const QPointer<SessionFile> self(this);
    m_services.runLoop.dispatchAfter(kMailDelay, [self, path] {
        if (self && self->m_services.settings.isQuickMailOn()) {
            self->emailAudioFile(path);
        }
    });
    say(moved);
    Q_EMIT saved(pathText(moved.filename()));
}

void SessionFile::say(const std::filesystem::path& moved) {
    if (moved.empty()) {
        m_services.notices.postNotice({qtTrId("record_stranded").arg(pathText(m_sessionPath))});
        return;
    }
    const QString name = pathText(moved.filename());
    m_services.notices.postNotice({qtTrId(m_endedByItself ? "record_kept" : "record_saved").arg(name),
                                   qtTrId("library_play"), [self = QPointer(this), name] {
                                       if (self) {
                                           Q_EMIT self->playRequested(name);
                                       }
                                   }});
}

void SessionFile::finishBeforeTermination() {
    if (m_moves != nullptr) {
        m_moves->make();
    }
}

void SessionFile::emailAudioFile(const std::filesystem::path& path) {
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
