#include "trimming/TrimPlayer.h"

#include <QLoggingCategory>
#include <QPointer>
#include <utility>

namespace tavi {

namespace {

Q_LOGGING_CATEGORY(lcTrimming, "tavi.trimming", QtInfoMsg)

constexpr double kDisplayInterval = 0.1;

}  // namespace

TrimPlayer::TrimPlayer(const Services& services, std::filesystem::path path, const TrimSelection& selection,
                       QObject* parent)
    : QObject(parent), m_services(services), m_path(std::move(path)), m_selection(selection) {
    // A container that becomes wider takes the play head along.
    connect(&m_selection, &TrimSelection::thumbsChanged, this, [this] {
        if (!m_isIndicatorHidden) {
            showIndicator();
        }
    });
}

TrimPlayer::~TrimPlayer() {
    stopAudioTimerToDisplay();
}

bool TrimPlayer::prepareToPlayAudio() {
    auto player = m_services.players.playerWithContentsOfURL(m_path);
    if (!player) {
        qCWarning(lcTrimming, "Error in audioPlayer: %s", qUtf8Printable(player.error().text));
        m_audioPlayer.reset();
        return false;
    }
    m_audioPlayer = std::move(*player);
    m_audioPlayer->setDelegate(this);
    m_audioPlayer->prepareToPlay();
    Q_EMIT prepared(m_audioPlayer->duration());
    return true;
}

void TrimPlayer::playOrPause() {
    if (m_isPlaying) {
        pauseAudioPlayer();
        return;
    }
    // The first press makes the player, so that it, too, starts at the start of the stretch.
    if (m_audioPlayer == nullptr && !prepareToPlayAudio()) {
        return;
    }
    m_audioPlayer->setCurrentTime(m_selection.times().start);
    const QPointer<TrimPlayer> self(this);
    m_services.runLoop.dispatchMain([self] {
        if (self) {
            self->playAudioPlayer();
        }
    });
}

void TrimPlayer::playAudioPlayer() {
    if ((m_audioPlayer == nullptr && !prepareToPlayAudio()) || !m_audioPlayer->play()) {
        return;
    }
    m_isPlaying = true;
    Q_EMIT isPlayingChanged();
    const QPointer<TrimPlayer> self(this);
    m_services.runLoop.dispatchMain([self] {
        if (self && self->m_isPlaying) {
            self->startAudioTimerToDisplay();
        }
    });
}

void TrimPlayer::startAudioTimerToDisplay() {
    stopAudioTimerToDisplay();
    const QPointer<TrimPlayer> self(this);
    m_timerAudioPlayer = m_services.runLoop.scheduledTimer(kDisplayInterval, true, [self] {
        if (self) {
            self->displayTimerFired();
        }
    });
}

void TrimPlayer::stopAudioTimerToDisplay() {
    if (m_timerAudioPlayer != nullptr) {
        m_timerAudioPlayer->invalidate();
        m_timerAudioPlayer.reset();
    }
}

void TrimPlayer::moveTo(double x) {
    if (m_isPlaying && m_selection.audioDuration() > 0.0) {
        m_audioPlayer->setCurrentTime(x * m_selection.audioDuration() / m_selection.containerWidth());
        displayTimerFired();
    }
}

void TrimPlayer::displayTimerFired() {
    showIndicator();
    if (m_audioPlayer->currentTime() >= m_selection.times().end) {
        stopAudioPlayer();
    }
}

void TrimPlayer::showIndicator() {
    const double time = m_audioPlayer->currentTime();
    // What has no length known has no place to show.
    m_isIndicatorHidden = !(m_selection.audioDuration() > 0.0);
    m_indicatorX = m_isIndicatorHidden ? 0.0 : m_selection.containerWidth() * time / m_selection.audioDuration();
    Q_EMIT indicatorChanged();
}

void TrimPlayer::pauseAudioPlayer() {
    if (m_isPlaying) {
        m_audioPlayer->pause();
        leavePlaying();
    }
}

void TrimPlayer::stopAudioPlayer() {
    if (m_isPlaying) {
        m_audioPlayer->stop();
        leavePlaying();
    }
}

void TrimPlayer::leavePlaying() {
    m_isPlaying = false;
    m_isIndicatorHidden = true;
    stopAudioTimerToDisplay();
    Q_EMIT isPlayingChanged();
    Q_EMIT indicatorChanged();
}

void TrimPlayer::drop() {
    stopAudioPlayer();
    m_audioPlayer.reset();
}

void TrimPlayer::audioPlayerDidFinishPlaying(AudioPlayer& player, bool successfully) {
    if (!successfully) {
        m_services.notices.postNotice({player.error().text});
    }
    // The recording's end can come before the tick that would see it.
    stopAudioPlayer();
}

}  // namespace tavi
