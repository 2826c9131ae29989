#pragma once

#include <QObject>
#include <filesystem>

#include "library/CloudSection.h"
#include "library/LibraryServices.h"
#include "library/PlayerPanel.h"
#include "library/RecordingActions.h"
#include "library/RecordingTable.h"

namespace tavi {

/// The library screen (tab 1): the recordings in the documents folder, and the player of one of them. Main thread only.
///
/// There is no index: the list is the folder, read again whenever the screen appears or hears "DataUpdated".
class VoiceMemoVC : public QObject, private RemoteControlDelegate {
    Q_OBJECT
    Q_PROPERTY(QString title READ title NOTIFY outletsChanged)
    Q_PROPERTY(QString headerText READ headerText NOTIFY outletsChanged)
    Q_PROPERTY(QString cloudHeaderText READ cloudHeaderText NOTIFY outletsChanged)
    Q_PROPERTY(tavi::RecordingTable* table READ table CONSTANT)
    Q_PROPERTY(tavi::PlayerPanel* player READ player CONSTANT)
    Q_PROPERTY(tavi::RecordingActions* actions READ actions CONSTANT)
    Q_PROPERTY(tavi::CloudSection* cloud READ cloud CONSTANT)
    Q_PROPERTY(int selectedSection READ selectedSection NOTIFY selectionChanged)
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

    /// All of it must outlive the screen.
    VoiceMemoVC(const Services& services, RecordingTable& table, PlayerPanel& player, RecordingActions& actions,
                CloudSection& cloud, QObject* parent = nullptr);
    ~VoiceMemoVC() override;

    QString title() const { return m_title; }
    QString headerText() const { return m_headerText; }
    /// Header of section 1; empty while there is none. As of the last time the screen appeared.
    QString cloudHeaderText() const { return m_cloudHeaderText; }
    RecordingTable* table() const { return &m_table; }
    PlayerPanel* player() const { return &m_player; }
    RecordingActions* actions() const { return &m_actions; }
    CloudSection* cloud() const { return &m_cloud; }
    int selectedSection() const { return m_section.toInt(); }
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

public Q_SLOTS:
    void viewDidLoad();
    void viewWillAppear();
    /// A tap on a row: opens it and plays its recording, or, on the open one, closes it. One whose file has not come is
    /// asked for again.
    void didSelectRowAtIndexPath(int section, int row);
    /// A press on a play button of that row and state: loads a recording if none is loaded, and plays or pauses.
    void playAudio(int tag, bool selected);
    /// Opens and plays the recording of that file name, wherever it is in the list; nothing where it plays already.
    void playRecording(const QString& fileName);
    /// The space bar: plays or pauses what is loaded; without, plays the recording of a row.
    void spacePressed(int section, int row);
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
    void expandRow(int section, int row);
    void teardown();
    /// Expands a row; -1 for none.
    void select(int row);
    /// After a change of the list the rows are again those of the recordings that they were.
    void follow();
    void stopFile(const std::filesystem::path& path);
    void showTrimmed(const std::filesystem::path& path);

    Services m_services;
    QString m_title;
    QString m_headerText;
    QString m_cloudHeaderText;
    RecordingTable& m_table;
    PlayerPanel& m_player;
    RecordingActions& m_actions;
    CloudSection& m_cloud;
    QString m_section;
    int m_selectedIndex = -1;
    /// The native name of the expanded recording.
    std::filesystem::path m_selectedName;
    int m_selectRow = kNoRow;
    int m_newRow = -1;
    std::filesystem::path m_newName;
    /// The trimmed recording that a notice has told of last.
    std::filesystem::path m_announcedName;
    bool m_isPlaying = false;
    bool m_isPanelShown = false;
};

}  // namespace tavi
