#pragma once

#include <QObject>
#include <filesystem>
#include <memory>

#include "platform/AudioPlayer.h"
#include "platform/Notices.h"
#include "platform/RunLoop.h"

namespace tavi {

/// Plays a recording, or what was cut from it; the recording keeps its place meanwhile. Main thread only.
class AudioTrimPlayer : public QObject, private AudioPlayerDelegate {
    Q_OBJECT

public:
    /// All must outlive this. What ends the playing early is told in a notice.
    AudioTrimPlayer(AudioPlayers& players, Notices& notices, RunLoop& runLoop, QObject* parent = nullptr);
    ~AudioTrimPlayer() override;

    /// Makes the recording's player. Without one, with the reason in the log, nothing plays.
    void load(const std::filesystem::path& recording);
    bool canPlay() const { return m_recording != nullptr; }
    /// Plays the recording on, in the place of the cut; pauses it while it plays.
    void playOrPause();
    /// Plays a cut from its beginning. A file that cannot be played is told in the log.
    void playCut(const std::filesystem::path& cut);
    void stop();

    /// Whether anything plays, and whether that is the recording.
    bool isPlaying() const { return m_timer != nullptr; }
    bool isRecordingPlaying() const { return isPlaying() && m_cut == nullptr; }
    /// Seconds of what plays, of the recording while nothing does; 0 without a player.
    double currentTime() const { return current() != nullptr ? current()->currentTime() : 0.0; }
    double duration() const { return current() != nullptr ? current()->duration() : 0.0; }
    void setCurrentTime(double seconds);

Q_SIGNALS:
    void isPlayingChanged();
    void timeChanged();

private:
    std::unique_ptr<AudioPlayer> make(const std::filesystem::path& path);
    AudioPlayer* current() const { return m_cut != nullptr ? m_cut.get() : m_recording.get(); }
    void play();
    void leavePlaying();
    void audioPlayerDidFinishPlaying(AudioPlayer& player, bool successfully) override;

    AudioPlayers& m_players;
    Notices& m_notices;
    RunLoop& m_runLoop;
    std::unique_ptr<AudioPlayer> m_recording;
    /// There while it plays.
    std::unique_ptr<AudioPlayer> m_cut;
    std::shared_ptr<Timer> m_timer;
};

}  // namespace tavi
