#pragma once

#include <QByteArray>
#include <QObject>
#include <filesystem>
#include <memory>

#include "platform/AudioPlayer.h"
#include "platform/Notices.h"
#include "platform/RunLoop.h"
#include "trimming/TrimSelection.h"

namespace tavi {

/// Plays the stretch that a trimmer's thumbs mark, and shows where it is; what ends the playing early is told in a
/// notice. Main thread only.
class TrimPlayer : public QObject, private AudioPlayerDelegate {
    Q_OBJECT
    Q_PROPERTY(bool isPlaying READ isPlaying NOTIFY isPlayingChanged)
    Q_PROPERTY(double indicatorX READ indicatorX NOTIFY indicatorChanged)
    Q_PROPERTY(bool indicatorHidden READ indicatorHidden NOTIFY indicatorChanged)

public:
    /// All of it must outlive the player.
    struct Services {
        AudioPlayers& players;
        Notices& notices;
        RunLoop& runLoop;
    };

    /// Plays the file at the path.
    TrimPlayer(const Services& services, std::filesystem::path path, const TrimSelection& selection,
               QObject* parent = nullptr);
    ~TrimPlayer() override;

    bool isPlaying() const { return m_isPlaying; }
    /// Centre of the play head in the plot's container.
    double indicatorX() const { return m_indicatorX; }
    bool indicatorHidden() const { return m_isIndicatorHidden; }

    /// False, with the reason in the log, when the file cannot be played.
    bool prepareToPlayAudio();
    /// Plays from the start of the stretch, or pauses.
    void playOrPause();
    /// While it plays, goes on from that place of the plot's container.
    Q_INVOKABLE void moveTo(double x);
    void pauseAudioPlayer();
    void stopAudioPlayer();
    /// Stops and lets go of the file.
    void drop();

Q_SIGNALS:
    void isPlayingChanged();
    void indicatorChanged();
    /// The file can be played, and is that many seconds long.
    void prepared(double duration);

private:
    void audioPlayerDidFinishPlaying(AudioPlayer& player, bool successfully) override;
    void playAudioPlayer();
    void startAudioTimerToDisplay();
    void stopAudioTimerToDisplay();
    void displayTimerFired();
    void showIndicator();
    void leavePlaying();

    Services m_services;
    std::filesystem::path m_path;
    const TrimSelection& m_selection;
    std::unique_ptr<AudioPlayer> m_audioPlayer;
    std::shared_ptr<Timer> m_timerAudioPlayer;
    bool m_isPlaying = false;
    double m_indicatorX = 0.0;
    bool m_isIndicatorHidden = true;
};

}  // namespace tavi
