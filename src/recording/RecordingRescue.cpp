#include "recording/RecordingRescue.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>

#include <QCoreApplication>
#include <QFileInfo>
#include <QLocale>
#include <QLoggingCategory>
#include <QPointer>
#include <algorithm>

#include "app/settings/FormatHold.h"
#include "files/FileDescriptor.h"
#include "files/FileMove.h"
#include "files/FileNames.h"
#include "files/LockedFolder.h"
#include "files/PathText.h"
#include "library/utility/DateTexts.h"
#include "library/utility/Notifications.h"
#include "recording/SessionFile.h"

namespace tavi {

namespace {

Q_LOGGING_CATEGORY(lcRescue, "tavi.rescue", QtInfoMsg)

using Rescued = RecordingRescue::Rescued;

/// Seconds between two tries to save what waits.
constexpr double kRetryInterval = 30.0;

std::vector<std::filesystem::path> sortedItems(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> items;
    std::error_code error;
    for (std::filesystem::directory_iterator item(folder, error), end; !error && item != end; item.increment(error)) {
        items.push_back(item->path());
    }
    std::sort(items.begin(), items.end());
    return items;
}

/// Moves a recording from the caches folder into one of its own, named by when it was made.
void takeIn(const std::filesystem::path& file, const std::filesystem::path& unsaved) {
    const QFileInfo info(pathText(file));
    const QDateTime made = info.birthTime().isValid() ? info.birthTime() : info.lastModified();
    auto folder = LockedFolder::create(unsaved, nativePath(fileBaseName(made, QLocale())).native());
    if (folder && !moveItem(file, folder->path() / file.filename())) {
        folder->remove();
    }
}

/// Takes in what lies where recordings have their second names: what a program left that had no other place for it, or
/// stepped aside for a later one. Second names that nobody needs any more go.
void clearCaches(const AppContainer& container) {
    const auto leave = FormatHold::leaveToChange(container);
    for (const std::filesystem::path& file : sortedItems(container.cachesPath())) {
        struct stat attributes = {};
        const bool isSession = file.stem() == SessionFile::kName;
        if (!file.filename().native().starts_with(SessionFile::kName) || (isSession && !leave) ||
            ::lstat(file.c_str(), &attributes) != 0 || !S_ISREG(attributes.st_mode)) {
            continue;
        }
        attributes.st_nlink > 1 ? removeAt(file) : takeIn(file, container.unsavedPath());
    }
}

Rescued rescueFile(const std::filesystem::path& file, const AppContainer& container, AudioFileRepair& repair) {
    const auto hasSound = repair.repair(file);
    if (!hasSound) {
        return {Rescued::Outcome::Kept, file, hasSound.error().text};
    }
    // The second name of a recording would keep it on the disk once the user deletes it.
    const FileDescriptor open = FileDescriptor::open(file, O_RDONLY | O_NONBLOCK);
    removeIfStill(container.cachesPath() / file.filename(), open.get());
    if (!*hasSound) {
        removeAt(file);
        return {Rescued::Outcome::Dropped, file};
    }
    const std::filesystem::path documents = container.documentsPath();
    std::error_code ignored;
    std::filesystem::create_directories(documents, ignored);
    const std::string name = "Recovered_" + file.parent_path().filename().native() + file.extension().native();
    std::filesystem::path saved = freePath(documents / name);
    const auto moved = moveItem(file, saved);
    return moved ? Rescued{Rescued::Outcome::Saved, std::move(saved)}
                 : Rescued{Rescued::Outcome::Kept, file, errorOf(moved.error()).text};
}

}  // namespace

std::vector<Rescued> RecordingRescue::rescueAll(const AppContainer& container, AudioFileRepair& repair) {
    clearCaches(container);
    std::vector<Rescued> all;
    for (const std::filesystem::path& path : sortedItems(container.unsavedPath())) {
        auto folder = LockedFolder::lock(path);
        if (!folder) {
            if (errno == EWOULDBLOCK) {
                all.push_back({Rescued::Outcome::InUse, path});
            }
            continue;
        }
        for (const std::filesystem::path& file : folder->files()) {
            all.push_back(rescueFile(file, container, repair));
        }
        folder->remove();
    }
    return all;
}

RecordingRescue::RecordingRescue(const Services& services, QObject* parent) : QObject(parent), m_services(services) {}

void RecordingRescue::rescue() {
    if (m_isRunning) {
        m_isAskedAgain = true;
        return;
    }
    m_isRunning = true;
    if (m_retry) {
        m_retry->invalidate();
    }
    const QPointer<RecordingRescue> self(this);
    m_services.runLoop.dispatchBackground([self, services = m_services] {
        services.runLoop.dispatchMain([self, all = rescueAll(services.container, services.repair)] {
            if (self) {
                self->didRescue(all);
            }
        });
    });
}

void RecordingRescue::didRescue(const std::vector<Rescued>& all) {
    m_isRunning = false;
    std::vector<QString> saved;
    std::set<std::filesystem::path> waiting;
    for (const Rescued& one : all) {
        if (one.outcome == Rescued::Outcome::Saved) {
            saved.push_back(pathText(one.path.filename()));
            Q_EMIT rescued(one.path);
        } else if (one.outcome == Rescued::Outcome::Kept) {
            qCWarning(lcRescue, "%s", qPrintable(one.reason));
            waiting.insert(one.path);
        }
    }
    const bool isNew = !std::includes(m_waiting.begin(), m_waiting.end(), waiting.begin(), waiting.end());
    m_waiting = std::move(waiting);
    if (!saved.empty()) {
        m_services.notifications.postNotification(kDataUpdatedNotification);
        m_services.notices.postNotice({saved.size() == 1
                                           ? qtTrId("rescue_saved").arg(saved.front())
                                           : qtTrId("rescue_saved_many", static_cast<int>(saved.size()))});
    } else if (isNew) {
        m_services.notices.postNotice({qtTrId("rescue_waits")});
    }
    if (std::exchange(m_isAskedAgain, false)) {
        rescue();
    } else if (!m_waiting.empty()) {
        const QPointer<RecordingRescue> self(this);
        m_retry = m_services.runLoop.scheduledTimer(kRetryInterval, false, [self] {
            if (self) {
                self->rescue();
            }
        });
    }
}

}  // namespace tavi
