#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <memory>
#include <set>

#include "adapters/folder/FolderDocument.h"
#include "adapters/folder/FolderThread.h"
#include "files/FileDescriptor.h"
#include "files/FolderListing.h"
#include "platform/CloudMirror.h"
#include "platform/FileCoordinator.h"
#include "platform/MetadataQuery.h"
#include "platform/NotificationCenter.h"
#include "platform/RunLoop.h"
#include "platform/Trash.h"
#include "platform/UbiquityContainer.h"

namespace tavi {

class FolderQuery;

/// The cloud's container as a folder, which another program keeps in sync, or a mirror. The folder is a container as
/// long as it has its mark: where a disk is not mounted nothing is written in its place. Changes are heard from the
/// kernel (inotify); where that does not tell, as on a network's disks, the folder is looked at with every question.
/// Main thread only, but where a port says otherwise.
class FolderCloud : public QObject,
                    public UbiquityContainer,
                    public MetadataQueries,
                    public Documents,
                    public FileCoordinator {
    Q_OBJECT

public:
    /// What it works with; all of it must outlive this.
    struct Services {
        RunLoop& runLoop;
        NotificationCenter& notifications;
        Trash& trash;
        /// Held while files are coordinated.
        std::filesystem::path lockPath;
        /// Of this machine, for the names of conflicts.
        QString device;
    };
    /// Where the cloud is. Without a token there is none.
    struct Place {
        std::filesystem::path container;
        QString token;
        /// Null where another program keeps the folder in sync.
        std::shared_ptr<CloudMirror> mirror;
        /// Whether a mirror keeps it in step, be it here now or not: what it does not hear of is not removed or
        /// renamed.
        bool isMirrored = false;
    };

    FolderCloud(const Services& services, const Place& place);
    ~FolderCloud() override;

    /// Takes another place, and tells who listens for that.
    void setPlace(const Place& place);

    std::optional<std::filesystem::path> urlForUbiquityContainerIdentifier(const QString& identifier) override;
    QString ubiquityIdentityToken() const override { return m_place.token; }
    std::vector<std::filesystem::path> contentsOfDirectory(const std::filesystem::path& folder) override;
    std::optional<UbiquityItemAttributes> attributesOfItem(const std::filesystem::path& url) override;
    Result<void> startDownloadingUbiquitousItem(const std::filesystem::path& url) override;
    void evictUbiquitousItem(const std::filesystem::path& url, Completion completion) override;
    /// The file here goes to the desktop's trash.
    void removeItem(const std::filesystem::path& url, Completion completion) override;
    void moveItem(const std::filesystem::path& from, const std::filesystem::path& to, Completion completion) override;

    std::unique_ptr<MetadataQuery> metadataQuery() override;
    std::unique_ptr<Document> documentWithFileURL(const std::filesystem::path& url, DocumentClient& client) override;
    std::vector<FileVersion> unresolvedConflictVersionsOfItem(const std::filesystem::path& url) override;
    void resolveConflict(const std::filesystem::path& url, const FileVersion& version, Completion completion) override;
    void coordinate(std::function<void()> accessor, std::function<void()> completion) override;

    /// For its queries: which look will have found all that is there now, the first one from here or the second; 0
    /// where the query runs already or there is no account.
    int addQuery(FolderQuery& query);
    void removeQuery(FolderQuery& query) { m_queries.erase(&query); }
    std::filesystem::path documentsFolder() const { return m_place.container / kUbiquityDocumentsFolder; }
    /// As of the last look.
    const std::map<std::filesystem::path, DownloadingStatus>& knownItems() const { return m_items; }
    /// The same; another one follows.
    const std::map<std::filesystem::path, DownloadingStatus>& items();

Q_SIGNALS:
    /// A look has found something else than the one before.
    void changed();

private:
    void look();
    void didLook(const FolderListing& listing);
    void readEvents();
    /// Does something on the thread that can fail, then looks.
    void perform(std::function<Result<void>()> job, Completion completion);
    ConflictStamp stamp() const { return {m_services.runLoop.clock().now(), m_services.device}; }

    Services m_services;
    /// For those who read it on another thread; the main thread alone writes it.
    std::mutex m_placeMutex;
    Place m_place;
    std::set<FolderQuery*> m_queries;
    FolderListing m_listing;
    std::map<std::filesystem::path, DownloadingStatus> m_items;
    /// What was listed last of each folder.
    std::map<std::filesystem::path, std::vector<std::filesystem::path>> m_contents;
    std::shared_ptr<const FileDescriptor> m_events;
    std::unique_ptr<QSocketNotifier> m_notifier;
    bool m_isLooking = false, m_isAskedAgain = false, m_isTimed = false;
    FolderThread m_thread{m_services.runLoop};
    /// A long file that is being written says nothing of whether the folder is there.
    FolderThread m_finder{m_services.runLoop};
};

}  // namespace tavi
