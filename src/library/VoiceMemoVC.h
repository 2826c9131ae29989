#pragma once

#include <QObject>
#include <filesystem>
#include <vector>

#include "library/LibraryServices.h"
#include "library/PlayerPanel.h"
#include "library/RecordingFilterModel.h"
#include "library/RecordingListModel.h"

namespace tavi {

/// The library screen (tab 1): the recordings in the documents folder, and the player of one of them. Main thread only.
///
/// There is no index: the list is the folder, read again whenever the screen appears or hears "DataUpdated".
class VoiceMemoVC : public QObject, private RemoteControlDelegate {
    Q_OBJECT
    Q_PROPERTY(QString title READ title NOTIFY outletsChanged)
    Q_PROPERTY(tavi::ButtonOutlet btnSortName READ btnSortName NOTIFY outletsChanged)
    Q_PROPERTY(tavi::ButtonOutlet btnSortDate READ btnSortDate NOTIFY outletsChanged)
    Q_PROPERTY(tavi::ButtonOutlet btnSortSize READ btnSortSize NOTIFY outletsChanged)
    Q_PROPERTY(QString headerText READ headerText NOTIFY outletsChanged)
    Q_PROPERTY(QString cloudHeaderText READ cloudHeaderText NOTIFY outletsChanged)
    Q_PROPERTY(QAbstractItemModel* tableView READ tableView CONSTANT)
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY outletsChanged)
    Q_PROPERTY(tavi::PlayerPanel* player READ player CONSTANT)
    Q_PROPERTY(int selectedIndex READ selectedIndex NOTIFY selectionChanged)
    Q_PROPERTY(int selectRow READ selectRow NOTIFY selectionChanged)
    Q_PROPERTY(bool isPlaying READ isPlaying NOTIFY selectionChanged)
    Q_PROPERTY(QString playingName READ playingName NOTIFY selectionChanged)
    Q_PROPERTY(QString playingDetail READ playingDetail NOTIFY selectionChanged)
    Q_PROPERTY(int newRow READ newRow NOTIFY selectionChanged)
    Q_PROPERTY(bool isPanelShown READ isPanelShown NOTIFY selectionChanged)

public:
    using Services = LibraryServices;
    /// What selectRow() is when no row's icon is highlighted.
    static constexpr int kNoRow = 500;

    /// Player and services must outlive the screen.
    VoiceMemoVC(const Services& services, PlayerPanel& player, QObject* parent = nullptr);
    ~VoiceMemoVC() override;

    QString title() const { return m_title; }
    /// A selected sort button stands for ascending order.
    ButtonOutlet btnSortName() const { return m_btnSortName; }
    ButtonOutlet btnSortDate() const { return m_btnSortDate; }
    ButtonOutlet btnSortSize() const { return m_btnSortSize; }
    QString headerText() const { return m_headerText; }
    /// Header of section 1; empty while there is none. As of the last time the screen appeared.
    QString cloudHeaderText() const { return m_cloudHeaderText; }
    /// The rows that the search leaves.
    QAbstractItemModel* tableView() { return &m_filter; }
    /// Shows only rows whose names hold this text, in any case; it changes neither order nor arrRecordings().
    QString searchText() const { return m_filter.text(); }
    void setSearchText(const QString& text);
    PlayerPanel* player() { return &m_player; }
    /// Row of the expanded recording; -1 for none.
    int selectedIndex() const { return m_selectedIndex; }
    /// Row whose icon is highlighted.
    int selectRow() const { return m_selectRow; }
    /// Number of the tapped row's section.
    const QString& section() const { return m_section; }
    /// Whether a recording is loaded in the player, also while it is paused.
    bool isPlaying() const { return m_isPlaying; }
    /// Name of the file in the player, to show.
    QString playingName() const;
    /// Row of the recording that has just been made here, until another one is chosen; -1 for none.
    int newRow() const { return m_newRow; }
    /// What is known of that file, as its row says it; empty where it is in no row.
    QString playingDetail() const;
    bool isPanelShown() const { return m_isPanelShown; }
    /// The local recordings in the order shown, and those of the cloud's folder.
    const std::vector<RecordingEntry>& arrRecordings() const { return m_arrRecordings; }
    const std::vector<RecordingEntry>& arrIcloudFiles() const { return m_arrIcloudFiles; }

    /// 1 while the cloud is off, 2 while it is on.
    int numberOfSections() const;
    /// Rows of section 0, the local recordings, and of any other, the cloud's.
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
    /// A tap on a row: opens it and plays its recording, or, on the open one, closes it.
    void didSelectRowAtIndexPath(int section, int row);
    /// A press on a play button of that row and state: loads a recording if none is loaded, and plays or pauses.
    void playAudio(int tag, bool selected);
    /// Opens and plays the recording of that file name, wherever it is in the list; nothing where it plays already.
    void playRecording(const QString& fileName);
    /// The space bar: plays or pauses what is loaded; without, plays the recording of a row.
    void spacePressed(int row);
    /// Opens the trimmer with a row's recording; what plays is stopped. The list hears of a new file by "DataUpdated".
    void trimRow(int row);
    /// Where the search shows a row of the table; -1 where it does not.
    int shownIndex(int row) const;
    void stopAudio();
    void playerClose();
    /// Slides the player's panel in and out.
    void viewAnimation();
    void viewAnimationRemove();
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
    void selectionChanged();
    /// A row is to come into view.
    void rowRevealed(int row);
    /// The desktop asks for the window, or for the program's end.
    void raiseRequested();
    void quitRequested();

private Q_SLOTS:
    void notificationPosted(const QString& name, const QVariant& object);
    void audioPlayerDidFinishPlaying();

private:
    void remoteControlReceivedWithEvent(const RemoteControlEvent& event) override;
    double remoteControlCurrentTime() const override { return m_player.currentTime(); }
    void sortBy(ButtonOutlet& button, int evenCode, const QString& key, const QObject* sender);
    void durationsArrived();
    std::filesystem::path pathOf(bool inCloud, int row) const;
    void expandRow(int section, int row);
    void teardown();
    /// The expanded recording's native name; after a change of the list the expanded row is again the one of that name.
    std::filesystem::path expandedName() const;
    void follow(const std::filesystem::path& name);
    void reloadTable();
    int rowOf(const std::filesystem::path& name) const;
    void showTrimmed(const std::filesystem::path& path);

    Services m_services;
    QString m_title;
    QString m_headerText;
    QString m_cloudHeaderText;
    ButtonOutlet m_btnSortName;
    ButtonOutlet m_btnSortDate;
    ButtonOutlet m_btnSortSize;
    std::vector<RecordingEntry> m_arrRecordings;
    std::vector<RecordingEntry> m_arrIcloudFiles;
    RecordingListModel m_tableView;
    RecordingFilterModel m_filter;
    PlayerPanel& m_player;
    QString m_section;
    int m_selectedIndex = -1;
    int m_selectRow = kNoRow;
    int m_newRow = -1;
    std::filesystem::path m_newName;
    /// The trimmed recording that a notice has told of last.
    std::filesystem::path m_announcedName;
    bool m_isPlaying = false;
    bool m_isPanelShown = false;
};

}  // namespace tavi
