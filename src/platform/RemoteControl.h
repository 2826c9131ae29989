#pragma once

#include <QString>

namespace tavi {

/// Something that a headset's button, a keyboard's media key or the desktop's player panel asks for.
struct RemoteControlEvent {
    enum class Subtype {
        Play,
        Pause,
        TogglePlayPause,
        Stop,
        SkipForward,
        SkipBackward,
        /// value is an offset from the current time, in seconds, and may be negative.
        Seek,
        /// value is a time in the recording, in seconds.
        SetPosition,
        /// value is 0.5 to 2.0.
        SetRate,
        /// Show the window.
        Raise,
        Quit,
    };

    Subtype subtype = Subtype::Play;
    double value = 0.0;

    bool operator==(const RemoteControlEvent&) const = default;
};

/// Receives remote-control events and answers what only it knows. Main thread.
class RemoteControlDelegate {
public:
    virtual ~RemoteControlDelegate() = default;

    virtual void remoteControlReceivedWithEvent(const RemoteControlEvent& event) = 0;
    /// Seconds in the recording, now. Asked when somebody wants to know.
    virtual double remoteControlCurrentTime() const = 0;
};

/// What the desktop shows about the recording that is loaded.
struct NowPlayingInfo {
    enum class PlaybackState { Stopped, Paused, Playing };

    /// Tells recordings apart; shown nowhere.
    QString identifier;
    QString title;
    /// Seconds.
    double playbackDuration = 0.0;
    PlaybackState playbackState = PlaybackState::Stopped;
    /// 0.5 to 2.0, also while paused.
    double playbackRate = 1.0;

    bool operator==(const NowPlayingInfo&) const = default;
};

/// The desktop's media controls. Main thread only; nothing waits, and where there is no desktop nothing comes.
class RemoteControl {
public:
    virtual ~RemoteControl() = default;

    /// Null is allowed and means that nobody wants to hear.
    virtual void setDelegate(RemoteControlDelegate* delegate) = 0;
    /// Shows the program as a player from now on. Repeating it changes nothing.
    virtual void beginReceivingRemoteControlEvents() = 0;
    /// Takes the player away again: no event follows.
    virtual void endReceivingRemoteControlEvents() = 0;
    /// Tells the desktop what has changed since the last time. Kept also while no events are received.
    virtual void setNowPlayingInfo(const NowPlayingInfo& info) = 0;
    /// The current time did not get here by playing, so that whoever shows it has to ask.
    virtual void currentTimeDidJump() = 0;
};

}  // namespace tavi
