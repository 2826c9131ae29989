#include "recording/AudioRecordVC.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>
#include <QLoggingCategory>
#include <QPointer>

#include "library/utility/DateTexts.h"
#include "library/utility/Utility.h"
#include "recording/AudioSettings.h"

namespace tavi {

namespace {

Q_LOGGING_CATEGORY(lcRecording, "tavi.recording", QtInfoMsg)

constexpr double kClockInterval = 1.0;
constexpr double kLevelInterval = 0.1;
constexpr double kLoudest = 0.0;
constexpr double kSilence = -160.0;
constexpr double kZeroPoint = -45.0;

QString recordButtonImage(bool isRunning) {
    return isRunning ? QStringLiteral("record_pause.png") : QStringLiteral("rec_normal.png");
}

}  // namespace

AudioRecordVC::AudioRecordVC(const Services& services, QObject* parent)
    : QObject(parent), m_services(services), m_lblTimer(clockText(0)) {
    connect(&m_services.sessionFile, &SessionFile::saved, this, &AudioRecordVC::didSave);
}

AudioRecordVC::~AudioRecordVC() {
    stopTimer();
    if (m_audioRecorder != nullptr) {
        m_audioRecorder->setDelegate(nullptr);
    }
}

ButtonOutlet AudioRecordVC::btnRecord() const {
    ButtonOutlet button;
    button.image = recordButtonImage(m_isRecordingRunning);
    return button;
}

ButtonOutlet AudioRecordVC::btnStop() const {
    ButtonOutlet button;
    button.enabled = m_isStopEnabled;
    return button;
}

LabelOutlet AudioRecordVC::lblTimer() const {
    return {m_lblTimer, {}, false};
}

LabelOutlet AudioRecordVC::lblRecording() const {
    const bool isPaused = m_isRecording && !m_isRecordingRunning;
    return {isPaused ? qtTrId("lbl_record_pause") : qtTrId("lbl_recording"), {}, m_isRecordingLabelHidden};
}

LabelOutlet AudioRecordVC::lblFileType() const {
    return {m_lblFileType, QStringLiteral("#c8252c"), false};
}

LabelOutlet AudioRecordVC::lblDate() const {
    return {m_lblDate, QStringLiteral("#aaaaaa"), false};
}

void AudioRecordVC::viewDidLoad() {
    initWaveViewMirror();
}

void AudioRecordVC::viewWillAppear() {
    createDirAtSharedContainerPath();
    m_services.sessionFile.updateRecordFilePath();
    showFileType();
    m_lblDate = recordingDateText(m_services.runLoop.clock().now(), QLocale());
    if (!m_isRecording) {
        m_isStopEnabled = false;
        initWaveViewMirror();
    }
    listenToWormhole();
    Q_EMIT outletsChanged();
}

void AudioRecordVC::createDirAtSharedContainerPath() const {
    QDir().mkpath(m_services.container.groupContainerPath(kApplicationGroup) + QLatin1Char('/') + qtTrId("user_abc"));
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
            Utility::showAlrtWithTitle(message.toString(), {}, self->m_services.presenter);
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
    m_services.audioSession.requestRecordPermission([self, &runLoop](bool granted) {
        runLoop.dispatchMain([self, granted] {
            if (self) {
                self->permissionAnswered(granted);
            }
        });
    });
}

void AudioRecordVC::permissionAnswered(bool granted) {
    if (!granted) {
        showAlertWithTitle(qtTrId("microphone_denied"), qtTrId("access_device_microphone"));
    } else if (isSaving()) {
        m_startsWhenSaved = !m_startsWhenSaved;
    } else if (!m_isRecording) {
        startRecording(nullptr);
    } else if (!m_isRecordingRunning) {
        resumeRecording();
    } else {
        pauseRecording();
    }
}

void AudioRecordVC::resumeRecording() {
    m_audioRecorder->record();
    startTimer();
    m_isRecordingRunning = true;
    Q_EMIT outletsChanged();
}

void AudioRecordVC::pauseRecording() {
    m_audioRecorder->pause();
    stopTimer();
    m_isRecordingRunning = false;
    Q_EMIT outletsChanged();
}

void AudioRecordVC::startRecording(QObject* sender) {
    Q_UNUSED(sender)
    m_services.tabBar.setUserInteractionEnabled(false);
    m_isRecordingLabelHidden = false;
    m_services.sessionFile.begin();
    showFileType();
    m_isStopEnabled = false;
    Q_EMIT outletsChanged();

    AudioSession& session = m_services.audioSession;
    const auto category =
        session.setCategory(AudioSession::Category::PlayAndRecord, AudioSession::CategoryOption::DefaultToSpeaker);
    if (!category) {
        abandonStart(qtTrId("alert_title"), category.error().text);
        return;
    }
    // What stands in the way of activation shows when recording starts.
    session.setActive(true);
    const AudioRecordSettings recordSetting =
        generateAudioSettings(m_services.settings.audioFileType(), m_services.settings.audioQualityType());
    auto recorder = m_services.audioRecorders.recorderWithPath(m_services.sessionFile.recordFilePath(), recordSetting);
    if (!recorder) {
        abandonStart(qtTrId("alert_title"), recorder.error().text);
        return;
    }
    m_audioRecorder = std::move(*recorder);
    m_audioRecorder->setDelegate(this);
    m_audioRecorder->prepareToRecord();
    m_audioRecorder->setMeteringEnabled(true);
    if (!session.isInputAvailable()) {
        abandonStart(qtTrId("audio_hardware_alert_title"), qtTrId("audio_hardware_alert_message"));
        return;
    }
    m_isRecording = true;
    m_isRecordingRunning = true;
    m_isStopEnabled = true;
    m_audioRecorder->record();
    startTimer();
    Q_EMIT outletsChanged();
}

void AudioRecordVC::abandonStart(const QString& title, const QString& message) {
    if (m_audioRecorder != nullptr) {
        m_audioRecorder->setDelegate(nullptr);
        m_audioRecorder.reset();
    }
    // On purpose the tab bar stays disabled and the label visible until the next successful stop: the user is kept at
    // the screen where the recording that was asked for is still to be made.
    showAlertWithTitle(title, message);
}

void AudioRecordVC::startTimer() {
    if (m_isReset) {
        m_secondStart = 0;
        m_isReset = false;
    }
    const QPointer<AudioRecordVC> self(this);
    m_timer = m_services.runLoop.scheduledTimer(kClockInterval, true, [self] {
        if (self) {
            self->updateTimer();
        }
    });
    m_waveTimer = m_services.runLoop.scheduledTimer(kLevelInterval, true, [self] {
        if (self) {
            self->waveViewUpdate();
        }
    });
}

void AudioRecordVC::stopTimer() {
    for (auto* timer : {&m_timer, &m_waveTimer}) {
        if (*timer != nullptr) {
            (*timer)->invalidate();
            timer->reset();
        }
    }
}

void AudioRecordVC::updateTimer() {
    m_audioRecorder->updateMeters();
    // The clock counts its own ticks, not the recorder's time.
    m_secondStart += 1;
    m_lblTimer = clockText(m_secondStart);
    Q_EMIT clockChanged();
}

void AudioRecordVC::waveViewUpdate() {
    if (m_isRecording) {
        m_audioRecorder->updateMeters();
        m_waveViewMirror.startWavingWithValue(static_cast<double>(m_audioRecorder->averagePowerForChannel(0)));
    }
}

void AudioRecordVC::stopAndSaveRecording(QObject* sender) {
    Q_UNUSED(sender)
    endSession(true);
}

void AudioRecordVC::stopFromWatch() {
    if (m_isStopEnabled) {
        // On purpose the tab bar stays disabled: stopped from afar, the screen stays where its user left it.
        endSession(false);
    }
}

void AudioRecordVC::endSession(bool enablesTabBar) {
    if (enablesTabBar) {
        m_services.tabBar.setUserInteractionEnabled(true);
    }
    const bool hadSession = m_isRecording;
    m_isReset = true;
    m_isRecording = false;
    m_isRecordingRunning = false;
    stopTimer();
    m_isStopEnabled = false;
    m_lblTimer = clockText(0);
    m_isRecordingLabelHidden = true;
    Q_EMIT clockChanged();
    Q_EMIT outletsChanged();
    if (hadSession) {
        m_nameToSave = fileBaseName(m_services.runLoop.clock().now(), QLocale());
        m_audioRecorder->stop();
    }
}

void AudioRecordVC::audioRecorderDidFinishRecording(AudioRecorder& recorder, const std::optional<Error>& error) {
    const bool endedByItself = m_isRecording;
    if (endedByItself) {
        endSession(true);
    }
    if (error) {
        qCWarning(lcRecording, "%s", qPrintable(error->text));
        showAlertWithTitle(qtTrId("alert_title"), error->text);
    }
    if (endedByItself && recorder.framesRecorded() == 0) {
        // Nothing was captured: there is nothing to save.
        m_nameToSave.reset();
        return;
    }
    m_services.sessionFile.saveFileToDoc(*m_nameToSave);
}

void AudioRecordVC::didSave() {
    m_nameToSave.reset();
    m_waveViewMirror.resetWave();
    m_audioRecorder.reset();
    if (m_startsWhenSaved) {
        m_startsWhenSaved = false;
        startRecording(nullptr);
    }
}

void AudioRecordVC::showAlertWithTitle(const QString& title, const QString& message) {
    m_services.presenter.presentAlert({title, message, {{qtTrId("alert_title_ok")}}});
}

void AudioRecordVC::finishBeforeTermination() {
    if (m_isRecording) {
        endSession(true);
    }
    if (m_audioRecorder != nullptr) {
        m_audioRecorder->waitUntilFinished();
    }
    m_services.sessionFile.finishBeforeTermination();
}

}  // namespace tavi
