#include "library/VoiceMemoVC.h"

#include <QDebug>
#include <QPointer>
#include <algorithm>
#include <utility>

#include "files/FileNames.h"
#include "files/PathText.h"
#include "library/RecordingOrder.h"
#include "library/utility/Notifications.h"
#include "trimming/AudioTrimmerViewController.h"

namespace tavi {

VoiceMemoVC::VoiceMemoVC(const Services& services, PlayerPanel& player, QObject* parent)
    : QObject(parent), m_services(services), m_tableView(services.shapes, services.container), m_player(player) {
    m_filter.setSourceModel(&m_tableView);
    m_services.remoteControl.setDelegate(this);
    connect(&m_player, &PlayerPanel::finished, this, &VoiceMemoVC::audioPlayerDidFinishPlaying);
}

VoiceMemoVC::~VoiceMemoVC() {
    m_services.remoteControl.setDelegate(nullptr);
}

int VoiceMemoVC::numberOfSections() const {
    return m_services.settings.isCloudSyncOn() ? 2 : 1;
}

int VoiceMemoVC::numberOfRowsInSection(int section) const {
    return static_cast<int>((section == 0 ? m_arrRecordings : m_arrIcloudFiles).size());
}

void VoiceMemoVC::viewDidLoad() {
    m_title = qtTrId("voice_record");
    m_headerText = qtTrId("Local Recording's");
    m_btnSortName.title = qtTrId("Name");
    m_btnSortDate.title = qtTrId("Date");
    m_btnSortSize.title = qtTrId("Size");
    Q_EMIT outletsChanged();
    getAlltheFiles();
    connect(&m_services.notifications, &NotificationCenter::posted, this, &VoiceMemoVC::notificationPosted,
            Qt::UniqueConnection);
}

void VoiceMemoVC::viewWillAppear() {
    m_cloudHeaderText = numberOfSections() == 2 ? qtTrId("iCloud Sync Recording's") : QString();
    Q_EMIT outletsChanged();
    getAlltheFiles();
    resetCell();
}

void VoiceMemoVC::getAlltheFiles() {
    const std::filesystem::path expanded = expandedName();
    m_arrRecordings = m_services.lister.list(m_services.container.documentsPath(), RecordingLister::Lengths::Known);
    setDefaultSortingButton();
    reloadTable();
    follow(expanded);
    if (!m_services.lister.isComplete()) {
        m_services.lister.measure([self = QPointer(this)] {
            if (self) {
                self->durationsArrived();
            }
        });
    }
}

void VoiceMemoVC::durationsArrived() {
    for (RecordingEntry& entry : m_arrRecordings) {
        if (m_services.lister.wasOpen(entry.nativeName())) {
            entry.setValue(entrykey::kDuration, m_services.lister.durationText(entry.nativeName()));
        }
    }
    reloadTable();
}

void VoiceMemoVC::setSearchText(const QString& text) {
    m_filter.setText(text);
    Q_EMIT outletsChanged();
}

void VoiceMemoVC::reloadTable() {
    m_tableView.setEntries(m_arrRecordings);
    if (const int row = m_newName.empty() ? -1 : rowOf(m_newName); row != std::exchange(m_newRow, row)) {
        Q_EMIT selectionChanged();
    }
}

void VoiceMemoVC::setDefaultSortingButton() {
    const int code = m_services.settings.sort();
    const QString key = sortKeyOf(code);
    const auto sort = [&](ButtonOutlet& button, void (VoiceMemoVC::*by)(QObject*)) {
        button.selected = code % 2 == 0;
        (this->*by)(nullptr);
    };
    if (key == entrykey::kFilename) {
        sort(m_btnSortName, &VoiceMemoVC::sortByName);
    } else if (key == entrykey::kModdate) {
        sort(m_btnSortDate, &VoiceMemoVC::sortByDate);
    } else if (key == entrykey::kSize) {
        sort(m_btnSortSize, &VoiceMemoVC::sortBySize);
    }
}

void VoiceMemoVC::sortByName(QObject* sender) {
    sortBy(m_btnSortName, kSortNameAscending, entrykey::kFilename, sender);
}

void VoiceMemoVC::sortByDate(QObject* sender) {
    sortBy(m_btnSortDate, kSortDateAscending, entrykey::kModdate, sender);
}

void VoiceMemoVC::sortBySize(QObject* sender) {
    sortBy(m_btnSortSize, kSortSizeAscending, entrykey::kSize, sender);
}

void VoiceMemoVC::sortBy(ButtonOutlet& button, int evenCode, const QString& key, const QObject* sender) {
    if (sender) {
        m_services.settings.setSort(button.selected ? evenCode - 1 : evenCode);
        button.selected = !button.selected;
    }
    excludeSortingFolders(key, button.selected);
    for (ButtonOutlet* each : {&m_btnSortName, &m_btnSortDate, &m_btnSortSize}) {
        each->image.clear();
    }
    button.image = button.selected ? QStringLiteral("sorting_arrow_down.png") : QStringLiteral("sorting_arrow_up.png");
    button.tintColor = m_services.settings.isThemeWhite() ? QStringLiteral("#000000") : QStringLiteral("#a1a1a1");
    Q_EMIT outletsChanged();
}

void VoiceMemoVC::excludeSortingFolders(const QString& key, bool ascending) {
    const std::filesystem::path expanded = expandedName();
    sortRecordings(m_arrRecordings, key, ascending);
    reloadTable();
    follow(expanded);
}

std::filesystem::path VoiceMemoVC::expandedName() const {
    const bool isOne = m_selectedIndex >= 0 && static_cast<std::size_t>(m_selectedIndex) < m_arrRecordings.size();
    return isOne ? m_arrRecordings[static_cast<std::size_t>(m_selectedIndex)].nativeName() : std::filesystem::path();
}

void VoiceMemoVC::follow(const std::filesystem::path& name) {
    if (name.empty() || expandedName() == name) {
        return;
    }
    m_selectedIndex = rowOf(name);
    m_selectRow = m_selectedIndex >= 0 ? m_selectedIndex : kNoRow;
    Q_EMIT selectionChanged();
}

int VoiceMemoVC::rowOf(const std::filesystem::path& name) const {
    const auto found = std::find_if(m_arrRecordings.begin(), m_arrRecordings.end(),
                                    [&name](const RecordingEntry& entry) { return entry.nativeName() == name; });
    return found != m_arrRecordings.end() ? static_cast<int>(found - m_arrRecordings.begin()) : -1;
}

int VoiceMemoVC::shownIndex(int row) const {
    return m_filter.mapFromSource(m_tableView.index(row)).row();
}

void VoiceMemoVC::didSelectRowAtIndexPath(int section, int row) {
    if (row < 0 || row >= numberOfRowsInSection(section)) {
        return;
    }
    m_section = QString::number(section);
    m_newName.clear();
    m_newRow = -1;
    viewAnimation();
    if (row != m_selectedIndex) {
        m_selectRow = row;
        if (m_selectedIndex != -1) {
            teardown();
        }
        m_selectedIndex = row;
        expandRow(section, row);
    } else {
        m_selectRow = kNoRow;
        viewAnimationRemove();
        m_selectedIndex = -1;
        teardown();
    }
    Q_EMIT selectionChanged();
}

void VoiceMemoVC::expandRow(int section, int row) {
    m_player.prepareForRow();
    const std::filesystem::path path = pathOf(section != 0, row);
    if (!path.empty()) {
        m_player.initAudioWithUrl(path);
        playAudio(row, m_player.btnPlay().selected);
        m_player.setBtnPlaySelected(true);
    }
}

std::filesystem::path VoiceMemoVC::pathOf(bool inCloud, int row) const {
    const auto& list = inCloud ? m_arrIcloudFiles : m_arrRecordings;
    if (row < 0 || static_cast<std::size_t>(row) >= list.size()) {
        return {};
    }
    std::filesystem::path path = m_services.container.documentsPath() / (inCloud ? foldername::kCloud : "") /
                                 list[static_cast<std::size_t>(row)].nativeName();
    return existsAt(path) ? path : std::filesystem::path();
}

QString VoiceMemoVC::playingName() const {
    return pathText(m_player.urlPath().filename());
}

QString VoiceMemoVC::playingDetail() const {
    const int row = m_player.urlPath().empty() ? -1 : rowOf(m_player.urlPath().filename());
    return m_tableView.index(row).data(RecordingListModel::DetailTextRole).toString();
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
        const std::filesystem::path path = pathOf(!m_services.settings.isCloudSyncOn(), tag);
        if (!path.empty()) {
            m_player.initAudioWithUrl(path);
        }
        m_isPlaying = true;
        m_selectedIndex = tag;
        Q_EMIT selectionChanged();
    }
    m_player.playOrPause(selected);
}

void VoiceMemoVC::spacePressed(int row) {
    if (m_isPlaying) {
        playAudio(m_selectedIndex, m_player.btnplaypuas().selected);
    } else {
        didSelectRowAtIndexPath(0, row);
    }
}

void VoiceMemoVC::trimRow(int row) {
    const std::filesystem::path path = pathOf(false, row);
    if (path.empty()) {
        return;
    }
    if (m_isPlaying) {
        stopAudio();
    }
    const RecordingEntry& entry = m_arrRecordings[static_cast<std::size_t>(row)];
    const QVariantMap data{{entrykey::kDuration, entry.value(entrykey::kDuration)}};
    AudioTrimmerViewController::presentAudioTrimmerController(m_services.trimmers, this, path.native(), data,
                                                              entry.nativeName(), {});
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
        m_selectedIndex = -1;
        Q_EMIT selectionChanged();
    }
    reloadTable();
}

void VoiceMemoVC::reloadData() {
    getAlltheFiles();
    reloadTable();
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
    const int row = rowOf(nativePath(fileName));
    if (row >= 0 && row != m_selectedIndex) {
        setSearchText({});
        didSelectRowAtIndexPath(0, row);
        Q_EMIT rowRevealed(row);
    }
}

void VoiceMemoVC::showTrimmed(const std::filesystem::path& path) {
    // A trimmer tells of its file more than once.
    const int row = path.empty() || path.filename() == m_announcedName ? -1 : rowOf(path.filename());
    if (row < 0) {
        return;
    }
    m_newName = m_announcedName = path.filename();
    m_newRow = row;
    setSearchText({});
    Q_EMIT selectionChanged();
    Q_EMIT rowRevealed(row);
    m_services.notices.postNotice({qtTrId("library_trimmed").arg(pathText(m_newName)), qtTrId("library_play"),
                                   [self = QPointer(this), name = m_newName] {
                                       if (self) {
                                           self->playRecording(pathText(name));
                                       }
                                   }});
}

}  // namespace tavi
