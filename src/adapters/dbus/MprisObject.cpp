#include "adapters/dbus/MprisObject.h"

#include <QCryptographicHash>
#include <cmath>

#include "adapters/dbus/MprisRemoteControl.h"

namespace tavi {

namespace {

using Subtype = RemoteControlEvent::Subtype;

constexpr double kMicroseconds = 1e6;

}  // namespace

void MprisRoot::Raise() {
    m_control.receive(Subtype::Raise);
}

void MprisRoot::Quit() {
    m_control.receive(Subtype::Quit);
}

QString MprisPlayer::playbackStatus() const {
    switch (m_control.nowPlayingInfo().playbackState) {
        case NowPlayingInfo::PlaybackState::Playing:
            return QStringLiteral("Playing");
        case NowPlayingInfo::PlaybackState::Paused:
            return QStringLiteral("Paused");
        case NowPlayingInfo::PlaybackState::Stopped:
            break;
    }
    return QStringLiteral("Stopped");
}

double MprisPlayer::rate() const {
    return m_control.nowPlayingInfo().playbackRate;
}

void MprisPlayer::setRate(double rate) {
    if (rate == 0.0) {
        // Media Player Remote Interfacing 2.2: a rate of 0 stands for a pause.
        Pause();
    } else if (rate >= minimumRate() && rate <= maximumRate()) {
        m_control.receive(Subtype::SetRate, rate);
    }
}

QDBusObjectPath MprisPlayer::trackId() const {
    if (!hasRecording()) {
        return QDBusObjectPath(QStringLiteral("/org/mpris/MediaPlayer2/TrackList/NoTrack"));
    }
    // A name may hold anything; a path may not.
    const QByteArray name = m_control.nowPlayingInfo().identifier.toUtf8();
    const QByteArray digest = QCryptographicHash::hash(name, QCryptographicHash::Sha256).toHex().left(16);
    return QDBusObjectPath(QStringLiteral("/com/quillfen/voicerecorder/recording/") + QString::fromLatin1(digest));
}

QVariantMap MprisPlayer::metadata() const {
    QVariantMap map{{QStringLiteral("mpris:trackid"), QVariant::fromValue(trackId())}};
    if (hasRecording()) {
        const NowPlayingInfo& info = m_control.nowPlayingInfo();
        map.insert(QStringLiteral("xesam:title"), info.title);
        map.insert(QStringLiteral("mpris:length"), qlonglong{std::llround(info.playbackDuration * kMicroseconds)});
    }
    return map;
}

qlonglong MprisPlayer::position() const {
    return std::llround(m_control.currentTime() * kMicroseconds);
}

bool MprisPlayer::hasRecording() const {
    return !m_control.nowPlayingInfo().identifier.isEmpty();
}

QVariantMap MprisPlayer::changingProperties() const {
    QVariantMap map{{QStringLiteral("PlaybackStatus"), playbackStatus()},
                    {QStringLiteral("Rate"), rate()},
                    {QStringLiteral("Metadata"), metadata()}};
    for (const char* name : {"CanGoNext", "CanGoPrevious", "CanPlay", "CanPause", "CanSeek"}) {
        map.insert(QString::fromLatin1(name), hasRecording());
    }
    return map;
}

void MprisPlayer::Next() {
    m_control.receive(Subtype::SkipForward);
}

void MprisPlayer::Previous() {
    m_control.receive(Subtype::SkipBackward);
}

void MprisPlayer::Pause() {
    m_control.receive(Subtype::Pause);
}

void MprisPlayer::PlayPause() {
    m_control.receive(Subtype::TogglePlayPause);
}

void MprisPlayer::Stop() {
    m_control.receive(Subtype::Stop);
}

void MprisPlayer::Play() {
    m_control.receive(Subtype::Play);
}

void MprisPlayer::Seek(qlonglong Offset) {
    m_control.receive(Subtype::Seek, static_cast<double>(Offset) / kMicroseconds);
}

void MprisPlayer::SetPosition(const QDBusObjectPath& TrackId, qlonglong Position) {
    const double seconds = static_cast<double>(Position) / kMicroseconds;
    if (TrackId == trackId() && seconds >= 0.0 && seconds <= m_control.nowPlayingInfo().playbackDuration) {
        m_control.receive(Subtype::SetPosition, seconds);
    }
}

}  // namespace tavi
