#pragma once

#include <QList>
#include <QObject>
#include <filesystem>
#include <map>
#include <vector>

#include "app/settings/SettingsStore.h"
#include "cloud/CloudConnection.h"
#include "library/RecordingFilterModel.h"
#include "library/RecordingListModel.h"
#include "library/RecordingLister.h"
#include "platform/Outlets.h"

namespace tavi {

/// The rows of the library screen: the recordings in the documents folder, their order, the files of the cloud, and the
/// search. Main thread only.
///
/// There is no index: the list is the folder, read again whenever it is asked for. Rows change their places then, and
/// who means a recording keeps its name.
class RecordingTable : public QObject {
    Q_OBJECT
    Q_PROPERTY(tavi::ButtonOutlet btnSortName READ btnSortName NOTIFY outletsChanged)
    Q_PROPERTY(tavi::ButtonOutlet btnSortDate READ btnSortDate NOTIFY outletsChanged)
    Q_PROPERTY(tavi::ButtonOutlet btnSortSize READ btnSortSize NOTIFY outletsChanged)
    Q_PROPERTY(QAbstractItemModel* tableView READ tableView CONSTANT)
    /// Whether the search leaves a row of the cloud.
    Q_PROPERTY(bool showsCloudRows READ showsCloudRows NOTIFY cloudRowsChanged)
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY outletsChanged)

public:
    /// All of it must outlive the table.
    struct Services {
        SettingsStore& settings;
        const AppContainer& container;
        RecordingLister& lister;
        /// For the files of the cloud.
        RecordingLister& cloudLister;
        RecordingShapes& shapes;
    };

    explicit RecordingTable(const Services& services, QObject* parent = nullptr);

    /// A selected sort button stands for ascending order.
    ButtonOutlet btnSortName() const { return m_btnSortName; }
    ButtonOutlet btnSortDate() const { return m_btnSortDate; }
    ButtonOutlet btnSortSize() const { return m_btnSortSize; }
    /// The rows that the search leaves.
    QAbstractItemModel* tableView() { return &m_filter; }
    /// Shows only rows whose names hold this text, in any case; it changes neither order nor arrRecordings().
    QString searchText() const { return m_filter.text(); }
    void setSearchText(const QString& text);
    bool showsCloudRows() const;
    /// The local recordings in the order shown, and those of the cloud's folder.
    const std::vector<RecordingEntry>& arrRecordings() const { return m_arrRecordings; }
    const std::vector<RecordingEntry>& arrIcloudFiles() const { return m_arrIcloudFiles; }

    /// 1 while the cloud is off, 2 while it is on.
    int numberOfSections() const { return m_services.settings.isCloudSyncOn() ? 2 : 1; }
    /// Section 0 is the local recordings, any other the cloud's.
    int numberOfRowsInSection(int section) const { return static_cast<int>(listOf(section).size()); }
    /// A row's entry; null where there is no such row.
    const RecordingEntry* entryOf(int section, int row) const;
    /// Where the file of a row is; empty where there is no such row.
    std::filesystem::path pathOf(int section, int row) const;
    /// The shape of a row's sound, numbers from 0 to 1; empty while it is not known.
    QList<qreal> shapeOf(int section, int row) const;
    /// What is known of the cloud's files, by native name. Those that are in no row yet have one after the others.
    void setCloudFiles(std::map<std::filesystem::path, CloudFile> files);
    const std::map<std::filesystem::path, CloudFile>& cloudFiles() const { return m_cloudFiles; }
    /// The native name of a row after those of section 1, whose file has not come yet; empty where there is none.
    std::filesystem::path awaitedName(int row) const;
    /// The row of a native name; -1 where it has none.
    int rowOf(int section, const std::filesystem::path& name) const;

public Q_SLOTS:
    /// Reads the documents folder, sorts as remembered and reloads the table; done when it returns. What cannot be read
    /// shows as an empty list, 0 KB or 00:00.
    void getAlltheFiles();
    /// The same of the cloud's files, which are not sorted.
    void getAlltheFilesAndFolderFromDirectoryInIcloud();
    /// Sorts as "Sort" says and stores nothing; where it is no code from 1 to 6 the order stays.
    void setDefaultSortingButton();
    /// Each sorts by its button's state. With a sender, the tapped button, it turns the direction round and stores it
    /// first.
    void sortByName(QObject* sender = nullptr);
    void sortByDate(QObject* sender = nullptr);
    void sortBySize(QObject* sender = nullptr);
    /// Shows what the lists hold.
    void reloadTable();
    /// Where the search shows a row of the table; -1 where it does not.
    int shownIndex(int row) const { return m_filter.mapFromSource(m_tableView.index(row)).row(); }

public:
    /// Sorts the recordings by the text under one key of RecordingEntry, and reloads the table.
    void excludeSortingFolders(const QString& key, bool ascending);

Q_SIGNALS:
    void outletsChanged();
    void cloudRowsChanged();
    /// The table has been reloaded; rows may have other places.
    void reloaded();

private:
    const std::vector<RecordingEntry>& listOf(int section) const {
        return section == 0 ? m_arrRecordings : m_arrIcloudFiles;
    }
    void sortBy(ButtonOutlet& button, int evenCode, const QString& key, const QObject* sender);
    void durationsArrived(RecordingLister& lister, std::vector<RecordingEntry>& entries);
    void measure(RecordingLister& lister, std::vector<RecordingEntry>& entries);
    std::vector<RecordingEntry> awaited() const;

    Services m_services;
    ButtonOutlet m_btnSortName;
    ButtonOutlet m_btnSortDate;
    ButtonOutlet m_btnSortSize;
    std::vector<RecordingEntry> m_arrRecordings;
    std::vector<RecordingEntry> m_arrIcloudFiles;
    std::map<std::filesystem::path, CloudFile> m_cloudFiles;
    RecordingListModel m_tableView;
    RecordingFilterModel m_filter;
};

}  // namespace tavi
