#include "trimming/AudioTrim.h"

#include <unistd.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QPointer>
#include <cerrno>
#include <system_error>
#include <utility>

#include "cloud/CloudSaving.h"
#include "cloud/iCloudDocument.h"
#include "files/FileMove.h"
#include "files/FileNames.h"
#include "files/PathText.h"
#include "trimming/TrimRules.h"

namespace tavi {

namespace {

Q_LOGGING_CATEGORY(lcTrimming, "tavi.trimming", QtInfoMsg)

constexpr double kRefreshDelay = 0.5;
constexpr double kCloudDelay = 2.0;
constexpr float kMargin = 2.0F;

}  // namespace

AudioTrim::AudioTrim(const Services& services, std::filesystem::path fileName, QString section, QObject* parent)
    : QObject(parent),
      m_services(services),
      m_fileName(std::move(fileName)),
      m_section(std::move(section)),
      m_waveformView(services.readers),
      m_player(services.players, services.notices, services.runLoop) {
    connect(&m_rangeSlider, &RangeSlider::valueChanged, this, &AudioTrim::updateRangeLabel);
    connect(&m_player, &AudioTrimPlayer::isPlayingChanged, this, &AudioTrim::outletsChanged);
    connect(&m_player, &AudioTrimPlayer::timeChanged, this, &AudioTrim::timeChanged);
}

QString AudioTrim::lblFileName() const {
    return QFileInfo(pathText(m_fileName)).completeBaseName();
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
    button.enabled = m_isTrimEnabled && !isTrimming();
    return button;
}

ButtonOutlet AudioTrim::btnStop() const {
    ButtonOutlet button;
    button.enabled = m_player.isPlaying();
    return button;
}

ButtonOutlet AudioTrim::btnPlay() const {
    ButtonOutlet button;
    button.enabled = m_player.canPlay();
    button.selected = m_player.isRecordingPlaying();
    return button;
}

QString AudioTrim::lblCurrentTime() const {
    return m_rangeSlider.updateCurrentTime(static_cast<float>(currentTime()));
}

QString AudioTrim::lblDuration() const {
    return m_rangeSlider.updateCurrentTime(static_cast<float>(duration()));
}

void AudioTrim::setTrimDelegate(std::function<void()> reloadTableViewDataSource) {
    m_reloadTableViewDataSource = std::move(reloadTableViewDataSource);
}

void AudioTrim::viewDidLoad() {
    m_waveformView.setNormalColor(accentColor());
    m_waveformView.setProgressColor(QStringLiteral("#ff3333"));
    m_waveformView.setAsset(m_services.exports.assetWithURL(m_fileName));
    m_waveformView.setProgress(1.0);
    m_player.load(m_fileName);
    m_rangeSlider.minimumValue = 0.0F;
    m_rangeSlider.selectedMinimumValue = kMargin;
    if (duration() > 0.0) {
        m_rangeSlider.maximumValue = static_cast<float>(duration());
        m_rangeSlider.selectedMaximumValue = static_cast<float>(duration()) - kMargin;
    }
    m_rangeSlider.minimumRange = 1.0F;
    Q_EMIT outletsChanged();
}

void AudioTrim::updateRangeLabel() {
    m_isTrimEnabled = true;
    m_leftValue = static_cast<double>(m_rangeSlider.selectedMinimumValue);
    m_rightValue = static_cast<double>(m_rangeSlider.selectedMaximumValue);
    Q_EMIT outletsChanged();
}

void AudioTrim::playTrimmedAudio() {
    if (m_isTrimmed) {
        m_player.playCut(m_outputPath);
    } else {
        m_player.playOrPause();
    }
}

void AudioTrim::trimAudio() {
    if (isTrimming()) {
        return;
    }
    m_isTrimmed = true;
    m_indicatorText = qtTrId("trim_progress");
    m_cloudCut = std::make_shared<CloudCut>();
    Q_EMIT outletsChanged();
    m_outputPath =
        trimrules::outputPath(m_services.container.documentsPath(), m_services.runLoop.clock().now(), m_fileName);
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
    if (!goesToCloud()) {
        return close();
    }
    // Should the program end before, it goes there when it starts next.
    m_services.settings.setCloudPending(m_outputPath, true);
    // Of this cut, whatever comes next and whether or not the screen is still there.
    m_services.runLoop.dispatchAfter(kCloudDelay, [services = m_services, path = m_outputPath, cut = m_cloudCut] {
        qCInfo(lcTrimming, "Do some work");
        cut->isDue = true;
        saveImagesInIPhone(services, path, *cut);
    });
}

void AudioTrim::saveImagesInIPhone(const Services& services, const std::filesystem::path& path, CloudCut& cut) {
    if (cut.isDue && cut.isComplete && !std::exchange(cut.isSaved, true)) {
        saveFileToCloud(services.cloud, services.runLoop, path,
                        [path, &settings = services.settings](const std::shared_ptr<iCloudDocument>& document,
                                                              const FileContents&, const auto& error) {
                            // Without the cloud's folder it has gone nowhere but to itself, and is still to go.
                            const bool isPending = document != nullptr && document->fileURL() == path;
                            error ? void() : settings.setCloudPending(path, isPending);
                        });
    }
}

bool AudioTrim::exportAsset(const Asset& asset, const std::filesystem::path& path) {
    if (asset.audioTracks.empty()) {
        return false;
    }
    auto made = m_services.exports.exportSession(asset, AssetExportPreset::AppleM4A);
    if (!made) {
        return false;
    }
    if (existsAt(path)) {
        if (const auto aside = stepAside(path); !aside) {
            qCWarning(lcTrimming, "%s", aside.error().text.c_str());
        }
    }
    const std::shared_ptr<AssetExportSession> session = std::move(*made);
    // On purpose whole seconds: fractions are dropped at both ends.
    const auto start = static_cast<std::int64_t>(m_leftValue);
    const auto end = static_cast<std::int64_t>(m_rightValue);
    session->setTimeRange({{start, 1}, {end - start, 1}});
    session->setAudioMix({{AssetAudioMixParameters{}}});
    session->setOutputURL(path);
    // On purpose whatever the name says: this screen always makes M4A data.
    session->setOutputFileType(AssetFileType::AppleM4A);
    const QPointer<AudioTrim> self(this);
    session->exportAsynchronously([self, session, services = m_services, path, reload = m_reloadTableViewDataSource,
                                   cut = m_cloudCut ? m_cloudCut : std::make_shared<CloudCut>()] {
        services.runLoop.dispatchMain([self, session, services, path, reload, cut] {
            const bool isCompleted = session->status() == AssetExportStatus::Completed;
            if (self) {
                self->m_indicatorText.clear();
                self->m_isTrimDone = isCompleted;
                Q_EMIT self->outletsChanged();
            }
            cut->isComplete = isCompleted;
            saveImagesInIPhone(services, path, *cut);
            if (isCompleted && reload) {
                reload();
            }
        });
    });
    return true;
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

void AudioTrim::addTrimFileWithFilePath(const std::filesystem::path& folder) {
    if (const auto moved = moveItem(m_outputPath, folder / m_outputPath.filename()); !moved) {
        qCWarning(lcTrimming, "%s", moved.error().text.c_str());
    }
    m_indicatorText.clear();
    Q_EMIT outletsChanged();
    close();
    if (m_reloadTableViewDataSource) {
        m_reloadTableViewDataSource();
    }
}

void AudioTrim::removeFile(const std::filesystem::path& fileName) {
    if (::unlink((m_services.container.documentsPath() / fileName).c_str()) == 0) {
        qCInfo(lcTrimming, "delete file");
    } else {
        qCInfo(lcTrimming, "Could not delete file -:%s ", std::generic_category().message(errno).c_str());
    }
    close();
}

void AudioTrim::close() {
    m_player.stop();
    Q_EMIT closed();
}

}  // namespace tavi
