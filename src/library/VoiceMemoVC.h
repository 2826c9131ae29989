#pragma once

#include <QHash>
#include <QObject>
#include <QVariant>
#include <vector>

#include "app/settings/SettingsStore.h"
#include "library/RecordingEntry.h"
#include "library/RecordingListModel.h"
#include "library/utility/Notifications.h"
#include "platform/AppContainer.h"
#include "platform/AudioDuration.h"
#include "platform/NotificationCenter.h"
#include "platform/Outlets.h"

namespace tavi {

/// The library screen (tab 1): the recordings in the documents folder. Main thread only.
///
/// There is no index: the list is the folder, read again whenever the screen appears or hears "DataUpdated".
class VoiceMemoVC : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString title READ title NOTIFY outletsChanged)
    Q_PROPERTY(tavi::ButtonOutlet btnSortName READ btnSortName NOTIFY outletsChanged)
    Q_PROPERTY(tavi::ButtonOutlet btnSortDate READ btnSortDate NOTIFY outletsChanged)
    Q_PROPERTY(tavi::ButtonOutlet btnSortSize READ btnSortSize NOTIFY outletsChanged)
    Q_PROPERTY(QString headerText READ headerText NOTIFY outletsChanged)
    Q_PROPERTY(QAbstractListModel* tableView READ tableView CONSTANT)
    Q_PROPERTY(int selectedIndex READ selectedIndex NOTIFY selectedIndexChanged)

public:
    /// What the screen works with; all of it must outlive the screen.
    struct Services {
        SettingsStore& settings;
        const AppContainer& container;
        const AudioDuration& durations;
        NotificationCenter& notifications;
    };

    explicit VoiceMemoVC(const Services& services, QObject* parent = nullptr);

    QString title() const { return m_title; }
    /// A selected sort button stands for ascending order.
    ButtonOutlet btnSortName() const { return m_btnSortName; }
    ButtonOutlet btnSortDate() const { return m_btnSortDate; }
    ButtonOutlet btnSortSize() const { return m_btnSortSize; }
    QString headerText() const { return m_headerText; }
    QAbstractListModel* tableView() { return &m_tableView; }
    /// Row of the expanded recording; -1 for none.
    int selectedIndex() const { return m_selectedIndex; }
    /// The local recordings in the order shown.
    const std::vector<RecordingEntry>& arrRecordings() const { return m_arrRecordings; }

    /// 1 while the cloud is off, 2 while it is on.
    int numberOfSections() const;
    /// Rows of section 0, the local recordings; no other section has rows.
    int numberOfRowsInSection(int section) const;

public Q_SLOTS:
    void viewDidLoad();
    void viewWillAppear();
    /// Reads the documents folder, sorts as remembered and reloads the table; done when it returns. What cannot be read
    /// shows as an empty list, 0 KB or 00:00.
    void getAlltheFiles();
    /// Sorts as "Sort" says and stores nothing; where it is no code from 1 to 6 the order stays.
    void setDefaultSortingButton();
    /// Each sorts by its button's state. With a sender, the tapped button, it turns the direction round and stores it
    /// first.
    void sortByName(QObject* sender = nullptr);
    void sortByDate(QObject* sender = nullptr);
    void sortBySize(QObject* sender = nullptr);
    /// Collapses the expanded row and reloads the table.
    void resetCell();
    /// Reads the folder again and reloads the table.
    void reloadData();
    void handleUpdatedData();

public:
    /// Sorts the recordings by the text under one key of RecordingEntry, and reloads the table.
    void excludeSortingFolders(const QString& key, bool ascending);

Q_SIGNALS:
    void outletsChanged();
    void selectedIndexChanged();

private Q_SLOTS:
    void notificationPosted(const QString& name);

private:
    void sortBy(ButtonOutlet& button, int evenCode, const QString& key, const QObject* sender);
    RecordingEntry entryOf(const QByteArray& name, const QByteArray& path);
    double durationOf(const QByteArray& path);
    void reloadTable() { m_tableView.setEntries(m_arrRecordings); }

    Services m_services;
    QString m_title;
    QString m_headerText;
    ButtonOutlet m_btnSortName;
    ButtonOutlet m_btnSortDate;
    ButtonOutlet m_btnSortSize;
    std::vector<RecordingEntry> m_arrRecordings;
    RecordingListModel m_tableView;
    int m_selectedIndex = -1;
    /// Seconds by the identity of a file and of its contents, as decoding a long recording's length takes its time.
    QHash<QByteArray, double> m_knownDurations;
};

}  // namespace tavi
