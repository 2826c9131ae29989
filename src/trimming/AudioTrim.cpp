#include "trimming/AudioTrim.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QPointer>

#include "files/FileMove.h"
#include "files/NativePath.h"
#include "trimming/TrimRules.h"

namespace tavi {

namespace {

Q_LOGGING_CATEGORY(lcTrimming, "tavi.trimming", QtInfoMsg)

constexpr double kTimeInterval = 0.01;
constexpr double kRefreshDelay = 0.5;
constexpr double kCloudDelay = 2.0;
constexpr float kMargin = 2.0F;

}  // namespace

AudioTrim::AudioTrim(const Services& services, QByteArray fileName, QString section, QObject* parent)
    : QObject(parent),
      m_services(services),
      m_fileName(std::move(fileName)),
      m_section(std::move(section)),
      m_waveformView(services.readers) {
    connect(&m_rangeSlider, &RangeSlider::valueChanged, this, &AudioTrim::updateRangeLabel);
}

AudioTrim::~AudioTrim() {
    stopTimer();
}

QString AudioTrim::lblFileName() const {
    return QFileInfo(QFile::decodeName(m_fileName)).completeBaseName();
}

QString AudioTrim::accentColor() const {
    return QStringLiteral("#c8252c");
}

ButtonOutlet AudioTrim::btnSave() const {
    ButtonOutlet button;
    button.enabled = false;
    return button;
}

ButtonOutlet AudioTrim::btnTrim() const {
    ButtonOutlet button;
    button.title = qtTrId("trim_audio");
    button.enabled = m_isTrimEnabled;
    return button;
}

ButtonOutlet AudioTrim::btnStop() const {
    ButtonOutlet button;
    button.enabled = m_timer != nullptr;
    return button;
}

ButtonOutlet AudioTrim::btnPlay() const {
    ButtonOutlet button;
    button.enabled = m_player != nullptr;
    button.selected = m_timer != nullptr;
    return button;
}

QString AudioTrim::lblCurrentTime() const {
    return m_rangeSlider.updateCurrentTime(static_cast<float>(currentTime()));
}

QString AudioTrim::lblDuration() const {
    return m_rangeSlider.updateCurrentTime(static_cast<float>(duration()));
}

void AudioTrim::viewDidLoad() {
    m_waveformView.setNormalColor(accentColor());
    m_waveformView.setProgressColor(QStringLiteral("#ff3333"));
    m_waveformView.setAsset(m_services.exports.assetWithURL(m_fileName));
    m_waveformView.setProgress(1.0);
    makePlayer(m_fileName);
    m_rangeSlider.minimumValue = 0.0F;
    m_rangeSlider.selectedMinimumValue = kMargin;
    if (duration() > 0.0) {
        m_rangeSlider.maximumValue = static_cast<float>(duration());
        m_rangeSlider.selectedMaximumValue = static_cast<float>(duration()) - kMargin;
    }
    m_rangeSlider.minimumRange = 1.0F;
    Q_EMIT outletsChanged();
    Q_EMIT timeChanged();
}

void AudioTrim::updateRangeLabel() {
    m_isTrimEnabled = true;
    m_leftValue = static_cast<double>(m_rangeSlider.selectedMinimumValue);
    m_rightValue = static_cast<double>(m_rangeSlider.selectedMaximumValue);
    Q_EMIT outletsChanged();
}

bool AudioTrim::makePlayer(const QByteArray& path) {
    auto player = m_services.players.playerWithContentsOfURL(path);
    if (!player) {
        qCWarning(lcTrimming, "Error in audioPlayer: %s", qUtf8Printable(player.error().text));
        m_player.reset();
        return false;
    }
    m_player = std::move(*player);
    m_player->setDelegate(this);
    return true;
}

void AudioTrim::playOriginalAudio() {
    if (m_player == nullptr) {
        return;
    }
    if (m_player->isPlaying()) {
        m_player->pause();
        stopTimer();
    } else if (m_player->play()) {
        startTimer();
    }
}

void AudioTrim::playTrimmedAudio() {
    if (!m_isTrimmed) {
        playOriginalAudio();
        return;
    }
    stopAudio();
    if (makePlayer(m_outputPath) && m_player->play()) {
        startTimer();
    }
    Q_EMIT outletsChanged();
}

void AudioTrim::stopAudio() {
    if (m_player != nullptr) {
        m_player->stop();
    }
    stopTimer();
}

void AudioTrim::playerSliderMoved(double seconds) {
    if (m_player != nullptr) {
        m_player->setCurrentTime(seconds);
        Q_EMIT timeChanged();
    }
}

void AudioTrim::startTimer() {
    const QPointer<AudioTrim> self(this);
    m_timer = m_services.runLoop.scheduledTimer(kTimeInterval, true, [self] {
        if (self) {
            Q_EMIT self->timeChanged();
        }
    });
    Q_EMIT outletsChanged();
}

void AudioTrim::stopTimer() {
    if (m_timer != nullptr) {
        m_timer->invalidate();
        m_timer.reset();
        Q_EMIT timeChanged();
        Q_EMIT outletsChanged();
    }
}

void AudioTrim::audioPlayerDidFinishPlaying(AudioPlayer&, bool) {
    stopTimer();
}

void AudioTrim::trimAudio() {
    m_isTrimmed = true;
    m_indicatorText = qtTrId("trim_progress");
    Q_EMIT outletsChanged();
    m_outputPath =
        trimrules::outputPath(m_services.container.documentsPath(), m_services.runLoop.clock().now(), m_fileName);
    removeAt(m_outputPath);
    if (!exportAsset(m_services.exports.assetWithURL(m_fileName), m_outputPath)) {
        m_indicatorText.clear();
        Q_EMIT outletsChanged();
    }
    // Also after the screen has gone, and whether or not there was sound to export.
    m_services.runLoop.dispatchAfter(kRefreshDelay, [reload = m_reloadTableViewDataSource] {
        if (reload) {
            reload();
        }
    });
    // The value is stored inverted: on means that nothing goes to the cloud.
    if (!m_services.settings.isCloudSyncOn() || m_section != QLatin1String("1")) {
        close();
    } else {
        leaveToCloud();
    }
}

void AudioTrim::leaveToCloud() {
    const QPointer<AudioTrim> self(this);
    m_services.runLoop.dispatchAfter(kCloudDelay, [self] {
        qCInfo(lcTrimming, "Do some work");
        if (self) {
            self->saveImagesInIPhone(QFileInfo(QFile::decodeName(self->m_outputPath)).fileName());
        }
    });
}

void AudioTrim::saveImagesInIPhone(const QString& name) {
    if (m_saveToCloud) {
        m_saveToCloud(m_outputPath, name);
    }
}

bool AudioTrim::exportAsset(const Asset& asset, const QByteArray& path) {
    if (asset.audioTracks.empty()) {
        return false;
    }
    auto made = m_services.exports.exportSession(asset, AssetExportPreset::AppleM4A);
    if (!made) {
        return false;
    }
    const std::shared_ptr<AssetExportSession> session = std::move(*made);
    // Whole seconds, on purpose: what is dropped at both ends keeps the files of this screen comparable.
    const auto start = static_cast<std::int64_t>(m_leftValue);
    const auto end = static_cast<std::int64_t>(m_rightValue);
    session->setTimeRange({{start, 1}, {end - start, 1}});
    session->setAudioMix({{AssetAudioMixParameters{}}});
    session->setOutputURL(path);
    // Whatever the name says, on purpose: every file that this screen has made so far holds M4A data.
    session->setOutputFileType(AssetFileType::AppleM4A);
    const QPointer<AudioTrim> self(this);
    session->exportAsynchronously([self, session, &runLoop = m_services.runLoop, reload = m_reloadTableViewDataSource] {
        runLoop.dispatchMain([self, session, reload] {
            const bool isCompleted = session->status() == AssetExportStatus::Completed;
            if (self) {
                self->m_indicatorText.clear();
                self->m_isTrimDone = isCompleted;
                Q_EMIT self->outletsChanged();
            }
            if (isCompleted && reload) {
                reload();
            }
        });
    });
    return true;
}

void AudioTrim::reloadList() const {
    if (m_reloadTableViewDataSource) {
        m_reloadTableViewDataSource();
    }
}

void AudioTrim::backButtonpressed() {
    if (!m_isTrimDone) {
        close();
        return;
    }
    const QPointer<AudioTrim> self(this);
    m_services.presenter.presentAlert({qtTrId("trim_audio"),
                                       qtTrId("save_trim_audio"),
                                       {{qtTrId("No"), AlertAction::Style::Default,
                                         [self] {
                                             if (self) {
                                                 self->close();
                                             }
                                         }},
                                        {qtTrId("Yes")}}});
}

void AudioTrim::addTrimFileWithFilePath(const QString& folder) {
    const QString path = QFile::decodeName(m_outputPath);
    const QString target = folder + QLatin1Char('/') + QFileInfo(path).fileName();
    if (const auto moved = moveItem(path, target); !moved) {
        qCWarning(lcTrimming, "%s", qUtf8Printable(moved.error().text));
    }
    m_indicatorText.clear();
    Q_EMIT outletsChanged();
    close();
    reloadList();
}

void AudioTrim::removeFile(const QString& fileName) {
    QFile file(m_services.container.documentsPath() + QLatin1Char('/') + fileName);
    if (file.remove()) {
        qCInfo(lcTrimming, "delete file");
    } else {
        qCInfo(lcTrimming, "Could not delete file -:%s ", qUtf8Printable(file.errorString()));
    }
    close();
}

void AudioTrim::close() {
    stopAudio();
    Q_EMIT closed();
}

}  // namespace tavi
