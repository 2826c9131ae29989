#include "recording/SessionFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QLocale>
#include <QLoggingCategory>
#include <QPointer>
#include <mutex>
#include <utility>
#include <vector>

#include "files/FileDescriptor.h"
#include "files/FileMove.h"
#include "files/FileNames.h"
#include "files/PathText.h"
#include "library/utility/DateTexts.h"
#include "library/utility/Notifications.h"
#include "library/utility/RecordingMail.h"
#include "library/utility/Utility.h"

namespace tavi {

namespace {

Q_LOGGING_CATEGORY(lcRecording, "tavi.recording", QtInfoMsg)

constexpr double kMailDelay = 2.0;

}  // namespace

/// Moves that are made once, by whichever thread comes first; the others wait for it.
class SessionFile::Moves {
public:
    /// The first is that of the session, whose second name is the link.
    Moves(std::vector<std::pair<std::filesystem::path, std::filesystem::path>> moves, std::filesystem::path link)
        : m_moves(std::move(moves)), m_link(std::move(link)) {}

    void make() {
        std::call_once(m_once, [this] {
            const FileDescriptor session = FileDescriptor::open(m_moves.front().first, O_RDONLY | O_NONBLOCK);
            for (const auto& [from, to] : m_moves) {
                if (const auto moved = moveItem(from, to); !moved) {
                    // Not for the user: the rescue finds a place, or says that there is none.
                    qCWarning(lcRecording, "%s", moved.error().text.c_str());
                    m_hasFailed = true;
                } else if (from == m_moves.front().first) {
                    m_moved = to;
                }
            }
            const std::filesystem::path& path = m_moves.front().first;
            if (path != m_link && !existsAt(path)) {
                removeIfStill(m_link, session.get());
                ::rmdir(path.parent_path().c_str());
            }
        });
    }
    /// Once they are made: whether any of them failed, and where the session's file has gone; empty where it has not.
    bool hasFailed() const { return m_hasFailed; }
    const std::filesystem::path& moved() const { return m_moved; }

private:
    std::vector<std::pair<std::filesystem::path, std::filesystem::path>> m_moves;
    std::filesystem::path m_link;
    bool m_hasFailed = false;
    std::once_flag m_once;
    std::filesystem::path m_moved;
};

SessionFile::SessionFile(const Services& services, QObject* parent) : QObject(parent), m_services(services) {
    connect(&m_services.rescue, &RecordingRescue::rescued, this,
            [this](const std::filesystem::path& path) { m_services.cloud.save(path); });
}

SessionFile::~SessionFile() = default;

void SessionFile::updateRecordFilePath() {
    std::filesystem::path name = kName;
    name += nativePath(QLatin1Char('.') + m_services.settings.audioFileType());
    m_recordFilePath = m_services.container.cachesPath() / name;
}

void SessionFile::begin() {
    m_services.formatHold.setHeld(true);
    // The type may have changed since the screen appeared, and the file is to be of the type that it is saved as.
    updateRecordFilePath();
    clearRecordFilePath();
    m_linkPath = m_recordFilePath;
    auto folder = LockedFolder::create(m_services.container.unsavedPath(),
                                       nativePath(fileBaseName(m_services.runLoop.clock().now(), QLocale())).native());
    m_folder = folder ? std::optional(std::move(*folder)) : std::nullopt;
    m_sessionPath = m_folder ? m_folder->path() / m_linkPath.filename() : m_linkPath;
    m_services.rescue.rescue();
}

void SessionFile::clearRecordFilePath() const {
    struct stat attributes = {};
    if (::lstat(m_recordFilePath.c_str(), &attributes) != 0) {
        return;
    }
    if (S_ISREG(attributes.st_mode) && attributes.st_nlink == 1) {
        // It has no other name, so it is sound that is nowhere else; under the new one it is rescued.
        stepAside(m_recordFilePath);
    } else {
        removeAt(m_recordFilePath);
    }
}

void SessionFile::didCreate() const {
    ::link(m_sessionPath.c_str(), m_linkPath.c_str());
}

void SessionFile::abandon() {
    leave(true);
}

void SessionFile::leave(bool needsRescue) {
    m_folder.reset();
    m_services.formatHold.setHeld(false);
    if (needsRescue) {
        m_services.rescue.rescue();
    }
}

void SessionFile::saveFileToDoc(const QString& name, bool endedByItself) {
    m_endedByItself = endedByItself;
    const std::filesystem::path base = m_services.container.documentsPath() / nativePath(name);
    const auto named = [&base](const std::string& extension) {
        return std::filesystem::path(base.native() + extension);
    };
    std::filesystem::path destination = named('.' + m_services.settings.audioFileType().toStdString());
    std::vector<std::pair<std::filesystem::path, std::filesystem::path>> moves;
    if (m_linkPath != m_recordFilePath) {
        // Somebody has edited the type in the settings' file, and the screen has appeared since: the path is another
        // one by now, and what lies there is saved as well.
        moves.emplace_back(m_recordFilePath, destination);
        destination = named(m_sessionPath.extension());
    }
    moves.emplace(moves.begin(), m_sessionPath, destination);
    m_moves = std::make_shared<Moves>(std::move(moves), m_linkPath);
    const QPointer<SessionFile> self(this);
    RunLoop& runLoop = m_services.runLoop;
    // Another file system takes as long as copying hours of sound takes.
    runLoop.dispatchBackground([self, &runLoop, moves = m_moves] {
        moves->make();
        runLoop.dispatchMain([self] {
            if (self) {
                self->didMove();
            }
        });
    });
}

void SessionFile::didMove() {
    const std::shared_ptr<Moves> moves = std::exchange(m_moves, nullptr);
    leave(moves->hasFailed());
    if (!moves->moved().empty()) {
        m_services.cloud.save(moves->moved());
        // What was not moved has no mail: another recording may be at the path that this one was to have.
        const auto mail = [self = QPointer(this), path = moves->moved()] {
            if (self && self->m_services.settings.isQuickMailOn()) {
                self->emailAudioFile(path);
            }
        };
        m_services.runLoop.dispatchAfter(kMailDelay, mail);
    }
    m_services.notifications.postNotification(kDataUpdatedNotification);
    say(moves->moved());
    Q_EMIT saved(pathText(moves->moved().filename()));
}

void SessionFile::say(const std::filesystem::path& moved) {
    if (moved.empty()) {
        // The rescue does, once it knows.
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
        m_services.mailComposer.compose(mailWithAudioFile(path), [](const Result<MailComposeResult>& result) {
            if (!result) {
                qCWarning(lcRecording, "%s", qPrintable(result.error().text));
            }
        });
    }
}

}  // namespace tavi
