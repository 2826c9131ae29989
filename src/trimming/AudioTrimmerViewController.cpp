#include "trimming/AudioTrimmerViewController.h"

#include <QCoreApplication>
#include <algorithm>
#include <utility>

#include "files/FileNames.h"
#include "files/PathText.h"
#include "library/utility/Notifications.h"
#include "trimming/AudioTrimmerStage.h"

namespace tavi {

namespace {

std::filesystem::path pathOf(const std::string& url) {
    return QByteArray::fromStdString(url).replace("file://", "").toStdString();
}

}  // namespace

void AudioTrimmerViewController::presentAudioTrimmerController(AudioTrimmerStage& stage, QObject* presenter,
                                                               const std::string& strUrl, const QVariantMap& dicGetData,
                                                               const std::filesystem::path& getFfName,
                                                               Completion completion) {
    stage.show(std::make_unique<AudioTrimmerViewController>(
        stage.services(), Input{strUrl, dicGetData, getFfName, std::move(completion), presenter, false}));
}

void AudioTrimmerViewController::pushAudioTrimmerController(AudioTrimmerStage& stage, const std::string& strUrl,
                                                            Completion completion) {
    stage.show(std::make_unique<AudioTrimmerViewController>(
        stage.services(),
        Input{strUrl, {}, std::filesystem::path(strUrl).filename(), std::move(completion), nullptr, true}));
}

AudioTrimmerViewController::AudioTrimmerViewController(const Services& services, Input input, QObject* parent)
    : QObject(parent),
      m_services(services),
      m_input(std::move(input)),
      m_source({.exports = services.exports, .waveforms = services.waveforms, .runLoop = services.runLoop},
               pathOf(m_input.getUrl)),
      m_audioPlot(EZAudioPlot::init(services.refreshes)),
      m_player({.players = services.players, .notices = services.notices, .runLoop = services.runLoop}, m_source.path(),
               m_selection),
      m_export(services.exports, services.runLoop),
      m_recorder(services.recorder, services.exports, services.runLoop, services.container.documentsPath()) {
    connect(&m_source, &TrimSource::assetLoaded, this, &AudioTrimmerViewController::didLoadAsset);
    connect(&m_source, &TrimSource::waveformLoaded, this, &AudioTrimmerViewController::didLoadWaveform);
    connect(&m_selection, &TrimSelection::panned, &m_player, &TrimPlayer::stopAudioPlayer);
    connect(&m_export, &TrimExport::changed, this, &AudioTrimmerViewController::busyChanged);
    connect(&m_recorder, &ScratchRecorder::recorded, this, &AudioTrimmerViewController::didRecord);
    connect(&m_player, &TrimPlayer::prepared, this, [this](double duration) {
        m_lblTotalDuration = trimrules::timeFormatted(duration, true);
        Q_EMIT outletsChanged();
    });
}

AudioTrimmerViewController::~AudioTrimmerViewController() {
    if (m_isDismissed) {
        m_export.waitUntilFinished();
    } else {
        m_export.cancel();
    }
}

QString AudioTrimmerViewController::fileText() const {
    return pathText(m_input.getFileName);
}

ButtonOutlet AudioTrimmerViewController::btnEditTrimmedVideo() const {
    ButtonOutlet button;
    button.title = m_areEditingControlsHidden ? qtTrId("trimmer_edit") : qtTrId("trimmer_trim");
    button.selected = m_areEditingControlsHidden;
    return button;
}

void AudioTrimmerViewController::viewDidLoad() {
    m_lblTotalDuration = m_input.getDictData.value(QStringLiteral("duration")).toString();
    m_selection.calculateAudioTrimTime();
    setupAudioPlot();
}

void AudioTrimmerViewController::setupAudioPlot() {
    m_audioPlot->setBackgroundColor(QStringLiteral("black"));
    m_audioPlot->setColor(QStringLiteral("#d41b28"));
    m_audioPlot->setPlotType(EZPlot::Buffer);
    m_audioPlot->setShouldFill(true);
    m_audioPlot->setShouldMirror(true);
    m_audioPlot->setShouldOptimizeForRealtimePlot(false);
    if (const std::vector<float>& points = m_source.points(); !points.empty()) {
        m_audioPlot->updateBuffer(points.data(), static_cast<quint32>(points.size()));
    } else if (!m_isDismissed) {
        m_source.load();
    }
}

void AudioTrimmerViewController::didLoadAsset() {
    const double seconds = m_source.asset()->duration.seconds();
    m_lblTotalDuration = trimrules::timeFormatted(seconds, true);
    m_selection.setAudioDuration(seconds);
    Q_EMIT outletsChanged();
}

void AudioTrimmerViewController::didLoadWaveform() {
    const std::vector<float>& points = m_source.points();
    if (!points.empty()) {
        m_audioPlot->setGain(fittingGain(points));
        m_audioPlot->updateBuffer(points.data(), static_cast<quint32>(points.size()));
    }
}

void AudioTrimmerViewController::resetAudioPlayer() {
    m_player.drop();
    setupAudioPlot();
    m_player.prepareToPlayAudio();
    m_selection.putThumbsAtTheEnds();
}

void AudioTrimmerViewController::trimAudioWithCompletion(std::function<void()> completion) {
    if (m_strTrimmedAudioURL.empty()) {
        m_strTrimmedAudioURL = trimrules::outputPath(m_services.container.documentsPath(),
                                                     m_services.runLoop.clock().now(), m_input.getFileName);
    }
    if (!m_source.asset()) {
        return;
    }
    m_export.start(
        *m_source.asset(), m_strTrimmedAudioURL, trimrules::outputFileType(m_input.getFileName), m_selection.times(),
        [this, completion = std::move(completion)](AssetExportStatus status) { exportEnded(status, completion); });
}

void AudioTrimmerViewController::exportEnded(AssetExportStatus status, const std::function<void()>& completion) {
    if (status == AssetExportStatus::Completed) {
        // On purpose before the completion, so that the first export starts a second one; callers hear of both.
        done();
        completion();
        return;
    }
    if (m_isDismissed) {
        // The list may show the file before under the name that it had meanwhile.
        postDataUpdated();
    } else if (!existsAt(m_strTrimmedAudioURL)) {
        m_isAudioTrimmed = false;
        m_areEditingControlsHidden = false;
        Q_EMIT outletsChanged();
    }
}

void AudioTrimmerViewController::didTrim() {
    m_isAudioTrimmed = true;
    resetAudioPlayer();
    m_areEditingControlsHidden = true;
    Q_EMIT outletsChanged();
}

void AudioTrimmerViewController::btnUploadTapped() {
    if (!m_export.isRunning()) {
        done();
    }
}

void AudioTrimmerViewController::done() {
    if (!existsAt(m_source.path())) {
        return;
    }
    m_player.stopAudioPlayer();
    if (m_isAudioTrimmed) {
        dismissAudioTrimmer(m_strTrimmedAudioURL);
        return;
    }
    trimAudioWithCompletion([this] {
        didTrim();
        dismissAudioTrimmer(m_strTrimmedAudioURL);
    });
}

void AudioTrimmerViewController::btnTrimFinalAudio() {
    if (!m_export.isRunning()) {
        trimAudioWithCompletion([this] { didTrim(); });
    }
}

void AudioTrimmerViewController::btnEditTrimmedVideoTapped() {
    if (!m_areEditingControlsHidden) {
        btnTrimFinalAudio();
        return;
    }
    m_isAudioTrimmed = false;
    resetAudioPlayer();
    m_areEditingControlsHidden = false;
    Q_EMIT outletsChanged();
}

void AudioTrimmerViewController::btnCancelTapped() {
    m_export.abandon();
    m_strTrimmedAudioURL.clear();
    m_player.drop();
    dismissAudioTrimmer({});
}

void AudioTrimmerViewController::dismissAudioTrimmer(const std::filesystem::path& path) {
    m_isDismissed = true;
    // The next trimmer loads its waveform with the same loader, while this one may still wait for its export.
    m_source.giveUp();
    m_recorder.close();
    if (m_input.completionBlock) {
        m_input.completionBlock(!path.empty(), path);
    }
    if (!m_input.isPushAudioTrimmer) {
        postDataUpdated();
    }
    Q_EMIT dismissed();
}

void AudioTrimmerViewController::postDataUpdated() {
    m_services.notifications.postNotification(kDataUpdatedNotification, QVariant::fromValue<QObject*>(this));
}

void AudioTrimmerViewController::btnStartRecordingTapped() {
    if (!m_recorder.prepareToRecordAudio()) {
        return;
    }
    m_isDoneHidden = true;
    m_recorder.record();
    m_isRecordingViewHidden = false;
    Q_EMIT outletsChanged();
}

void AudioTrimmerViewController::btnStopRecordingTapped() {
    m_recorder.stop();
    m_isDoneHidden = false;
    Q_EMIT outletsChanged();
}

void AudioTrimmerViewController::didRecord(double seconds) {
    m_services.notifications.postNotification(kOutputReturnedNotification);
    if (m_isDismissed) {
        postDataUpdated();
        Q_EMIT busyChanged();
        return;
    }
    m_isDoneHidden = false;
    m_isRecordingViewHidden = true;
    if (seconds > 0.0) {
        m_areEditingControlsHidden = false;
        m_selection.setAudioDuration(seconds);
        resetAudioPlayer();
    }
    Q_EMIT outletsChanged();
}

void AudioTrimmerViewController::btnResetAudioTapped() {
    resetAudioPlayer();
    m_areEditingControlsHidden = false;
    Q_EMIT outletsChanged();
    btnStartRecordingTapped();
}

void AudioTrimmerViewController::btnResetTapped() {
    m_isAudioTrimmed = false;
    m_recorder.replaceCopy();
    resetAudioPlayer();
    Q_EMIT outletsChanged();
}

}  // namespace tavi
