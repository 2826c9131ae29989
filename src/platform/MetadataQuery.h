#pragma once

#include <QDateTime>
#include <QString>
#include <filesystem>
#include <functional>
#include <memory>
#include <vector>

namespace tavi {

/// How much of a cloud's file is on this machine.
enum class DownloadingStatus {
    /// Nothing: it can be asked for.
    NotDownloaded,
    /// An older version.
    Downloaded,
    /// The version that the cloud has.
    Current,
};

/// A file in the cloud's container, here or only elsewhere.
struct MetadataItem {
    /// Where it is, or will be once it has been downloaded.
    std::filesystem::path url;
    std::filesystem::path fileSystemName;
    DownloadingStatus downloadingStatus = DownloadingStatus::Current;
};

/// A live list of the files in the documents folder of the cloud's container, in an order that stays: by name. Main
/// thread only, but that nothing waits for a disk or a server.
class MetadataQuery {
public:
    /// Called on the main thread, never from within startQuery(). A gathering has a start and a finish; every change
    /// afterwards is an update.
    struct Observers {
        std::function<void()> didStartGathering;
        std::function<void()> didUpdate;
        std::function<void()> didFinishGathering;
    };

    virtual ~MetadataQuery() = default;

    virtual void setObservers(Observers observers) = 0;
    /// Which files to list, by the path extension of their names: "*" stands for any text, also none, "?" for one
    /// character. "*" alone lists every file.
    virtual void setExtensionLike(const QString& pattern) = 0;
    /// Gathers, and follows changes from then on. False where it runs already or there is no container.
    virtual bool startQuery() = 0;
    virtual void stopQuery() = 0;
    /// As of the last call of an observer.
    virtual std::vector<MetadataItem> results() const = 0;
};

/// Makes queries; outlives them.
class MetadataQueries {
public:
    virtual ~MetadataQueries() = default;
    virtual std::unique_ptr<MetadataQuery> metadataQuery() = 0;
};

}  // namespace tavi
