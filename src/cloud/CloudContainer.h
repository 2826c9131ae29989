#pragma once

#include <QObject>
#include <filesystem>
#include <functional>
#include <optional>
#include <vector>

#include "cloud/CloudDocuments.h"
#include "platform/AppContainer.h"
#include "platform/DispatchQueues.h"
#include "platform/Document.h"
#include "platform/FileCoordinator.h"
#include "platform/NotificationCenter.h"
#include "platform/UbiquityContainer.h"

namespace tavi {

/// What the cloud's documents work with; all of it must outlive them.
struct CloudServices {
    UbiquityContainer& container;
    MetadataQueries& queries;
    Documents& documents;
    FileCoordinator& coordinator;
    NotificationCenter& notifications;
    const AppContainer& folders;
    DispatchQueues& queues;
};

/// The container of the cloud and its folder of documents, and who hears of them. Main thread only.
class CloudContainer : public QObject, public CloudDocuments {
    Q_OBJECT

public:
    explicit CloudContainer(const CloudServices& services) : m_services(services) {}

    void setDelegate(CloudDelegate* delegate) override { m_delegate = delegate; }
    CloudDelegate* delegate() const override { return m_delegate; }
    void setVerboseLogging(bool isVerbose) override { m_isVerbose = isVerbose; }
    /// Whether every look at the account says in full what it found.
    void setVerboseAvailabilityLogging(bool isVerbose) { m_isAvailabilityVerbose = isVerbose; }

    /// The container as it was found last; empty while there is none.
    const std::filesystem::path& ubiquityContainer() const { return m_container; }
    std::filesystem::path ubiquitousContainerURL() const { return m_container; }
    bool quickCloudCheck() const override { return !m_services.container.ubiquityIdentityToken().isEmpty(); }
    /// Tells the delegate whether there is an account.
    void checkCloudAvailability();
    /// Looks for the container anew, and remembers it.
    void checkCloudUbiquityContainer();
    /// The folder of documents in the container. Without a container that of the recordings, which is logged and told
    /// as unavailable. Where it is missing it is made, in time for whatever is done with it here.
    std::filesystem::path ubiquitousDocumentsDirectoryURL();
    std::optional<std::vector<std::filesystem::path>> listCloudFiles() override;

protected:
    /// Looks for a container in the background, and then calls on the main thread.
    void findContainer(const QString& identifier, const std::function<void()>& found);
    /// Calls with the folder of documents once it is there, and whether it is in the cloud.
    void withDocuments(std::function<void(const std::filesystem::path& folder, bool isInCloud)> act);
    void reportUnavailable();
    void logMissingContainer() const;
    bool isVerbose() const { return m_isVerbose; }
    /// Logs; only while verbose.
    void verbose(const QString& message) const;
    void log(const QString& message) const;
    const CloudServices& services() const { return m_services; }

private:
    CloudServices m_services;
    CloudDelegate* m_delegate = nullptr;
    std::filesystem::path m_container;
    bool m_isVerbose = false;
    bool m_isAvailabilityVerbose = false;
};

}  // namespace tavi
