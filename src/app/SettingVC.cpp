#include "app/SettingVC.h"

#include <QPointer>
#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace tavi {

namespace {

constexpr double kMinimumSkipSeconds = 5.0;
constexpr double kMaximumSkipSeconds = 60.0;
constexpr double kSkipStep = 5.0;
constexpr double kReloadDelaySeconds = 0.2;

/// All but the last of the headers have a section.
constexpr qsizetype kShownSections = 7;
constexpr int kRecordTab = 0;

double sliderPosition(double seconds) {
    return std::clamp(seconds, kMinimumSkipSeconds, kMaximumSkipSeconds);
}

/// A text of the string table with the seconds in the place of its %1; a text that is missing there is its bare key.
QString withSeconds(const QString& format, double seconds) {
    return QString(format).replace(QStringLiteral("%1"), QString::number(seconds, 'f', 0));
}

}  // namespace

double snappedSkipSeconds(double sliderValue) {
    return std::trunc((sliderPosition(sliderValue) + kSkipStep / 2.0) / kSkipStep) * kSkipStep;
}

SettingVC::SettingVC(const Services& services, QObject* parent) : QObject(parent), m_services(services) {
    connect(&m_services.formatHold, &FormatHold::heldChanged, this, &SettingVC::storeWaiting);
    connect(&m_services.cloud, &CloudPage::accountChanged, this, &SettingVC::cloudAccountChanged);
    connect(&m_passcode, &PasscodeRows::settled, this, &SettingVC::loadData);
}

QStringList SettingVC::sectionarray() const {
    return {QStringLiteral("recording_type"), QStringLiteral("recording_quality"),
            QStringLiteral("audio_setting"),  QStringLiteral("icloud_sync"),
            QStringLiteral("mail"),           QStringLiteral("data_security"),
            QStringLiteral("support"),        QStringLiteral("feature")};
}

void SettingVC::viewDidLoad() {
    m_title = qtTrId("Settings");
    Q_EMIT rowsChanged();
}

void SettingVC::viewWillAppear() {
    m_passcode.refresh();
    // Rows that stand stay as they are: a moved slider keeps the label that its move gave it.
    if (!m_rowsBuilt) {
        loadData();
    }
}

void SettingVC::dismissView() {
    m_services.tabBar.setSelectedIndex(kRecordTab);
}

void SettingVC::loadData() {
    m_rowsBuilt = true;
    m_headerTexts.clear();
    const QStringList keys = sectionarray().first(kShownSections);
    for (const QString& key : keys) {
        m_headerTexts.append(qtTrId(key.toUtf8().constData()));
    }
    m_extentionText = qtTrId("Extention");
    m_fileType = m_services.settings.audioFileType();
    m_qualityText = qtTrId("Quality");
    m_quality = m_services.settings.audioQualityType();
    m_iCloundText = qtTrId("use_icloud");
    m_isCloudSyncOn = m_services.settings.isCloudSyncOn();
    m_quickMailText = qtTrId("Quick_Mail");
    m_isQuickMailOn = m_services.settings.isQuickMailOn();
    buildSliderRows();
    Q_EMIT rowsChanged();
    Q_EMIT slidersChanged();
}

void SettingVC::buildSliderRows() {
    // Building a row stores what its slider shows, on purpose: from the first sight of this screen on the keys exist.
    m_rewindValue = sliderPosition(m_services.settings.rewindSeconds());
    m_services.settings.setRewindSeconds(m_rewindValue);
    m_rewindText = withSeconds(qtTrId("rewind"), m_rewindValue);
    m_forwardValue = sliderPosition(m_services.settings.forwardSeconds());
    m_services.settings.setForwardSeconds(m_forwardValue);
    m_forwardText = withSeconds(qtTrId("forward"), m_forwardValue);
}

void SettingVC::showExtentionActionsheet() {
    if (isFormatHeld()) {
        return;
    }
    struct Choice {
        const char* title;
        QString fileType;
    };
    const std::array choices{Choice{"M4a", QStringLiteral("m4a")}, Choice{"Wave", QStringLiteral("wav")},
                             Choice{"Aac", QStringLiteral("aac")}, Choice{"Mp4", QStringLiteral("mp4")},
                             Choice{"Caf", QStringLiteral("caf")}};
    Alert sheet{qtTrId("Select Recording Audio Type"), {}, {}};
    for (const Choice& choice : choices) {
        const auto choose = [self = QPointer(this), fileType = choice.fileType] {
            if (self) {
                self->store([self, fileType] { self->m_services.settings.setAudioFileType(fileType); });
            }
        };
        sheet.actions.push_back(
            {qtTrId(choice.title), AlertAction::Style::Default, choose, choice.fileType == m_fileType});
    }
    sheet.actions.push_back({qtTrId("Cancel"), AlertAction::Style::Cancel});
    m_services.presenter.presentActionSheet(std::move(sheet));
}

void SettingVC::showQualityActionsheet() {
    if (isFormatHeld()) {
        return;
    }
    Alert sheet{qtTrId("Select Recording Audio Quality"), {}, {}};
    for (const char* key : {"Low", "Medium", "High"}) {
        const auto choose = [self = QPointer(this), key] {
            if (self) {
                // The display text is stored instead of its key, on purpose: the store's format has it so.
                self->store([self, key] { self->m_services.settings.setAudioQualityType(qtTrId(key)); });
            }
        };
        sheet.actions.push_back({qtTrId(key), AlertAction::Style::Default, choose, qtTrId(key) == m_quality});
    }
    sheet.actions.push_back({qtTrId("Cancel"), AlertAction::Style::Cancel});
    m_services.presenter.presentActionSheet(std::move(sheet));
}

void SettingVC::store(std::function<void()> choice) {
    m_waiting.push_back(std::move(choice));
    storeWaiting();
}

void SettingVC::storeWaiting() {
    if (!isFormatHeld() && !m_waiting.empty()) {
        for (const auto& choice : std::exchange(m_waiting, {})) {
            choice();
        }
        loadDataSoon();
    }
    Q_EMIT formatHeldChanged();
}

void SettingVC::loadDataSoon() {
    m_services.runLoop.dispatchAfter(kReloadDelaySeconds, [self = QPointer(this)] {
        if (self) {
            self->loadData();
        }
    });
}

// A moved slider's label is in fixed English while the one that the row is built with is a text of the string table, on
// purpose: the two have always differed so, and the label turns back when the rows are built again.

void SettingVC::rewindSliderChange(double value) {
    m_rewindValue = snappedSkipSeconds(value);
    m_services.settings.setRewindSeconds(m_rewindValue);
    m_rewindText = withSeconds(QStringLiteral("Rewind ( %1 Sec )"), m_services.settings.rewindSeconds());
    Q_EMIT slidersChanged();
}

void SettingVC::forwardSliderChange(double value) {
    m_forwardValue = snappedSkipSeconds(value);
    m_services.settings.setForwardSeconds(m_forwardValue);
    m_forwardText = withSeconds(QStringLiteral("Forward ( %1 Sec )"), m_services.settings.forwardSeconds());
    Q_EMIT slidersChanged();
}

void SettingVC::hideShowiClound(bool on) {
    if (on && !m_services.cloud.hasAccount()) {
        m_services.cloud.open();
        return Q_EMIT rowsChanged();
    }
    m_services.settings.setCloudSyncOn(on);
    m_isCloudSyncOn = m_services.settings.isCloudSyncOn();
    qInfo("%d", m_isCloudSyncOn ? 0 : 1);
    m_services.cloud.settingsChanged();
    Q_EMIT rowsChanged();
}

void SettingVC::cloudAccountChanged() {
    hideShowiClound(m_services.cloud.hasAccount());
}

void SettingVC::autoQuickMail(bool on) {
    m_services.settings.setQuickMailOn(on);
    m_isQuickMailOn = m_services.settings.isQuickMailOn();
    Q_EMIT rowsChanged();
}

}  // namespace tavi
