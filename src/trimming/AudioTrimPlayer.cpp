#include "trimming/AudioTrimPlayer.h"

#include <QLoggingCategory>
#include <QPointer>
#include <utility>

namespace tavi {

namespace {

Q_LOGGING_CATEGORY(lcTrimming, "tavi.trimming", QtInfoMsg)

constexpr double kTimeInterval = 0.01;

}  // namespace

AudioTrimPlayer::AudioTrimPlayer(AudioPlayers& players, Notices& notices, RunLoop& runLoop, QObject* parent)
    : QObject(parent), m_players(players), m_notices(notices), m_runLoop(runLoop) {}

AudioTrimPlayer::~AudioTrimPlayer() {
    if (m_timer != nullptr) {
        m_timer->invalidate();
    }
}

std::unique_ptr<AudioPlayer> AudioTrimPlayer::make(const std::filesystem::path& path) {
    auto player = m_players.playerWithContentsOfURL(path);
    if (!player) {
        qCWarning(lcTrimming, "Error in audioPlayer: %s", qUtf8Printable(player.error().text));
        return nullptr;
    }
    (*player)->setDelegate(this);
    return std::move(*player);
}

void AudioTrimPlayer::load(const std::filesystem::path& recording) {
    m_recording = make(recording);
    Q_EMIT timeChanged();
}

void AudioTrimPlayer::playOrPause() {
    if (isRecordingPlaying()) {
        m_recording->pause();
        leavePlaying();
    } else {
        stop();
        play();
    }
}

void AudioTrimPlayer::playCut(const std::filesystem::path& cut) {
    stop();
    m_cut = make(cut);
    if (m_cut != nullptr) {
        play();
    }
}

void AudioTrimPlayer::play() {
    if (current() == nullptr || !current()->play()) {
        m_cut.reset();
        return;
    }
    const QPointer<AudioTrimPlayer> self(this);
    m_timer = m_runLoop.scheduledTimer(kTimeInterval, true, [self] {
        if (self) {
            Q_EMIT self->timeChanged();
        }
    });
    Q_EMIT isPlayingChanged();
    Q_EMIT timeChanged();
}

void AudioTrimPlayer::stop() {
    if (isPlaying()) {
        current()->stop();
        leavePlaying();
    }
}

void AudioTrimPlayer::leavePlaying() {
    m_timer->invalidate();
    m_timer.reset();
    m_cut.reset();
    Q_EMIT isPlayingChanged();
    Q_EMIT timeChanged();
}

void AudioTrimPlayer::setCurrentTime(double seconds) {
    if (current() != nullptr) {
        current()->setCurrentTime(seconds);
        Q_EMIT timeChanged();
    }
}

void AudioTrimPlayer::audioPlayerDidFinishPlaying(AudioPlayer& player, bool successfully) {
    if (!successfully) {
        m_notices.postNotice({player.error().text});
    }
    if (isPlaying()) {
        leavePlaying();
    }
}

}  // namespace tavi
