#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

#include "adapters/player/PlaybackBuffer.h"
#include "adapters/player/PlaybackClock.h"
#include "platform/AudioTempo.h"
#include "platform/ExtAudioFile.h"

namespace tavi {

/// Decodes a recording ahead of what is heard, at the rate that is asked for, into a buffer.
///
/// What a jump or a change of rate begins is shown to the playback thread only once there is enough of it to take the
/// place of all that the output holds; until then the sound before it goes on.
class PlaybackReader {
public:
    /// length is that of the recording in frames of the buffer's rate. The file delivers that format.
    PlaybackReader(std::unique_ptr<ExtAudioFile> file, double fileFramesPerFrame, std::int64_t length,
                   AudioTempos& tempos, PlaybackBuffer& buffer, const PlaybackClock& clock);

    // Main thread.
    /// Goes on from a frame of the recording. The number of this jump, which the clock shows once it is done.
    std::uint64_t jump(std::int64_t frame);
    void setRate(double rate);
    void quit();

    // Decoding thread.
    /// Works until quit(); wakes the playback thread whenever it should look.
    void run(const std::function<void()>& wakePlayback);
    /// The next piece of work; false when there is none. now is a time of the monotonic clock, in nanoseconds.
    bool step(std::int64_t now);
    /// Whether the playback thread should look, since the last call.
    bool takeNews() { return std::exchange(m_hasNews, false); }

private:
    struct Command {
        std::optional<std::int64_t> jump;
        std::uint64_t jumps = 0;
        double rate = 1.0;
    };

    void begin(PlaybackMark::Kind kind, double media, double rate);
    void beginWhatIsAsked(std::int64_t now);
    void decode();
    std::size_t readFrames(float* frames, std::size_t capacity);
    std::size_t readThroughTempo(float* frames, std::size_t capacity);
    void end(bool isWhole);
    void publish();

    std::unique_ptr<ExtAudioFile> m_file;
    const double m_fileFramesPerFrame;
    const std::int64_t m_length;
    AudioTempos& m_tempos;
    PlaybackBuffer& m_buffer;
    const PlaybackClock& m_clock;

    std::mutex m_mutex;
    Command m_command;
    std::atomic<bool> m_mustQuit = false;

    // Decoding thread.
    std::unique_ptr<AudioTempo> m_tempo;
    std::vector<float> m_input;
    std::uint64_t m_jumps = 0;
    double m_rate = 1.0;
    /// What the sound that is decoded now begins with.
    PlaybackMark m_beginning;
    bool m_isPreparing = false;
    bool m_hasEnded = true;
    bool m_hasFailed = false;
    bool m_inputHasEnded = false;
    bool m_hasNews = false;
};

}  // namespace tavi
