#pragma once

#include <filesystem>

#include "app/settings/SettingsStore.h"
#include "cloud/CloudDocuments.h"
#include "platform/Presenter.h"
#include "platform/RunLoop.h"

namespace tavi {

/// The recording screen's part in the cloud: it looks for the container, says where there is none, and saves what is
/// recorded there. Nothing while the cloud is off in the settings. Main thread only.
class RecordingCloud : private CloudDelegate {
public:
    /// What it works with; all of it must outlive this.
    struct Services {
        CloudDocuments& documents;
        SettingsStore& settings;
        Presenter& presenter;
        RunLoop& runLoop;
    };

    explicit RecordingCloud(const Services& services) : m_services(services) {}
    ~RecordingCloud() override;

    /// The screen was loaded.
    void viewDidLoad();
    /// Saves a recording there under its name; what comes of it is logged.
    void save(const std::filesystem::path& path);
    void refreshCloudList() { m_services.documents.updateFiles(); }
    void refreshCloudListAfterSetup();

private:
    void iCloudAvailabilityDidChangeToState(bool isAvailable, const QString& token,
                                            const std::filesystem::path& container) override;

    Services m_services;
};

}  // namespace tavi
