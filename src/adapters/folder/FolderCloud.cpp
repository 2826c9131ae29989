#include "adapters/folder/FolderCloud.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QPointer>
#include <array>
#include <cerrno>
#include <utility>

#include "adapters/folder/FolderQuery.h"
#include "files/ConflictNames.h"
#include "files/FileMove.h"
#include "files/FileNames.h"
#include "files/PathText.h"

namespace tavi {

namespace {

using namespace std::chrono_literals;

/// Less than a frame.
constexpr auto kAtOnce = 12ms;
constexpr auto kPatience = 5s;
/// What changes together is looked at together, such as the parts of a file that grows.
constexpr double kSettling = 0.2;

QDateTime timeOf(const timespec& time) {
    return QDateTime::fromMSecsSinceEpoch(time.tv_sec * 1000 + time.tv_nsec / 1'000'000);
}

Result<void> moveWithoutReplacing(const std::filesystem::path& from, const std::filesystem::path& to) {
    const int error = renameWithoutReplacing(from, to);
    return error == 0 ? Result<void>() : failure(QString::fromStdString(writeErrorText(error)));
}

/// Watches a folder; where it is missing, for its coming.
void watch(int events, std::filesystem::path folder) {
    constexpr std::uint32_t kChanges = IN_CREATE | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO | IN_CLOSE_WRITE |
                                       IN_DELETE_SELF | IN_MOVE_SELF | IN_ONLYDIR;
    constexpr std::uint32_t kComing = IN_CREATE | IN_MOVED_TO | IN_ONLYDIR | IN_ONESHOT;
    // It is made by the first file that is saved.
    const bool isWatched = ::inotify_add_watch(events, folder.c_str(), kChanges) >= 0 ||
                           ::inotify_add_watch(events, folder.parent_path().c_str(), kChanges) >= 0;
    // The container itself is gone, such as with a disk.
    for (folder = folder.parent_path(); !isWatched && folder.has_relative_path();) {
        folder = folder.parent_path();
        if (::inotify_add_watch(events, folder.c_str(), kComing) >= 0) {
            break;
        }
    }
}

/// A removal that nobody notes would be undone by what the server still has.
Result<void> mirrorMissing() {
    return failure(qtTrId("error_cloud_untold"));
}

Result<void> notOurs() {
    return failure(qtTrId("error_cloud_foreign"));
}

}  // namespace

FolderCloud::FolderCloud(const Services& services, const Place& place)
    : m_services(services), m_events(std::make_shared<FileDescriptor>(::inotify_init1(IN_CLOEXEC | IN_NONBLOCK))) {
    if (m_events->isValid()) {
        m_notifier = std::make_unique<QSocketNotifier>(m_events->get(), QSocketNotifier::Read);
        connect(m_notifier.get(), &QSocketNotifier::activated, this, &FolderCloud::readEvents);
    }
    setPlace(place);
}

FolderCloud::~FolderCloud() {
    if (m_place.mirror != nullptr) {
        m_place.mirror->setObserver(nullptr);
    }
}

void FolderCloud::setPlace(const Place& place) {
    if (m_place.token == place.token && m_place.mirror == place.mirror && m_place.container == place.container) {
        return;
    }
    if (m_place.mirror != nullptr) {
        m_place.mirror->setObserver(nullptr);
    }
    const bool isOther = m_place.token != place.token;
    {
        const std::lock_guard lock(m_placeMutex);
        m_place = place;
    }
    if (isOther) {
        m_items.clear();
        m_contents.clear();
    }
    // So that a new mirror hears of what is there.
    m_listing.clear();
    if (m_place.mirror != nullptr) {
        m_place.mirror->setObserver([&runLoop = m_services.runLoop, self = QPointer(this)] {
            runLoop.dispatchMain([self] { self ? self->look() : void(); });
        });
    }
    if (isOther) {
        m_services.notifications.postNotification(kUbiquityIdentityDidChangeNotification);
    }
    look();
}

std::optional<std::filesystem::path> FolderCloud::urlForUbiquityContainerIdentifier(const QString& /*identifier*/) {
    // There is one container, whatever its identifier.
    const Place place = [this] {
        const std::lock_guard lock(m_placeMutex);
        return m_place;
    }();
    if (place.token.isEmpty()) {
        return std::nullopt;
    }
    const auto found =
        m_finder.within<bool>(kPatience, [container = place.container] { return isContainer(container); });
    return found.value_or(false) ? std::optional(place.container) : std::nullopt;
}

std::vector<std::filesystem::path> FolderCloud::contentsOfDirectory(const std::filesystem::path& folder) {
    using Paths = std::vector<std::filesystem::path>;
    if (auto paths = m_thread.within<Paths>(kAtOnce, [folder] {
            Paths listed;
            for (const auto& [name, identity] : listFolder(folder)) {
                listed.push_back(folder / name);
            }
            return listed;
        })) {
        m_contents[folder] = std::move(*paths);
    }
    return m_contents[folder];
}

std::optional<UbiquityItemAttributes> FolderCloud::attributesOfItem(const std::filesystem::path& url) {
    using Attributes = std::optional<UbiquityItemAttributes>;
    return m_thread
        .within<Attributes>(
            kAtOnce,
            [url]() -> Attributes {
                struct statx found = {};
                if (::statx(AT_FDCWD, url.c_str(), AT_SYMLINK_NOFOLLOW, STATX_BASIC_STATS | STATX_BTIME, &found) != 0 ||
                    !S_ISREG(found.stx_mode)) {
                    return std::nullopt;
                }
                const auto& birth = (found.stx_mask & STATX_BTIME) != 0 ? found.stx_btime : found.stx_mtime;
                return UbiquityItemAttributes{found.stx_size, timeOf({found.stx_mtime.tv_sec, found.stx_mtime.tv_nsec}),
                                              timeOf({birth.tv_sec, birth.tv_nsec})};
            })
        .value_or(std::nullopt);
}

Result<void> FolderCloud::startDownloadingUbiquitousItem(const std::filesystem::path& url) {
    return m_place.mirror != nullptr ? m_place.mirror->download(url.filename()) : notOurs();
}

void FolderCloud::perform(std::function<Result<void>()> job, Completion completion) {
    const auto result = std::make_shared<Result<void>>();
    m_thread.post([result, job = std::move(job)] { *result = job(); },
                  [self = QPointer(this), result, completion = std::move(completion)] {
                      self ? self->look() : void();
                      completion ? completion(*result) : void();
                  });
}

void FolderCloud::evictUbiquitousItem(const std::filesystem::path& url, Completion completion) {
    perform(
        [mirror = m_place.mirror, url]() -> Result<void> {
            Result<void> allowed = mirror != nullptr ? mirror->willEvict(url.filename()) : notOurs();
            if (allowed) {
                removeAt(url);
            }
            return allowed;
        },
        std::move(completion));
}

void FolderCloud::removeItem(const std::filesystem::path& url, Completion completion) {
    perform(
        [mirror = m_place.mirror, isMirrored = m_place.isMirrored, &trash = m_services.trash, url]() -> Result<void> {
            if (isMirrored && mirror == nullptr) {
                return mirrorMissing();
            }
            if (mirror != nullptr) {
                if (Result<void> noted = mirror->willRemove(url.filename()); !noted) {
                    return noted;
                }
                if (!existsAt(url)) {
                    return {};
                }
            }
            const auto trashed = trash.moveToTrash(url);
            if (!trashed && mirror != nullptr) {
                mirror->didNotRemove(url.filename());
            }
            return trashed ? Result<void>() : tl::unexpected(trashed.error());
        },
        std::move(completion));
}

void FolderCloud::moveItem(const std::filesystem::path& from, const std::filesystem::path& to, Completion completion) {
    perform(
        [mirror = m_place.mirror, isMirrored = m_place.isMirrored, from, to]() -> Result<void> {
            if (isMirrored && mirror == nullptr) {
                return mirrorMissing();
            }
            if (existsAt(to)) {
                return failure(QString::fromStdString(writeErrorText(EEXIST)));
            }
            if (mirror != nullptr) {
                if (Result<void> noted = mirror->willMove(from.filename(), to.filename()); !noted) {
                    return noted;
                }
                if (!existsAt(from)) {
                    return {};
                }
            }
            Result<void> moved = moveWithoutReplacing(from, to);
            if (!moved && mirror != nullptr) {
                mirror->didNotMove(from.filename(), to.filename());
            }
            return moved;
        },
        std::move(completion));
}

std::unique_ptr<MetadataQuery> FolderCloud::metadataQuery() {
    return std::make_unique<FolderQuery>(*this);
}

std::unique_ptr<Document> FolderCloud::documentWithFileURL(const std::filesystem::path& url, DocumentClient& client) {
    return std::make_unique<FolderDocument>(m_thread, url, client, [this] { return stamp(); });
}

std::vector<FileVersion> FolderCloud::unresolvedConflictVersionsOfItem(const std::filesystem::path& url) {
    std::vector<FileVersion> versions;
    for (const std::filesystem::path& path : contentsOfDirectory(url.parent_path())) {
        if (originalOfConflict(path.filename()) == url.filename()) {
            const auto attributes = attributesOfItem(path);
            versions.push_back({path, attributes ? attributes->modified : QDateTime()});
        }
    }
    return versions;
}

void FolderCloud::resolveConflict(const std::filesystem::path& url, const FileVersion& version, Completion completion) {
    std::vector<std::filesystem::path> others;
    for (const FileVersion& each : unresolvedConflictVersionsOfItem(url)) {
        if (each.url != version.url) {
            others.push_back(each.url);
        }
    }
    perform(
        [&trash = m_services.trash, others, url, chosen = version.url]() -> Result<void> {
            if (chosen != url) {
                if (const auto trashed = trash.moveToTrash(url); !trashed) {
                    return tl::unexpected(trashed.error());
                }
                if (Result<void> moved = moveWithoutReplacing(chosen, url); !moved) {
                    return moved;
                }
            }
            for (const std::filesystem::path& other : others) {
                if (const auto trashed = trash.moveToTrash(other); !trashed) {
                    return tl::unexpected(trashed.error());
                }
            }
            return {};
        },
        std::move(completion));
}

void FolderCloud::coordinate(std::function<void()> accessor, std::function<void()> completion) {
    m_thread.post(
        [lockPath = m_services.lockPath, accessor = std::move(accessor)] {
            const FileDescriptor lock = FileDescriptor::open(lockPath, O_RDWR | O_CREAT, 0600);
            // Where there are no locks, there are no others either that take them.
            while (::flock(lock.get(), LOCK_EX) != 0 && errno == EINTR) {
            }
            accessor();
        },
        std::move(completion));
}

int FolderCloud::addQuery(FolderQuery& query) {
    if (m_place.token.isEmpty() || !m_queries.insert(&query).second) {
        return 0;
    }
    const int looks = m_isLooking ? 2 : 1;
    look();
    return looks;
}

const std::map<std::filesystem::path, DownloadingStatus>& FolderCloud::items() {
    look();
    return m_items;
}

void FolderCloud::look() {
    if (m_place.token.isEmpty()) {
        return;
    }
    if (m_isLooking) {
        m_isAskedAgain = true;
        return;
    }
    m_isLooking = true;
    const auto listing = std::make_shared<FolderListing>();
    m_thread.post(
        [listing, folder = documentsFolder(), events = m_events] {
            // Before the look, so that what changes afterwards is heard; harmless where it is watched already.
            watch(events->get(), folder);
            *listing = listFolder(folder);
        },
        [self = QPointer(this), listing, token = m_place.token] {
            if (self) {
                self->m_isLooking = false;
                token == self->m_place.token ? self->didLook(*listing) : self->look();
            }
        });
}

void FolderCloud::didLook(const FolderListing& listing) {
    std::map<std::filesystem::path, DownloadingStatus> found;
    for (const auto& [name, identity] : listing) {
        found[name] = DownloadingStatus::Current;
    }
    if (m_place.mirror != nullptr) {
        if (listing != m_listing) {
            m_place.mirror->documentsChanged();
        }
        for (const auto& [name, state] : m_place.mirror->states()) {
            if (state == MirrorState::OnlyThere && !listing.contains(name)) {
                found[name] = DownloadingStatus::NotDownloaded;
            } else if (state == MirrorState::Arriving || state == MirrorState::Old) {
                found[name] = DownloadingStatus::Downloaded;
            }
        }
    }
    const bool hasChanged = m_items != found || m_listing != listing;
    m_listing = listing;
    m_items = std::move(found);
    const std::set<FolderQuery*> queries = m_queries;
    for (FolderQuery* query : queries) {
        if (m_queries.contains(query)) {
            query->didLook(hasChanged);
        }
    }
    if (hasChanged) {
        Q_EMIT changed();
    }
    if (std::exchange(m_isAskedAgain, false)) {
        look();
    }
}

void FolderCloud::readEvents() {
    std::array<char, 4096> events{};
    while (::read(m_events->get(), events.data(), events.size()) > 0) {
    }
    if (!std::exchange(m_isTimed, true)) {
        m_services.runLoop.dispatchAfter(kSettling, [self = QPointer(this)] {
            if (self) {
                self->m_isTimed = false;
                self->look();
            }
        });
    }
}

}  // namespace tavi
