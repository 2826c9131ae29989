#pragma once

#include <QObject>
#include <filesystem>
#include <memory>
#include <optional>
#include <set>
#include <span>
#include <utility>
#include <vector>

#include "cloud/CloudConnection.h"
#include "cloud/CloudDocuments.h"
#include "library/CloudCache.h"
#include "library/RecordingTable.h"
#include "platform/Presenter.h"
#include "platform/Reachability.h"

namespace tavi {

/// The second section of the library: fetches the files of the cloud into their cache, and says how each is. Nothing
/// while the cloud is off in the settings. Main thread only; files are copied in the background.
///
/// The cache is made anew whenever the library appears. What arrives later joins it by itself.
class CloudSection : public QObject, private CloudDelegate {
    Q_OBJECT
    Q_PROPERTY(bool isRefreshing READ isRefreshing NOTIFY changed)
    Q_PROPERTY(bool canRefresh READ canRefresh NOTIFY changed)

public:
    /// All of it must outlive this.
    struct Services {
        CloudDocuments& documents;
        CloudConnection& connection;
        RecordingTable& table;
        SettingsStore& settings;
        const AppContainer& container;
        RunLoop& runLoop;
        Presenter& presenter;
        const Reachability& reachability;
    };

    explicit CloudSection(const Services& services, QObject* parent = nullptr);
    ~CloudSection() override;

    /// Whether a refresh is shown as under way.
    bool isRefreshing() const { return m_isRefreshing; }
    bool canRefresh() const { return m_services.settings.isCloudSyncOn(); }

    /// The screen appears: first before its own list is built, then after.
    void viewWillAppear();
    void listAppeared();
    /// Asks once more for a file that has not come.
    void askFor(const std::filesystem::path& name);

public Q_SLOTS:
    /// The user pulls the list, or presses the keys for it.
    void refresh();
    void refreshCloudList();
    void refreshCloudListAfterSetup();
    /// Fetches what the cloud lists now, and shows it.
    void getCloudDocuments();

Q_SIGNALS:
    void changed();
    /// The expanded row is to collapse.
    void resetRequested();
    /// Files have come among the recordings.
    void reloadRequested();

private:
    using Names = std::vector<std::filesystem::path>;

    void iCloudDidFinishInitializingWitUbiquityToken(const QString& token,
                                                     const std::filesystem::path& container) override;
    void iCloudAvailabilityDidChangeToState(bool isAvailable, const QString& token,
                                            const std::filesystem::path& container) override;
    void iCloudFilesDidChange(std::span<const MetadataItem> files,
                              std::span<const std::filesystem::path> names) override;

    /// Looks for the container.
    void setUp();
    /// Empties the cache, all of it or of what is no longer listed, and fetches the files.
    void start(const Names& names, bool isAnew);
    void startNext();
    void ICloudDeleteFile(bool isAnew);
    void getCloudFile();
    void fetched(const std::filesystem::path& name, const FileContents& contents, const std::filesystem::path& url);
    void written(int generation);
    void filesChanged();
    void endRefreshing();

    Services m_services;
    std::shared_ptr<CloudCache> m_cache;
    bool m_isRefreshing = false;
    /// The cloud has listed files since the screen has appeared.
    bool m_hasList = false;
    /// Nothing is fetched before the first list.
    bool m_isListAwaited = true;
    /// There was no container when it was looked for, such as a folder whose disk is not connected.
    bool m_isMissing = false;
    bool m_isEmpty = true;
    bool m_isResetAsked = false;
    bool m_isShowAsked = false;
    /// What is fetched; answers to an earlier fetch are none.
    int m_generation = 0;
    Names m_names;
    std::size_t m_next = 0;
    int m_underWay = 0;
    /// What the cache's folder is being used for; the next fetch waits for that.
    int m_uses = 0;
    std::optional<std::pair<Names, bool>> m_waiting;
    /// What could not be fetched is not tried again before the next refresh.
    std::set<std::filesystem::path> m_tried;
};

}  // namespace tavi
