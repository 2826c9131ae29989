#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "adapters/player/PlaybackBuffer.h"
#include "adapters/player/PlaybackClock.h"
#include "platform/AudioOutput.h"

namespace tavi {

/// Gives an output what a buffer holds: the playback thread's part of a player.
///
/// The output holds half a second. What it holds already is replaced when something else is to be heard: the
/// frames that were given to it stay in the buffer until they have been heard, so that the new sound is faded in over
/// the old, frame for frame.
class PlaybackFeed : public AudioOutputSource {
public:
    /// Why sound has come to its end, told on the playback thread.
    struct End {
        enum class Reason {
            /// The recording's own end has been heard.
            Whole,
            /// No more of the recording can be read.
            CutShort,
            /// There is no output, or no longer.
            NoOutput,
        };
        Reason reason = Reason::Whole;
        /// The number of the jump whose sound it was; 0 where the output failed.
        std::uint64_t jump = 0;
        /// What the output said.
        Error error = {};
    };
    using Ended = std::function<void(const End& end)>;
    /// Sum of the squares of each channel's samples, and over how many frames.
    struct Level {
        std::array<double, 2> sumOfSquares{};
        std::int64_t frames = 0;
        /// The output's frame behind them.
        std::int64_t end = 0;
    };

    PlaybackFeed(PlaybackBuffer& buffer, PlaybackClock& clock, Ended ended);
    ~PlaybackFeed() override;

    // Main thread.
    /// Whether sound is to be heard; takes effect at the next wake.
    void setPlaying(bool playing) { m_isWanted = playing; }
    void setMetering(bool metering) { m_isMetering = metering; }
    /// Levels of what was heard since the last call, up to that frame of the output.
    Level takeLevel(std::int64_t heard);

    // Playback thread.
    void audioOutputDidOpen(AudioOutputStream& stream) override;
    void audioOutputWantsFrames(AudioOutputStream& stream) override;
    void audioOutputDidUpdateTiming(AudioOutputStream& stream) override;
    void audioOutputDidReach(AudioOutputStream& stream) override;
    void audioOutputDidWake() override;
    std::int64_t audioOutputWillClose(AudioOutputStream& stream) override;
    void audioOutputDidFail(const Error& error) override;

private:
    void takeMarks();
    void act();
    void fadeOut();
    void stand();
    void cutOver();
    std::int64_t placeOfCut(std::int64_t& skipped);
    void fill(std::size_t frames);
    void write(std::int64_t at, const float* interleaved, std::int64_t frames);
    void writeSilence(std::int64_t frames);
    void reachEnd(std::int64_t end);
    const float* oldFramesAt(std::int64_t at, std::int64_t frames);
    void publishPosition();
    std::int64_t ramp() const { return m_buffer.format().sampleRate / kRampsPerSecond; }

    /// Long enough to be no click, short enough to be no fade.
    static constexpr std::int64_t kRampsPerSecond = 125;

    PlaybackBuffer& m_buffer;
    PlaybackClock& m_clock;
    Ended m_ended;
    std::atomic<bool> m_isWanted = false;
    std::atomic<bool> m_isMetering = false;

    AudioOutputStream* m_stream = nullptr;
    bool m_isRunning = false;
    bool m_isFading = false;
    bool m_isAtEnd = false;
    /// How often the timing is still asked for at short intervals, and how long ago that was.
    int m_timingsSoon = 0;
    int m_fillsSinceTiming = 0;
    std::int64_t m_published = 0;
    /// The number in the buffer of the next frame to write.
    std::int64_t m_cursor = 0;
    /// Where the sound begins that takes the place of what is heard.
    std::optional<PlaybackMark> m_cut;
    std::optional<PlaybackMark> m_end;
    PlaybackPosition m_position{};
    std::vector<float> m_scratch;
    TPCircularBuffer m_levels;
};

}  // namespace tavi
