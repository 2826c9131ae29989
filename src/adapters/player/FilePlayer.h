#pragma once

#include <array>
#include <filesystem>
#include <memory>
#include <thread>

#include "adapters/player/PlaybackFeed.h"
#include "platform/AudioOutput.h"
#include "platform/AudioPlayer.h"
#include "platform/AudioTempo.h"
#include "platform/ExtAudioFile.h"
#include "platform/RunLoop.h"

namespace tavi {

struct PlaybackCore;

/// Plays a file to an output: a thread of the player's own decodes a second or two ahead, the playback thread hands it
/// on, the main thread only tells what is wanted and reads the clock.
class FilePlayer : public AudioPlayer {
public:
    /// The file delivers frames of that format, length of them; each stands for fileFramesPerFrame of its own.
    FilePlayer(std::unique_ptr<ExtAudioFile> file, const AudioOutputFormat& format, double fileFramesPerFrame,
               std::int64_t length, AudioTempos& tempos, AudioOutputs& outputs, RunLoop& runLoop);
    ~FilePlayer() override;

    /// Whether there was memory for it.
    bool isValid() const;

    void setDelegate(AudioPlayerDelegate* delegate) override { m_delegate = delegate; }
    bool prepareToPlay() override;
    bool play() override;
    void pause() override;
    void stop() override;
    bool isPlaying() const override { return m_isPlaying; }
    Error error() const override { return m_error; }
    double currentTime() const override;
    void setCurrentTime(double seconds) override;
    double duration() const override { return seconds(m_length); }
    void setEnableRate(bool enabled) override;
    void setRate(float rate) override;
    float rate() const override { return m_rate; }
    void setMeteringEnabled(bool enabled) override;
    void updateMeters() override;
    float averagePowerForChannel(int channel) const override;

private:
    double seconds(std::int64_t frames) const { return static_cast<double>(frames) / m_format.sampleRate; }
    std::int64_t currentFrame() const;
    void goTo(std::int64_t frame);
    void applyRate();
    void closeOutput();
    void ended(const PlaybackFeed::End& end);

    const AudioOutputFormat m_format;
    const std::int64_t m_length;
    AudioOutputs& m_outputs;
    RunLoop& m_runLoop;
    AudioPlayerDelegate* m_delegate = nullptr;
    /// Expires with the player, so that what other threads posted finds out.
    std::shared_ptr<int> m_lifetime = std::make_shared<int>(0);
    std::shared_ptr<PlaybackCore> m_core;
    std::shared_ptr<std::jthread> m_thread;
    std::unique_ptr<AudioOutput> m_output;
    bool m_isPlaying = false;
    Error m_error;
    /// Where the player stands while it does not play or a jump is under way, and the number of the last jump.
    std::int64_t m_frame = 0;
    std::uint64_t m_jump = 0;
    bool m_isRateEnabled = false;
    float m_rate = 1.0F;
    bool m_isMetering = false;
    std::array<float, 2> m_averagePower;
};

/// Makes players of the files, tempos and outputs that the program has; all of them must outlive the players.
class FilePlayers : public AudioPlayers {
public:
    FilePlayers(ExtAudioFiles& files, AudioTempos& tempos, AudioOutputs& outputs, RunLoop& runLoop)
        : m_files(files), m_tempos(tempos), m_outputs(outputs), m_runLoop(runLoop) {}

    Result<std::unique_ptr<AudioPlayer>> playerWithContentsOfURL(const std::filesystem::path& path) override;

private:
    ExtAudioFiles& m_files;
    AudioTempos& m_tempos;
    AudioOutputs& m_outputs;
    RunLoop& m_runLoop;
};

}  // namespace tavi
