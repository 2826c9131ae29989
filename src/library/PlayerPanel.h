#pragma once

#include <QList>
#include <QObject>
#include <filesystem>
#include <memory>

#include "library/PlayerServices.h"
#include "platform/Outlets.h"

namespace tavi {

/// The player of the library screen: one recording, its controls, and what they show. Main thread only.
///
/// Which recording is loaded, and what becomes of its row, is the screen's to say.
class PlayerPanel : public QObject, private AudioPlayerDelegate {
    Q_OBJECT
    Q_PROPERTY(tavi::SliderOutlet slider_player READ slider_player NOTIFY progressChanged)
    Q_PROPERTY(tavi::LabelOutlet lblSongMinTime READ lblSongMinTime NOTIFY timesChanged)
    Q_PROPERTY(tavi::LabelOutlet lblSongMaxTime READ lblSongMaxTime NOTIFY timesChanged)
    Q_PROPERTY(tavi::LabelOutlet lblBackwardSec READ lblBackwardSec NOTIFY outletsChanged)
    Q_PROPERTY(tavi::LabelOutlet lblForwardSec READ lblForwardSec NOTIFY outletsChanged)
    Q_PROPERTY(tavi::ButtonOutlet btnplaypuas READ btnplaypuas NOTIFY outletsChanged)
    Q_PROPERTY(tavi::ButtonOutlet btnPlay READ btnPlay NOTIFY outletsChanged)
    Q_PROPERTY(tavi::ButtonOutlet btnSlow READ btnSlow NOTIFY outletsChanged)
    Q_PROPERTY(tavi::ButtonOutlet btnMedium READ btnMedium NOTIFY outletsChanged)
    Q_PROPERTY(tavi::ButtonOutlet btnFastPlay READ btnFastPlay NOTIFY outletsChanged)
    Q_PROPERTY(tavi::ButtonOutlet speakerButton READ speakerButton NOTIFY outletsChanged)
    Q_PROPERTY(QList<qreal> waveform READ waveform NOTIFY waveformChanged)
    Q_PROPERTY(double rate READ rate NOTIFY outletsChanged)
    Q_PROPERTY(bool hasPlayer READ hasPlayer NOTIFY outletsChanged)
    Q_PROPERTY(bool isPlayerPlaying READ isPlayerPlaying NOTIFY outletsChanged)
    Q_PROPERTY(bool ishandset READ ishandset NOTIFY outletsChanged)

public:
    using Services = PlayerServices;

    explicit PlayerPanel(const Services& services, QObject* parent = nullptr);
    ~PlayerPanel() override;

    SliderOutlet slider_player() const { return m_slider_player; }
    LabelOutlet lblSongMinTime() const { return m_lblSongMinTime; }
    LabelOutlet lblSongMaxTime() const { return m_lblSongMaxTime; }
    LabelOutlet lblBackwardSec() const { return m_lblBackwardSec; }
    LabelOutlet lblForwardSec() const { return m_lblForwardSec; }
    ButtonOutlet btnplaypuas() const { return m_btnplaypuas; }
    ButtonOutlet btnPlay() const { return m_btnPlay; }
    ButtonOutlet btnSlow() const { return m_btnSlow; }
    ButtonOutlet btnMedium() const { return m_btnMedium; }
    ButtonOutlet btnFastPlay() const { return m_btnFastPlay; }
    ButtonOutlet speakerButton() const { return m_speakerButton; }
    /// How loud what is loaded is from place to place, from 0 to 1; empty until it is known.
    const QList<qreal>& waveform() const { return m_waveform; }
    /// How fast it plays, whether or not a speed button is chosen.
    double rate() const { return m_avPlayer ? static_cast<double>(m_avPlayer->rate()) : 1.0; }
    /// False also where a file was loaded that cannot be played.
    bool hasPlayer() const { return m_avPlayer != nullptr; }
    bool isPlayerPlaying() const { return m_avPlayer != nullptr && m_avPlayer->isPlaying(); }
    /// The file that was loaded last; not text.
    const std::filesystem::path& urlPath() const { return m_urlPath; }
    /// How many progress timers there are: one more with each load, on purpose. They share one tick, which runs only
    /// while something plays, as a tick does nothing otherwise.
    int updateTimers() const { return m_updateTimers; }
    /// Whether the output goes to the earpiece.
    bool ishandset() const { return m_ishandset; }
    /// Seconds; 0 without a player.
    double currentTime() const;

    /// A row has opened for a recording: its step labels, and no speed chosen.
    void prepareForRow();
    /// Loads a file in the place of what was loaded. One that cannot be played leaves no player, and is not reported.
    void initAudioWithUrl(const std::filesystem::path& path);
    /// The play button's work: pauses what plays, else plays. wasSelected is the state of the button pressed.
    void playOrPause(bool wasSelected);
    void setBtnPlaySelected(bool selected);
    /// Stops and lets go of the player.
    void drop();
    /// Marks the play buttons after the end of a recording.
    void showEnd();
    /// Plays at any rate from 0.5 to 2.0, and shows it where there is a button for it.
    void setRate(double rate);

public Q_SLOTS:
    void updateCurrentTime();
    void progressSliderMoved(double value);
    void backSkip();
    void forwardSkip();
    /// With a sender, the pressed speed button, they turn the button round; without, they only set the rate.
    void slowAudio(QObject* sender = nullptr);
    void mediumAudio(QObject* sender = nullptr);
    void fastAudio(QObject* sender = nullptr);
    /// The next speed down and up.
    void slower();
    void faster();
    /// Sends the sound to the earpiece and back.
    void playerSpeaker();
    /// The session has taken the sound away from the earpiece.
    void earpieceWasLeft();
    /// A moment as the elapsed time shows it.
    QString timeText(double seconds) const;
    /// Whether the current route's name says headphones or headset; false when it cannot be read.
    bool isHeadsetPluggedIn() const;

Q_SIGNALS:
    void outletsChanged();
    /// The slider has moved by as much as can be seen.
    void progressChanged();
    void timesChanged();
    void waveformChanged();
    /// A file has been loaded, or let go of.
    void urlPathChanged();
    /// The recording has come to its end.
    void finished();

private:
    void audioPlayerDidFinishPlaying(AudioPlayer& player, bool successfully) override;
    void playerTimeDelegate(const QString& elapsed, const QString& total);
    void showProgress();
    /// Tells of the slider and the times what can be seen of them.
    void announceProgress();
    void goTo(double seconds);
    void toggleSpeed(ButtonOutlet& button, float rate);
    void applyRate(float rate);
    void showWaveform();
    void setWaveform(const std::vector<float>& points);
    void runTick();
    void changed();

    Services m_services;
    std::unique_ptr<AudioPlayer> m_avPlayer;
    QList<qreal> m_waveform;
    std::filesystem::path m_urlPath;
    int m_updateTimers = 0;
    std::shared_ptr<Timer> m_tick;
    bool m_ishandset = false;
    SliderOutlet m_slider_player;
    /// The slider's value and the times when they were last told of.
    double m_announcedValue = -1.0;
    QString m_announcedTimes;
    LabelOutlet m_lblSongMinTime;
    LabelOutlet m_lblSongMaxTime;
    LabelOutlet m_lblBackwardSec;
    LabelOutlet m_lblForwardSec;
    ButtonOutlet m_btnplaypuas;
    ButtonOutlet m_btnPlay;
    ButtonOutlet m_btnSlow;
    ButtonOutlet m_btnMedium;
    ButtonOutlet m_btnFastPlay;
    ButtonOutlet m_speakerButton;
};

}  // namespace tavi
