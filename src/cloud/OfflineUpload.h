#pragma once

#include <QObject>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "cloud/CloudDocuments.h"
#include "platform/DispatchQueues.h"
#include "platform/FileCoordinator.h"

namespace tavi {

/// What becomes of a file that is on this machine and in the cloud.
enum class UploadAction { Upload, DeleteLocalAsOlder, OverwriteCloud, DeleteLocalAsEqual, LeaveBoth };

/// The two files as they are compared. Without a date of the cloud's there is no file there.
struct UploadComparison {
    QDateTime localDate;
    QDateTime cloudDate;
    bool haveEqualContents = false;
};

/// By the date of the last change, and by contents only where those are equal.
UploadAction uploadAction(const UploadComparison& comparison);

/// One pass over the recordings of this machine, which brings them into the cloud. Main thread only.
class OfflineUpload : public std::enable_shared_from_this<OfflineUpload> {
public:
    using RepeatingHandler =
        std::function<void(const std::filesystem::path& name, const std::optional<CloudError>& error)>;
    using Log = std::function<void(const QString& message, bool onlyWhileVerbose)>;

    struct Services {
        CloudDocuments& cloud;
        FileCoordinator& coordinator;
        DispatchQueues& queues;
        Log log;
    };

    OfflineUpload(Services services, std::filesystem::path local, std::filesystem::path cloud)
        : m_services(std::move(services)), m_local(std::move(local)), m_cloud(std::move(cloud)) {}

    /// All of them, one after the other.
    void uploadAll(RepeatingHandler handler, std::function<void()> completion);
    void uploadOne(const std::filesystem::path& name, CloudDocuments::ErrorCompletion completion);

private:
    void next();
    void compared(const std::filesystem::path& name, const UploadComparison& comparison,
                  const CloudDocuments::ErrorCompletion& completion);
    void save(const std::filesystem::path& name, const CloudDocuments::ErrorCompletion& completion);
    void deleteLocal(const std::filesystem::path& name, const CloudDocuments::ErrorCompletion& completion);
    void askDelegate(const std::filesystem::path& name);

    Services m_services;
    std::filesystem::path m_local;
    std::filesystem::path m_cloud;
    std::vector<std::filesystem::path> m_names;
    std::size_t m_done = 0;
    RepeatingHandler m_handler;
    std::function<void()> m_completion;
};

}  // namespace tavi
