#pragma once

#include <QObject>
#include <memory>

#include "trimming/ScratchRecorder.h"
#include "trimming/TrimExport.h"
#include "trimming/TrimPlayer.h"
#include "trimming/TrimSelection.h"
#include "trimming/TrimSource.h"
#include "trimming/TrimZoom.h"
#include "trimming/TrimmerInput.h"

namespace tavi {

class AudioTrimmerStage;

/// The screen that cuts a recording down to a stretch, in a new file. The recording is never changed. Main thread only.
class AudioTrimmerViewController : public QObject {
    Q_OBJECT
    Q_PROPERTY(tavi::EZAudioPlot* audioPlot READ audioPlot CONSTANT)
    Q_PROPERTY(tavi::TrimSelection* selection READ selection CONSTANT)
    Q_PROPERTY(tavi::TrimZoom* zoom READ zoom CONSTANT)
    Q_PROPERTY(tavi::TrimSource* source READ source CONSTANT)
    Q_PROPERTY(tavi::TrimPlayer* player READ player CONSTANT)
    Q_PROPERTY(tavi::TrimExport* exporter READ exporter CONSTANT)
    Q_PROPERTY(QString fileText READ fileText CONSTANT)
    Q_PROPERTY(tavi::LabelOutlet lblTotalDuration READ lblTotalDuration NOTIFY outletsChanged)
    Q_PROPERTY(tavi::ButtonOutlet btnEditTrimmedVideo READ btnEditTrimmedVideo NOTIFY outletsChanged)
    Q_PROPERTY(bool isDoneHidden READ isDoneHidden NOTIFY outletsChanged)
    Q_PROPERTY(bool areEditingControlsHidden READ areEditingControlsHidden NOTIFY outletsChanged)
    Q_PROPERTY(bool isRecordingViewHidden READ isRecordingViewHidden NOTIFY outletsChanged)
    Q_PROPERTY(bool isEditingViewHidden READ isEditingViewHidden NOTIFY outletsChanged)

public:
    using Services = TrimmerServices;
    using Input = TrimmerInput;
    using Completion = TrimmerInput::Completion;

    /// Shows the trimmer over the presenting screen, on the stage.
    static void presentAudioTrimmerController(AudioTrimmerStage& stage, QObject* presenter, const std::string& strUrl,
                                              const QVariantMap& dicGetData, const std::filesystem::path& getFfName,
                                              Completion completion);
    /// Shows it as the next screen instead.
    static void pushAudioTrimmerController(AudioTrimmerStage& stage, const std::string& strUrl, Completion completion);

    AudioTrimmerViewController(const Services& services, Input input, QObject* parent = nullptr);
    /// Waits for the running export of a file that its caller has been told of; gives any other up.
    ~AudioTrimmerViewController() override;

    EZAudioPlot* audioPlot() { return m_audioPlot.get(); }
    TrimSelection* selection() { return &m_selection; }
    TrimZoom* zoom() { return &m_zoom; }
    TrimSource* source() { return &m_source; }
    TrimPlayer* player() { return &m_player; }
    TrimExport* exporter() { return &m_export; }
    QString fileText() const;
    LabelOutlet lblTotalDuration() const { return {m_lblTotalDuration, {}, false}; }
    /// Selected while the editing controls are hidden.
    ButtonOutlet btnEditTrimmedVideo() const;
    bool isDoneHidden() const { return m_isDoneHidden; }
    bool areEditingControlsHidden() const { return m_areEditingControlsHidden; }
    bool isRecordingViewHidden() const { return m_isRecordingViewHidden; }
    bool isEditingViewHidden() const { return !m_isRecordingViewHidden; }
    /// Whether an export or a recording has not ended yet.
    bool isBusy() const { return m_export.isRunning() || m_recorder.isBusy(); }

    const Input& input() const { return m_input; }
    bool isAudioTrimmed() const { return m_isAudioTrimmed; }
    /// Where exports go; empty before the first one.
    std::filesystem::path strTrimmedAudioURL() const { return m_strTrimmedAudioURL; }

public Q_SLOTS:
    void viewDidLoad();
    void btnCancelTapped();
    void btnUploadTapped();
    void btnPlayPauseTapped() { m_player.playOrPause(); }
    void btnResetTapped();
    void btnTrimFinalAudio();
    void btnEditTrimmedVideoTapped();
    void btnStartRecordingTapped();
    void btnStopRecordingTapped();
    void btnResetAudioTapped();
    /// Gives a running export up; the screen stays.
    void cancelExport() { m_export.cancel(); }

Q_SIGNALS:
    void outletsChanged();
    /// The screen is to leave; comes again with every further closing.
    void dismissed();
    void busyChanged();

private:
    void didLoadAsset();
    void didLoadWaveform();
    void setupAudioPlot();
    void resetAudioPlayer();
    void trimAudioWithCompletion(std::function<void()> completion);
    void exportEnded(AssetExportStatus status, const std::function<void()>& completion);
    void didTrim();
    void done();
    void dismissAudioTrimmer(const std::filesystem::path& path);
    void postDataUpdated();
    void didRecord(double seconds);

    Services m_services;
    Input m_input;
    TrimSource m_source;
    std::unique_ptr<EZAudioPlot> m_audioPlot;
    TrimSelection m_selection;
    TrimZoom m_zoom{m_selection};
    TrimPlayer m_player;
    TrimExport m_export;
    ScratchRecorder m_recorder;
    std::filesystem::path m_strTrimmedAudioURL;
    QString m_lblTotalDuration;
    bool m_isAudioTrimmed = false;
    bool m_areEditingControlsHidden = false;
    bool m_isDoneHidden = false;
    bool m_isRecordingViewHidden = true;
    bool m_isDismissed = false;
};

}  // namespace tavi
