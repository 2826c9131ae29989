#include "library/PlayerPanel.h"

#include <QCryptographicHash>
#include <QPointer>
#include <algorithm>
#include <cmath>
#include <utility>

#include "files/PathText.h"
#include "library/PlayerRules.h"

namespace tavi {

namespace {

constexpr double kTick = 0.01;
constexpr float kSlow = 0.5F;
constexpr float kNormal = 1.0F;
constexpr float kFast = 2.0F;

const auto kNoTime = QStringLiteral("00:00");
const auto kPlayImage = QStringLiteral("play_player.png");
const auto kPauseImage = QStringLiteral("pause_Player.png");
const auto kEarpieceIsNext = QStringLiteral("headset.png");
const auto kSpeakerIsNext = QStringLiteral("speaker.png");
const auto kAccent = QStringLiteral("#c8252c");

}  // namespace

PlayerPanel::PlayerPanel(const Services& services, QObject* parent) : QObject(parent), m_services(services) {
    m_lblSongMinTime.text = kNoTime;
    m_lblSongMaxTime.text = kNoTime;
    m_btnPlay.image = m_btnplaypuas.image = kPlayImage;
    m_speakerButton.image = kEarpieceIsNext;
}

PlayerPanel::~PlayerPanel() {
    if (m_tick) {
        m_tick->invalidate();
    }
}

double PlayerPanel::currentTime() const {
    return m_avPlayer ? m_avPlayer->currentTime() : 0.0;
}

void PlayerPanel::prepareForRow() {
    const double rewind = m_services.settings.storedRewindSeconds();
    const double forward = m_services.settings.storedForwardSeconds();
    m_lblBackwardSec.text = playerrules::backLabel(rewind);
    m_lblForwardSec.text = playerrules::forwardLabel(rewind, forward);
    m_btnSlow.selected = m_btnMedium.selected = m_btnFastPlay.selected = false;
    changed();
}

void PlayerPanel::initAudioWithUrl(const std::filesystem::path& path) {
    if (isPlayerPlaying()) {
        m_avPlayer->stop();
    }
    // A file that has just been loaded, and not been touched since, need not be opened twice.
    if (!m_avPlayer || m_urlPath != path || m_avPlayer->currentTime() > 0.0 || m_avPlayer->rate() != kNormal) {
        m_avPlayer.reset();
        if (auto player = m_services.players.playerWithContentsOfURL(path)) {
            m_avPlayer = std::move(*player);
        }
        m_urlPath = path;
        Q_EMIT urlPathChanged();
        showWaveform();
    }
    // Without a sound server there is nothing to hear; the player says so when it is told to play.
    static_cast<void>(
        m_services.session.setCategory(AudioSession::Category::Playback, AudioSession::CategoryOption::None));
    static_cast<void>(m_services.session.setActive(true));
    // Category playback takes it away.
    earpieceWasLeft();
    if (m_avPlayer) {
        m_services.remoteControl.beginReceivingRemoteControlEvents();
        m_avPlayer->setDelegate(this);
        m_avPlayer->setEnableRate(true);
        m_avPlayer->setMeteringEnabled(true);
    } else {
        m_services.remoteControl.endReceivingRemoteControlEvents();
    }
    ++m_updateTimers;
    m_slider_player = {0.0, m_avPlayer ? m_avPlayer->duration() : 0.0};
    m_lblSongMinTime.text = kNoTime;
    m_lblSongMaxTime.text = playerrules::timeText(m_slider_player.maximumValue);
    announceProgress();
    changed();
}

void PlayerPanel::showWaveform() {
    setWaveform({});
    if (!m_avPlayer) {
        m_services.waveforms.cancel();
        return;
    }
    m_services.waveforms.load(m_urlPath, [self = QPointer(this)](const std::vector<float>& points) {
        if (self) {
            self->setWaveform(points);
        }
    });
}

void PlayerPanel::setWaveform(const std::vector<float>& points) {
    const float gain = fittingGain(points);
    m_waveform.clear();
    for (const float point : points) {
        m_waveform.append(static_cast<qreal>(std::min(point * gain, 1.0F)));
    }
    Q_EMIT waveformChanged();
}

QString PlayerPanel::timeText(double seconds) const {
    return playerrules::timeText(std::clamp(seconds, 0.0, m_slider_player.maximumValue));
}

void PlayerPanel::playOrPause(bool wasSelected) {
    if (isPlayerPlaying()) {
        m_avPlayer->pause();
    } else if (m_avPlayer) {
        m_avPlayer->setDelegate(this);
        m_avPlayer->prepareToPlay();
        m_avPlayer->play();
    }
    m_btnplaypuas.selected = !wasSelected;
    changed();
}

void PlayerPanel::setBtnPlaySelected(bool selected) {
    m_btnPlay.selected = selected;
    changed();
}

void PlayerPanel::drop() {
    m_lblSongMinTime.text = kNoTime;
    m_slider_player.value = 0.0;
    if (m_avPlayer) {
        m_avPlayer->pause();
        m_avPlayer->stop();
        m_avPlayer.reset();
    }
    m_urlPath.clear();
    Q_EMIT urlPathChanged();
    m_services.waveforms.cancel();
    setWaveform({});
    m_services.remoteControl.endReceivingRemoteControlEvents();
    announceProgress();
    changed();
}

void PlayerPanel::showEnd() {
    m_btnplaypuas.selected = false;
    changed();
}

void PlayerPanel::updateCurrentTime() {
    if (isPlayerPlaying()) {
        showProgress();
    }
}

void PlayerPanel::showProgress() {
    const double now = currentTime();
    m_slider_player.value = now;
    playerTimeDelegate(playerrules::timeText(now), playerrules::timeText(m_avPlayer ? m_avPlayer->duration() : 0.0));
}

void PlayerPanel::playerTimeDelegate(const QString& elapsed, const QString& total) {
    m_lblSongMinTime.text = elapsed;
    m_lblSongMaxTime.text = total;
    if (elapsed == total && m_btnPlay.selected) {
        setBtnPlaySelected(false);
    }
    announceProgress();
}

void PlayerPanel::announceProgress() {
    // There are a hundred ticks a second, and most of them move nothing by a pixel.
    constexpr double kSteps = 4096.0;
    const QString times = m_lblSongMinTime.text + m_lblSongMaxTime.text;
    const bool areNewTimes = times != std::exchange(m_announcedTimes, times);
    if (areNewTimes) {
        Q_EMIT timesChanged();
    }
    const double moved = std::abs(m_slider_player.value - m_announcedValue);
    if (areNewTimes || moved >= m_slider_player.maximumValue / kSteps) {
        m_announcedValue = m_slider_player.value;
        Q_EMIT progressChanged();
    }
}

void PlayerPanel::goTo(double seconds) {
    if (m_avPlayer) {
        m_avPlayer->setCurrentTime(seconds);
        m_services.remoteControl.currentTimeDidJump();
        showProgress();
    }
}

void PlayerPanel::progressSliderMoved(double value) {
    goTo(value);
}

void PlayerPanel::backSkip() {
    const float step = playerrules::backStep(m_services.settings.storedRewindSeconds());
    if (const auto target = playerrules::backTarget(currentTime(), step)) {
        goTo(*target);
    }
}

void PlayerPanel::forwardSkip() {
    const float step = playerrules::forwardStep(m_services.settings.storedForwardSeconds());
    const double duration = m_avPlayer ? m_avPlayer->duration() : 0.0;
    if (const auto target = playerrules::forwardTarget(currentTime(), duration, step)) {
        goTo(*target);
    }
}

void PlayerPanel::toggleSpeed(ButtonOutlet& button, float rate) {
    const bool isOn = !button.selected;
    m_btnSlow.selected = m_btnMedium.selected = m_btnFastPlay.selected = false;
    button.selected = isOn;
    if (m_avPlayer) {
        m_avPlayer->setRate(isOn ? rate : kNormal);
    }
    changed();
}

void PlayerPanel::slowAudio(QObject* sender) {
    if (sender) {
        toggleSpeed(m_btnSlow, kSlow);
    } else {
        applyRate(kSlow);
    }
}

void PlayerPanel::mediumAudio(QObject* sender) {
    if (sender) {
        toggleSpeed(m_btnMedium, kNormal);
    } else {
        applyRate(kNormal);
    }
}

void PlayerPanel::fastAudio(QObject* sender) {
    if (sender) {
        toggleSpeed(m_btnFastPlay, kFast);
    } else {
        applyRate(kFast);
    }
}

void PlayerPanel::applyRate(float rate) {
    if (m_avPlayer) {
        m_avPlayer->setRate(rate);
    }
    changed();
}

void PlayerPanel::setRate(double rate) {
    const auto value = static_cast<float>(rate);
    m_btnSlow.selected = value == kSlow;
    m_btnMedium.selected = false;
    m_btnFastPlay.selected = value == kFast;
    applyRate(value);
}

void PlayerPanel::slower() {
    if (m_avPlayer) {
        setRate(static_cast<double>(m_avPlayer->rate() > kNormal ? kNormal : kSlow));
    }
}

void PlayerPanel::faster() {
    if (m_avPlayer) {
        setRate(static_cast<double>(m_avPlayer->rate() < kNormal ? kNormal : kFast));
    }
}

void PlayerPanel::playerSpeaker() {
    m_speakerButton.image = m_ishandset ? kEarpieceIsNext : kSpeakerIsNext;
    m_speakerButton.tintColor = kAccent;
    static_cast<void>(
        m_services.session.setCategory(AudioSession::Category::PlayAndRecord, AudioSession::CategoryOption::None));
    static_cast<void>(m_services.session.overrideOutputAudioPort(m_ishandset ? AudioSession::PortOverride::Speaker
                                                                             : AudioSession::PortOverride::None));
    m_ishandset = !m_ishandset;
    Q_EMIT outletsChanged();
}

void PlayerPanel::earpieceWasLeft() {
    m_ishandset = false;
    m_speakerButton = {};
    m_speakerButton.image = kEarpieceIsNext;
    Q_EMIT outletsChanged();
}

bool PlayerPanel::isHeadsetPluggedIn() const {
    const auto route = m_services.session.currentRoute();
    return route && route->contains(QLatin1String("Head"));
}

void PlayerPanel::audioPlayerDidFinishPlaying(AudioPlayer& player, bool successfully) {
    if (successfully) {
        showProgress();
    } else {
        m_services.notices.postNotice({player.error().text});
    }
    changed();
    Q_EMIT finished();
}

void PlayerPanel::runTick() {
    if (isPlayerPlaying() && !m_tick) {
        m_tick = m_services.runLoop.scheduledTimer(kTick, true, [self = QPointer(this)] {
            if (self) {
                self->updateCurrentTime();
            }
        });
    } else if (!isPlayerPlaying() && m_tick) {
        m_tick->invalidate();
        m_tick.reset();
    }
}

void PlayerPanel::changed() {
    const bool isPlaying = isPlayerPlaying();
    m_btnPlay.image = m_btnplaypuas.image = isPlaying ? kPauseImage : kPlayImage;
    runTick();
    NowPlayingInfo info;
    if (m_avPlayer) {
        info.identifier =
            QString::fromLatin1(QCryptographicHash::hash(m_urlPath.native(), QCryptographicHash::Sha1).toHex());
        info.title = pathText(m_urlPath.filename());
        info.playbackDuration = m_avPlayer->duration();
        info.playbackState = isPlaying ? NowPlayingInfo::PlaybackState::Playing : NowPlayingInfo::PlaybackState::Paused;
        info.playbackRate = static_cast<double>(m_avPlayer->rate());
    }
    m_services.remoteControl.setNowPlayingInfo(info);
    Q_EMIT outletsChanged();
}

}  // namespace tavi
