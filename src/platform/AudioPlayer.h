#pragma once

#include <filesystem>
#include <memory>

#include "platform/Error.h"

namespace tavi {

class AudioPlayer;

/// Told when a player has come to its end. Main thread.
class AudioPlayerDelegate {
public:
    virtual ~AudioPlayerDelegate() = default;

    /// The player is no longer playing: the end has been heard, or (not successfully) the file can no longer be read or
    /// the sound system is gone. Once for each play() that gets there; pause() and stop() are no end. The player may be
    /// destroyed from here.
    virtual void audioPlayerDidFinishPlaying(AudioPlayer& player, bool successfully) = 0;
};

/// Plays one sound file. Main thread only; no call waits for the disk or the sound system.
///
/// Times are seconds in the recording, whatever the rate. A player that is paused, stopped or at its end makes no
/// wake-ups.
class AudioPlayer {
public:
    virtual ~AudioPlayer() = default;

    virtual void setDelegate(AudioPlayerDelegate* delegate) = 0;
    /// Opens the output and decodes ahead, so that play() is heard soon. False when nothing can be played any more.
    virtual bool prepareToPlay() = 0;
    /// Plays on from the current time; at the end, from the beginning. What fails later reaches the delegate.
    virtual bool play() = 0;
    /// Stops at the frame that is heard; play() goes on with the next.
    virtual void pause() = 0;
    /// Like pause(), and lets go of the output.
    virtual void stop() = 0;
    virtual bool isPlaying() const = 0;
    /// Why the delegate was told last that the end came unsuccessfully; for the user.
    virtual Error error() const = 0;
    /// What is heard now: from 0 to duration(), where it stays after the end.
    virtual double currentTime() const = 0;
    /// Goes to a time, exact to the sample; times outside the recording are its ends. Heard within 50 ms while playing.
    virtual void setCurrentTime(double seconds) = 0;
    /// Exact to the sample.
    virtual double duration() const = 0;
    /// Without it the rate is 1, whatever setRate() says.
    virtual void setEnableRate(bool enabled) = 0;
    /// 0.5 to 2.0, and the nearest of these for anything else. The pitch stays as it is. While playing, the change is
    /// heard within 50 ms, without a gap.
    virtual void setRate(float rate) = 0;
    virtual float rate() const = 0;
    virtual void setMeteringEnabled(bool enabled) = 0;
    /// Takes the mean power of what was played since the last update; silence when nothing was.
    virtual void updateMeters() = 0;
    /// RMS in dBFS of a channel at the last update, -160 (silence) to 0.
    virtual float averagePowerForChannel(int channel) const = 0;
};

/// Makes players.
class AudioPlayers {
public:
    virtual ~AudioPlayers() = default;

    /// A player at the beginning of the file. Reads the file's headers, and through it only where they do not tell its
    /// length. Fails when it is no sound file.
    virtual Result<std::unique_ptr<AudioPlayer>> playerWithContentsOfURL(const std::filesystem::path& path) = 0;
};

}  // namespace tavi
