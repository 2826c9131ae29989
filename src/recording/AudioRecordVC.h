#pragma once

#include <QObject>
#include <memory>
#include <optional>

#include "platform/Outlets.h"
#include "recording/MicrophoneChoice.h"
#include "recording/MicrophoneWatch.h"
#include "recording/RecordServices.h"
#include "recording/RecordingLevel.h"
#include "recording/SessionClock.h"
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
    Q_PROPERTY(QString hint READ hint NOTIFY outletsChanged)
    Q_PROPERTY(tavi::WaveView* waveViewMirror READ waveViewMirror CONSTANT)
    Q_PROPERTY(tavi::MicrophoneChoice* microphone READ microphone CONSTANT)
    Q_PROPERTY(bool isRecording READ isRecording NOTIFY outletsChanged)
    Q_PROPERTY(bool isRecordingRunning READ isRecordingRunning NOTIFY outletsChanged)
    Q_PROPERTY(bool isDismissable READ isDismissable NOTIFY outletsChanged)
    Q_PROPERTY(bool isIdle READ isIdle NOTIFY outletsChanged)
    Q_PROPERTY(tavi::RecordingLevel* level READ level CONSTANT)
    Q_PROPERTY(tavi::LastRecording* last READ last CONSTANT)

public:
    using Services = RecordServices;
    /// What the screen is about. All else that depends on it, but for the lock of the tab bar, is read from it.
    enum class State {
        /// There is no session.
        Idle,
        /// A session was asked for. It starts as soon as the last one is saved, for both need the temporary file.
        Starting,
        Recording,
        Paused,
        /// A session was stopped; its file is not among the recordings yet.
        Saving,
        /// A session could not be started.
        Failed,
    };

    explicit AudioRecordVC(const Services& services, QObject* parent = nullptr);
    ~AudioRecordVC() override;

    ButtonOutlet btnRecord() const;
    ButtonOutlet btnStop() const;
    LabelOutlet lblTimer() const;
    LabelOutlet lblRecording() const;
    LabelOutlet lblFileType() const;
    LabelOutlet lblDate() const;
    /// Shown in the place of lblRecording while that is hidden.
    QString hint() const;
    WaveView* waveViewMirror() { return &m_waveViewMirror; }
    MicrophoneChoice* microphone() { return &m_microphone; }
    State state() const { return m_state; }
    /// Whether there is a session, started and not yet stopped.
    bool isRecording() const { return m_state == State::Recording || m_state == State::Paused; }
    /// Whether it captures now.
    bool isRecordingRunning() const { return m_state == State::Recording; }
    /// Whether the tabs are still locked though nothing is recorded or saved. The stop action unlocks them.
    bool isDismissable() const;
    bool isIdle() const { return m_state == State::Idle; }
    RecordingLevel* level() { return &m_level; }
    LastRecording* last() { return &m_services.last; }
    /// On the clock of the session, 0 where there is none.
    qint64 seconds() const { return isRecording() ? m_clock.secondStart() : 0; }
    /// Whether the clock begins at 0 when it starts next.
    bool isReset() const { return !isRecording(); }

    /// Attaches the companions' channel; it is listened to from the next appearance on. Nothing attaches one by itself.
    void setWormhole(MessageListening* wormhole) { m_wormhole = wormhole; }
    /// Removes the file of that name from the documents folder; only the log says whether it could be.
    void removeFile(const std::filesystem::path& name) const;
    /// Saves a session that still runs, and waits until it and any earlier one are in the documents folder.
    void finishBeforeTermination();
    /// Has what was captured brought to the disk before the delay is over.
    void systemWillSleep(const std::shared_ptr<void>& delay);
    /// The recording goes on; how much is missing is said.
    void systemHasWoken(double secondsAsleep);

public Q_SLOTS:
    void viewDidLoad();
    void viewWillAppear();
    /// The record button: starts, pauses or resumes, once recording is permitted.
    void playAndPauseRecording(QObject* sender = nullptr);
    /// The stop button: ends the session and saves it.
    void stopAndSaveRecording(QObject* sender = nullptr);
    /// The format's label: goes to the settings while there is no session.
    void showSettings();

Q_SIGNALS:
    void outletsChanged();
    void clockChanged();
    /// The user asks to hear the recording of that name.
    void playRequested(const QString& fileName);

private:
    void audioRecorderDidFinishRecording(AudioRecorder& recorder, const std::optional<Error>& error) override;

    void permissionAnswered(bool granted);
    void startRecording(QObject* sender);
    void showSession();
    /// Shows the error and gives up the session that was being started; the tab bar and the label stay as they are.
    void abandonStart(const QString& title, const QString& message);
    void pauseRecording();
    void resumeRecording();
    void stopFromWatch();
    void endSession(bool enablesTabBar);
    void didSave(const QString& fileName);
    void didEnd();

    void createDirAtSharedContainerPath() const;
    void initWaveViewMirror();
    void listenToWormhole();
    void updateTimer();
    void waveViewUpdate();
    void showFileType();
    void showAlertWithTitle(const QString& title, const QString& message);
    void setState(State state);

    Services m_services;
    MessageListening* m_wormhole = nullptr;
    WaveView m_waveViewMirror;
    std::unique_ptr<AudioRecorder> m_audioRecorder;
    SessionClock m_clock{m_services.runLoop};
    RecordingLevel m_level;
    MicrophoneWatch m_watch{m_services.notices};
    MicrophoneChoice m_microphone{{.audioSession = m_services.audioSession,
                                   .settings = m_services.settings,
                                   .runLoop = m_services.runLoop,
                                   .presenter = m_services.presenter,
                                   .notices = m_services.notices}};

    State m_state = State::Idle;
    /// Sessions ended so far. What a tap asked for before one of the ends is not done after it.
    int m_ends = 0;
    /// Base name of the session that was stopped last.
    QString m_name;
    /// What the clock said at its end.
    QString m_time;
    QString m_lblFileType;
    QString m_lblDate;
};

}  // namespace tavi
