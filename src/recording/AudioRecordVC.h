#pragma once

#include <QObject>
#include <cstdint>
#include <memory>
#include <optional>

#include "app/settings/SettingsStore.h"
#include "platform/AppContainer.h"
#include "platform/AudioRecorder.h"
#include "platform/AudioSession.h"
#include "platform/Outlets.h"
#include "platform/Presenter.h"
#include "platform/RunLoop.h"
#include "platform/TabBar.h"
#include "recording/SessionFile.h"
#include "trimming/waves/WaveView.h"
#include "watch/MessageListening.h"

namespace tavi {

/// The recording screen (tab 0): one recording session at a time, its clock and its level wave. Main thread only.
class AudioRecordVC : public QObject, private AudioRecorderDelegate {
    Q_OBJECT
    Q_PROPERTY(tavi::ButtonOutlet btnRecord READ btnRecord NOTIFY outletsChanged)
    Q_PROPERTY(tavi::ButtonOutlet btnStop READ btnStop NOTIFY outletsChanged)
    Q_PROPERTY(tavi::LabelOutlet lblTimer READ lblTimer NOTIFY clockChanged)
    Q_PROPERTY(tavi::LabelOutlet lblRecording READ lblRecording NOTIFY outletsChanged)
    Q_PROPERTY(tavi::LabelOutlet lblFileType READ lblFileType NOTIFY outletsChanged)
    Q_PROPERTY(tavi::LabelOutlet lblDate READ lblDate NOTIFY outletsChanged)
    Q_PROPERTY(tavi::WaveView* waveViewMirror READ waveViewMirror CONSTANT)
    Q_PROPERTY(bool isRecording READ isRecording NOTIFY outletsChanged)
    Q_PROPERTY(bool isRecordingRunning READ isRecordingRunning NOTIFY outletsChanged)

public:
    /// What the screen works with; all of it must outlive the screen.
    struct Services {
        AudioSession& audioSession;
        AudioRecorders& audioRecorders;
        SettingsStore& settings;
        const AppContainer& container;
        RunLoop& runLoop;
        Presenter& presenter;
        TabBar& tabBar;
        SessionFile& sessionFile;
    };

    explicit AudioRecordVC(const Services& services, QObject* parent = nullptr);
    ~AudioRecordVC() override;

    ButtonOutlet btnRecord() const;
    ButtonOutlet btnStop() const;
    LabelOutlet lblTimer() const;
    LabelOutlet lblRecording() const;
    LabelOutlet lblFileType() const;
    LabelOutlet lblDate() const;
    WaveView* waveViewMirror() { return &m_waveViewMirror; }
    bool isRecording() const { return m_isRecording; }
    bool isRecordingRunning() const { return m_isRecordingRunning; }

    /// Attaches the companions' channel; it is listened to from the next appearance on. Nothing attaches one by itself.
    void setWormhole(MessageListening* wormhole) { m_wormhole = wormhole; }
    /// Saves a session that still runs, and waits until it and any earlier one are in the documents folder.
    void finishBeforeTermination();

public Q_SLOTS:
    void viewDidLoad();
    void viewWillAppear();
    /// The record button: starts, pauses or resumes, once recording is permitted.
    void playAndPauseRecording(QObject* sender = nullptr);
    /// The stop button: ends the session and saves it.
    void stopAndSaveRecording(QObject* sender = nullptr);

Q_SIGNALS:
    void outletsChanged();
    void clockChanged();

private:
    void audioRecorderDidFinishRecording(AudioRecorder& recorder, const std::optional<Error>& error) override;

    void permissionAnswered(bool granted);
    void startRecording(QObject* sender);
    /// Shows the error and gives up the session that was being started; the tab bar and the label stay as they are.
    void abandonStart(const QString& title, const QString& message);
    void pauseRecording();
    void resumeRecording();
    void stopFromWatch();
    void endSession(bool enablesTabBar);
    void didSave();

    void createDirAtSharedContainerPath() const;
    void initWaveViewMirror();
    void listenToWormhole();
    void startTimer();
    void stopTimer();
    void updateTimer();
    void waveViewUpdate();
    void showFileType();
    void showAlertWithTitle(const QString& title, const QString& message);
    bool isSaving() const { return m_nameToSave.has_value(); }

    Services m_services;
    MessageListening* m_wormhole = nullptr;
    WaveView m_waveViewMirror;
    std::unique_ptr<AudioRecorder> m_audioRecorder;

    bool m_isRecording = false;
    bool m_isRecordingRunning = false;
    bool m_isReset = false;
    bool m_isStopEnabled = false;
    bool m_isRecordingLabelHidden = true;
    /// Base name of a stopped recording from its stop until its file is in its place.
    std::optional<QString> m_nameToSave;
    /// The record button was used while the last recording was being saved; the temporary file is not free before.
    bool m_startsWhenSaved = false;

    std::int64_t m_secondStart = 0;
    std::shared_ptr<Timer> m_timer;
    std::shared_ptr<Timer> m_waveTimer;
    QString m_lblTimer;
    QString m_lblFileType;
    QString m_lblDate;
};

}  // namespace tavi
