#include "recording/AudioRecordVC.h"

#include <unistd.h>

#include <QCoreApplication>
#include <QLocale>
#include <QLoggingCategory>
#include <QPointer>
#include <cerrno>
#include <system_error>
#include <utility>

#include "files/PathText.h"
#include "library/utility/DateTexts.h"
#include "recording/AudioSettings.h"

namespace tavi {

namespace {

Q_LOGGING_CATEGORY(lcRecording, "tavi.recording", QtInfoMsg)

constexpr int kRecordTab = 0;
constexpr int kSettingsTab = 2;
constexpr qsizetype kMostToldCharacters = 1000;
constexpr double kLoudest = 0.0;
constexpr double kSilence = -160.0;
constexpr double kZeroPoint = -45.0;

}  // namespace

AudioRecordVC::AudioRecordVC(const Services& services, QObject* parent) : QObject(parent), m_services(services) {
    connect(&m_services.sessionFile, &SessionFile::saved, this, &AudioRecordVC::didSave);
    connect(&m_services.sessionFile, &SessionFile::playRequested, this, &AudioRecordVC::playRequested);
    connect(&m_services.last, &LastRecording::playRequested, this, &AudioRecordVC::playRequested);
    connect(&m_clock, &SessionClock::updateTimer, this, &AudioRecordVC::updateTimer);
    connect(&m_clock, &SessionClock::waveViewUpdate, this, &AudioRecordVC::waveViewUpdate);
}

AudioRecordVC::~AudioRecordVC() {
    if (m_audioRecorder != nullptr) {
        m_audioRecorder->setDelegate(nullptr);
    }
}

ButtonOutlet AudioRecordVC::btnRecord() const {
    ButtonOutlet button;
    button.image = isRecordingRunning() ? QStringLiteral("record_pause.png") : QStringLiteral("rec_normal.png");
    return button;
}

ButtonOutlet AudioRecordVC::btnStop() const {
    ButtonOutlet button;
    button.enabled = isRecording();
    return button;
}

bool AudioRecordVC::isDismissable() const {
    return !m_services.tabBar.isUserInteractionEnabled() && (m_state == State::Idle || m_state == State::Failed);
}

LabelOutlet AudioRecordVC::lblTimer() const {
    return {clockText(seconds()), {}, false};
}

LabelOutlet AudioRecordVC::lblRecording() const {
    // After a start that failed it stays visible, on purpose: the recording that was asked for is still to be made.
    const bool isShown = isRecording() || m_state == State::Failed;
    return {m_state == State::Paused ? qtTrId("lbl_record_pause") : qtTrId("lbl_recording"), {}, !isShown};
}

QString AudioRecordVC::hint() const {
    if (m_state == State::Saving) {
        return qtTrId("record_saving");
    }
    return m_state == State::Starting ? qtTrId("record_starting") : qtTrId("record_hint");
}

LabelOutlet AudioRecordVC::lblFileType() const {
    return {m_lblFileType, QStringLiteral("#c8252c"), false};
}

LabelOutlet AudioRecordVC::lblDate() const {
    return {m_lblDate, QStringLiteral("#aaaaaa"), false};
}

void AudioRecordVC::viewDidLoad() {
    m_services.cloud.viewDidLoad();
    initWaveViewMirror();
}

void AudioRecordVC::viewWillAppear() {
    createDirAtSharedContainerPath();
    m_services.sessionFile.updateRecordFilePath();
    showFileType();
    m_lblDate = recordingDateText(m_services.runLoop.clock().now(), QLocale());
    if (!isRecording()) {
        initWaveViewMirror();
        m_services.last.find();
    }
    listenToWormhole();
    Q_EMIT outletsChanged();
}

void AudioRecordVC::createDirAtSharedContainerPath() const {
    std::error_code ignored;
    std::filesystem::create_directories(
        m_services.container.groupContainerPath(kApplicationGroup) / nativePath(qtTrId("user_abc")), ignored);
}

void AudioRecordVC::showFileType() {
    const SettingsStore& settings = m_services.settings;
    m_lblFileType = QStringLiteral("%1 - %2").arg(settings.audioQualityType(), settings.audioFileType());
}

void AudioRecordVC::initWaveViewMirror() {
    m_waveViewMirror.setWaveType(WaveView::Mirror, kLoudest, kSilence);
    m_waveViewMirror.setZeroPointValue(kZeroPoint);
}

void AudioRecordVC::listenToWormhole() {
    if (m_wormhole == nullptr) {
        return;
    }
    const QPointer<AudioRecordVC> self(this);
    m_wormhole->listenForMessageWithIdentifier(QStringLiteral("ChangeRecord"), [self](const QVariant& message) {
        if (self) {
            // Nobody reads more, and laying out a text of megabytes would hold up the window.
            Alert alert{message.toString().left(kMostToldCharacters), {}, {AlertAction{qtTrId("OK")}}};
            alert.isFromOutside = true;
            self->m_services.presenter.presentAlert(std::move(alert));
        }
    });
    m_wormhole->listenForMessageWithIdentifier(QStringLiteral("Record"), [self](const QVariant&) {
        if (self) {
            self->playAndPauseRecording(nullptr);
        }
    });
    m_wormhole->listenForMessageWithIdentifier(QStringLiteral("Stop"), [self](const QVariant&) {
        if (self) {
            self->stopFromWatch();
        }
    });
}

void AudioRecordVC::playAndPauseRecording(QObject* sender) {
    Q_UNUSED(sender)
    qCDebug(lcRecording, "record-tap");
    const QPointer<AudioRecordVC> self(this);
    RunLoop& runLoop = m_services.runLoop;
    m_services.audioSession.requestRecordPermission([self, &runLoop, ends = m_ends](bool granted) {
        runLoop.dispatchMain([self, ends, granted] {
            if (self && self->m_ends == ends) {
                self->permissionAnswered(granted);
            }
        });
    });
}

void AudioRecordVC::permissionAnswered(bool granted) {
    if (!granted) {
        showAlertWithTitle(qtTrId("microphone_denied"), qtTrId("access_device_microphone"));
        return;
    }
    switch (m_state) {
        case State::Idle:
        case State::Failed:
            return startRecording(nullptr);
        case State::Saving:
            return setState(State::Starting);
        case State::Starting:
            return;
        case State::Recording:
            return pauseRecording();
        case State::Paused:
            return resumeRecording();
    }
}

void AudioRecordVC::resumeRecording() {
    showSession();
    m_audioRecorder->record();
    m_watch.begin(*m_audioRecorder);
    m_clock.startTimer(isReset());
    setState(State::Recording);
}

void AudioRecordVC::pauseRecording() {
    m_audioRecorder->pause();
    m_clock.stopTimer();
    m_level.forget();
    setState(State::Paused);
}

void AudioRecordVC::showSession() {
    // The user may have gone elsewhere since the tap. Nothing is recorded unseen, and the tabs are locked here only.
    m_services.tabBar.setSelectedIndex(kRecordTab);
    m_services.tabBar.setUserInteractionEnabled(false);
}

void AudioRecordVC::startRecording(QObject* sender) {
    Q_UNUSED(sender)
    setState(State::Starting);
    showSession();
    m_services.sessionFile.begin();
    showFileType();

    AudioSession& session = m_services.audioSession;
    const auto category =
        session.setCategory(AudioSession::Category::PlayAndRecord, AudioSession::CategoryOption::DefaultToSpeaker);
    if (!category) {
        abandonStart(qtTrId("alert_title"), category.error().text);
        return;
    }
    // What stands in the way of activation shows when recording starts.
    session.setActive(true);
    m_microphone.willRecord();
    const AudioRecordSettings recordSetting =
        generateAudioSettings(m_services.settings.audioFileType(), m_services.settings.audioQualityType());
    auto recorder = m_services.audioRecorders.recorderWithPath(m_services.sessionFile.sessionPath(), recordSetting);
    if (!recorder) {
        abandonStart(qtTrId("alert_title"), recorder.error().text);
        return;
    }
    m_services.sessionFile.didCreate();
    m_audioRecorder = std::move(*recorder);
    m_audioRecorder->setDelegate(this);
    m_audioRecorder->prepareToRecord();
    m_audioRecorder->setMeteringEnabled(true);
    if (!session.isInputAvailable()) {
        abandonStart(qtTrId("audio_hardware_alert_title"), qtTrId("audio_hardware_alert_message"));
        return;
    }
    m_audioRecorder->record();
    m_watch.begin(*m_audioRecorder);
    m_clock.startTimer(isReset());
    setState(State::Recording);
}

void AudioRecordVC::abandonStart(const QString& title, const QString& message) {
    if (m_audioRecorder != nullptr) {
        m_audioRecorder->setDelegate(nullptr);
        m_audioRecorder.reset();
    }
    m_services.sessionFile.abandon();
    // The tab bar stays disabled until the next successful stop, on purpose: the user is kept at the screen where the
    // recording that was asked for is still to be made.
    setState(State::Failed);
    showAlertWithTitle(title, message);
}

void AudioRecordVC::updateTimer() {
    m_audioRecorder->updateMeters();
    Q_EMIT clockChanged();
}

void AudioRecordVC::waveViewUpdate() {
    if (isRecording()) {
        m_audioRecorder->updateMeters();
        if (isRecordingRunning()) {
            m_watch.look(*m_audioRecorder);
            m_microphone.setInUse(m_audioRecorder->inputName());
        }
        m_level.read(*m_audioRecorder);
        m_waveViewMirror.startWavingWithValue(m_level.value());
    }
}

void AudioRecordVC::showSettings() {
    if (isIdle() && m_services.tabBar.isUserInteractionEnabled()) {
        m_services.tabBar.setSelectedIndex(kSettingsTab);
    }
}

void AudioRecordVC::stopAndSaveRecording(QObject* sender) {
    Q_UNUSED(sender)
    endSession(true);
}

void AudioRecordVC::stopFromWatch() {
    if (btnStop().enabled) {
        // The tab bar stays disabled, on purpose: stopped from afar, the screen stays where its user left it.
        endSession(false);
    }
}

void AudioRecordVC::endSession(bool enablesTabBar) {
    if (enablesTabBar) {
        m_services.tabBar.setUserInteractionEnabled(true);
    }
    ++m_ends;
    m_clock.stopTimer();
    m_level.forget();
    m_microphone.setInUse({});
    if (isRecording()) {
        m_time = lblTimer().text;
        m_name = fileBaseName(m_services.runLoop.clock().now(), QLocale());
        m_audioRecorder->stop();
        setState(State::Saving);
    } else {
        // What waits behind the saving of a session is given up; the saving goes on.
        setState(m_state == State::Starting || m_state == State::Saving ? State::Saving : State::Idle);
    }
}

void AudioRecordVC::audioRecorderDidFinishRecording(AudioRecorder& recorder, const std::optional<Error>& error) {
    const bool endedByItself = isRecording();
    if (endedByItself) {
        endSession(true);
    }
    const bool hasSound = recorder.framesRecorded() > 0;
    if (error) {
        qCWarning(lcRecording, "%s", qPrintable(error->text));
        showAlertWithTitle(hasSound ? qtTrId("record_ended_title") : qtTrId("alert_title"),
                           hasSound ? qtTrId("record_ended").arg(error->text) : error->text);
    }
    if (!hasSound && (endedByItself || error)) {
        // Nothing was captured: there is nothing to save. The recorder is still needed by who calls this.
        m_services.sessionFile.abandon();
        m_services.runLoop.dispatchMain([self = QPointer(this)] {
            if (self) {
                self->didEnd();
            }
        });
        return;
    }
    m_services.sessionFile.saveFileToDoc(m_name, endedByItself);
}

void AudioRecordVC::didSave(const QString& fileName) {
    m_services.last.show(fileName, m_time);
    didEnd();
}

void AudioRecordVC::didEnd() {
    m_waveViewMirror.resetWave();
    m_audioRecorder.reset();
    if (m_state == State::Starting) {
        startRecording(nullptr);
    } else {
        setState(State::Idle);
    }
}

void AudioRecordVC::showAlertWithTitle(const QString& title, const QString& message) {
    m_services.presenter.presentAlert({title, message, {{qtTrId("alert_title_ok")}}});
}

void AudioRecordVC::setState(State state) {
    m_state = state;
    Q_EMIT clockChanged();
    Q_EMIT outletsChanged();
}

void AudioRecordVC::systemWillSleep(const std::shared_ptr<void>& delay) {
    if (isRecording()) {
        m_audioRecorder->bringToDisk(delay);
    }
}

void AudioRecordVC::systemHasWoken(double secondsAsleep) {
    if (isRecordingRunning()) {
        m_watch.didSleep(*m_audioRecorder, secondsAsleep);
    }
}

void AudioRecordVC::finishBeforeTermination() {
    if (isRecording()) {
        endSession(true);
    }
    if (m_audioRecorder != nullptr) {
        m_audioRecorder->waitUntilFinished();
    }
    m_services.sessionFile.finishBeforeTermination();
}

void AudioRecordVC::removeFile(const std::filesystem::path& name) const {
    if (::unlink((m_services.container.documentsPath() / name).c_str()) == 0) {
        qCInfo(lcRecording, "delete file");
    } else {
        qCInfo(lcRecording, "Could not delete file -:%s ", std::generic_category().message(errno).c_str());
    }
}

}  // namespace tavi
