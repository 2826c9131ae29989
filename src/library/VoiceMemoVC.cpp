#include "library/VoiceMemoVC.h"

#include <QDebug>
#include <QPointer>
#include <utility>

#include "files/FileNames.h"
#include "files/PathText.h"
#include "library/utility/Notifications.h"
#include "trimming/AudioTrimmerViewController.h"

namespace tavi {

namespace {

/// The path itself, or none where nothing is there.
std::filesystem::path existing(const std::filesystem::path& path) {
    return existsAt(path) ? path : std::filesystem::path();
}

}  // namespace

VoiceMemoVC::VoiceMemoVC(const Services& services, RecordingTable& table, PlayerPanel& player,
                         RecordingActions& actions, CloudSection& cloud, QObject* parent)
    : QObject(parent), m_services(services), m_table(table), m_player(player), m_actions(actions), m_cloud(cloud) {
    m_services.remoteControl.setDelegate(this);
    connect(&m_table, &RecordingTable::reloaded, this, &VoiceMemoVC::follow);
    connect(&m_actions, &RecordingActions::stopRequested, this, &VoiceMemoVC::stopFile);
    connect(&m_actions, &RecordingActions::reloadRequested, this, &VoiceMemoVC::reloadData);
    connect(&m_actions, &RecordingActions::rowRevealed, this, &VoiceMemoVC::rowRevealed);
    connect(&m_actions, &RecordingActions::cloudRefreshRequested, &m_cloud, &CloudSection::getCloudDocuments);
    connect(&m_cloud, &CloudSection::resetRequested, this, &VoiceMemoVC::resetCell);
    connect(&m_cloud, &CloudSection::reloadRequested, this, &VoiceMemoVC::reloadData);
    connect(&m_player, &PlayerPanel::finished, this, &VoiceMemoVC::audioPlayerDidFinishPlaying);
}

VoiceMemoVC::~VoiceMemoVC() {
    m_services.remoteControl.setDelegate(nullptr);
}

void VoiceMemoVC::viewDidLoad() {
    m_title = qtTrId("voice_record");
    m_headerText = qtTrId("Local Recording's");
    Q_EMIT outletsChanged();
    m_table.getAlltheFiles();
    connect(&m_services.notifications, &NotificationCenter::posted, this, &VoiceMemoVC::notificationPosted,
            Qt::UniqueConnection);
}

void VoiceMemoVC::viewWillAppear() {
    m_cloudHeaderText = m_table.numberOfSections() == 2 ? qtTrId("iCloud Sync Recording's") : QString();
    Q_EMIT outletsChanged();
    m_cloud.viewWillAppear();
    m_table.getAlltheFiles();
    m_cloud.listAppeared();
    resetCell();
}

void VoiceMemoVC::select(int row) {
    m_selectedIndex = row;
    const RecordingEntry* entry = m_table.entryOf(m_section.toInt(), row);
    m_selectedName = entry != nullptr ? entry->nativeName() : std::filesystem::path();
}

void VoiceMemoVC::follow() {
    const int newRow = m_newName.empty() ? -1 : m_table.rowOf(0, m_newName);
    bool hasMoved = std::exchange(m_newRow, newRow) != newRow;
    const int section = m_section.toInt();
    const RecordingEntry* entry = m_table.entryOf(section, m_selectedIndex);
    if (!m_selectedName.empty() && (entry == nullptr || entry->nativeName() != m_selectedName)) {
        select(m_table.rowOf(section, m_selectedName));
        m_selectRow = m_selectedIndex >= 0 ? m_selectedIndex : kNoRow;
        hasMoved = true;
    }
    if (hasMoved) {
        Q_EMIT selectionChanged();
    }
}

void VoiceMemoVC::didSelectRowAtIndexPath(int section, int row) {
    if (row < 0 || row >= m_table.numberOfRowsInSection(section)) {
        return section == 1 ? m_cloud.askFor(m_table.awaitedName(row)) : void();
    }
    const int previous = std::exchange(m_section, QString::number(section)).toInt();
    m_newName.clear();
    m_newRow = -1;
    viewAnimation();
    if (row != m_selectedIndex || section != previous) {
        m_selectRow = row;
        if (m_selectedIndex != -1) {
            teardown();
        }
        select(row);
        expandRow(section, row);
    } else {
        m_selectRow = kNoRow;
        viewAnimationRemove();
        select(-1);
        teardown();
    }
    Q_EMIT selectionChanged();
}

void VoiceMemoVC::expandRow(int section, int row) {
    m_player.prepareForRow();
    const std::filesystem::path path = existing(m_table.pathOf(section, row));
    if (!path.empty()) {
        m_player.initAudioWithUrl(path);
        playAudio(row, m_player.btnPlay().selected);
        m_player.setBtnPlaySelected(true);
    }
}

QString VoiceMemoVC::playingName() const {
    return lineText(m_player.urlPath().filename());
}

QString VoiceMemoVC::playingDetail() const {
    const int section = selectedSection();
    const int row = m_player.urlPath().empty() ? -1 : m_table.rowOf(section, m_player.urlPath().filename());
    const RecordingEntry* entry = m_table.entryOf(section, row);
    return entry != nullptr ? RecordingListModel::detailText(*entry) : QString();
}

/// Closes what is open in the player.
void VoiceMemoVC::teardown() {
    m_player.drop();
    m_isPlaying = false;
    Q_EMIT selectionChanged();
}

void VoiceMemoVC::playAudio(int tag, bool selected) {
    if (!m_isPlaying) {
        // The setting chooses the list, whatever section the row is of, on purpose: a row of the list that it does not
        // choose keeps what has been loaded for it.
        const std::filesystem::path path = existing(m_table.pathOf(m_services.settings.isCloudSyncOn() ? 0 : 1, tag));
        if (!path.empty()) {
            m_player.initAudioWithUrl(path);
        }
        m_isPlaying = true;
        select(tag);
        Q_EMIT selectionChanged();
    }
    m_player.playOrPause(selected);
}

void VoiceMemoVC::spacePressed(int section, int row) {
    if (m_isPlaying) {
        playAudio(m_selectedIndex, m_player.btnplaypuas().selected);
    } else {
        didSelectRowAtIndexPath(section, row);
    }
}

void VoiceMemoVC::stopFile(const std::filesystem::path& path) {
    if (path.empty() || path == m_player.urlPath()) {
        stopAudio();
    }
}

void VoiceMemoVC::stopAudio() {
    m_selectRow = kNoRow;
    viewAnimationRemove();
    teardown();
    resetCell();
}

void VoiceMemoVC::playerClose() {
    stopAudio();
    m_player.setBtnPlaySelected(false);
}

void VoiceMemoVC::viewAnimation() {
    m_isPanelShown = true;
    Q_EMIT selectionChanged();
}

void VoiceMemoVC::viewAnimationRemove() {
    m_isPanelShown = false;
    Q_EMIT selectionChanged();
}

void VoiceMemoVC::audioPlayerDidFinishPlaying() {
    m_player.showEnd();
    resetCell();
}

void VoiceMemoVC::remoteControlReceivedWithEvent(const RemoteControlEvent& event) {
    using Subtype = RemoteControlEvent::Subtype;
    const bool isHeard = m_player.isPlayerPlaying();
    const auto press = [this] { playAudio(m_selectedIndex, m_player.btnplaypuas().selected); };
    switch (event.subtype) {
        case Subtype::Play:
            return isHeard ? void() : press();
        case Subtype::Pause:
            return isHeard ? press() : void();
        case Subtype::TogglePlayPause:
            return press();
        case Subtype::Stop:
            return stopAudio();
        case Subtype::SkipForward:
            return m_player.forwardSkip();
        case Subtype::SkipBackward:
            return m_player.backSkip();
        case Subtype::Seek:
            return m_player.progressSliderMoved(m_player.currentTime() + event.value);
        case Subtype::SetPosition:
            return m_player.progressSliderMoved(event.value);
        case Subtype::SetRate:
            return m_player.setRate(event.value);
        case Subtype::Raise:
            return Q_EMIT raiseRequested();
        case Subtype::Quit:
            return Q_EMIT quitRequested();
    }
}

void VoiceMemoVC::resetCell() {
    if (m_selectedIndex != -1) {
        select(-1);
        Q_EMIT selectionChanged();
    }
    m_table.reloadTable();
}

void VoiceMemoVC::reloadData() {
    m_table.getAlltheFiles();
    m_table.reloadTable();
}

void VoiceMemoVC::handleUpdatedData() {
    qInfo("recieved");
    viewWillAppear();
}

void VoiceMemoVC::notificationPosted(const QString& name, const QVariant& object) {
    if (name == kDataUpdatedNotification) {
        handleUpdatedData();
        if (const auto* trimmer = qobject_cast<AudioTrimmerViewController*>(object.value<QObject*>())) {
            showTrimmed(trimmer->strTrimmedAudioURL());
        }
    } else if (name == kOutputReturnedNotification) {
        m_player.earpieceWasLeft();
    }
}

void VoiceMemoVC::playRecording(const QString& fileName) {
    const int row = m_table.rowOf(0, nativePath(fileName));
    if (row >= 0 && (row != m_selectedIndex || selectedSection() != 0)) {
        m_table.setSearchText({});
        didSelectRowAtIndexPath(0, row);
        Q_EMIT rowRevealed(row);
    }
}

void VoiceMemoVC::showTrimmed(const std::filesystem::path& path) {
    // A trimmer tells of its file more than once.
    const int row = path.empty() || path.filename() == m_announcedName ? -1 : m_table.rowOf(0, path.filename());
    if (row < 0) {
        return;
    }
    m_newName = m_announcedName = path.filename();
    m_newRow = row;
    m_table.setSearchText({});
    Q_EMIT selectionChanged();
    Q_EMIT rowRevealed(row);
    m_services.notices.postNotice({qtTrId("library_trimmed").arg(lineText(m_newName)), qtTrId("library_play"),
                                   [self = QPointer(this), name = m_newName] {
                                       if (self) {
                                           self->playRecording(pathText(name));
                                       }
                                   }});
}

}  // namespace tavi
