#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

#include "adapters/pulse/PulseConnection.h"
#include "adapters/pulse/PulseHandles.h"
#include "platform/AudioOutput.h"

namespace tavi {

/// The loop thread's end of an output: a playback stream.
///
/// The server holds half a second and asks for more four times a second. Frames are written by their number in
/// the stream, so that the server replaces what it holds already, and rewinds a device that can.
class PulsePlayback : public PulseConnectionObserver,
                      public AudioOutputStream,
                      public std::enable_shared_from_this<PulsePlayback> {
public:
    PulsePlayback(PulseConnection& connection, const AudioOutputFormat& format,
                  std::shared_ptr<AudioOutputSource> source);

    /// Opens a corked stream, connecting first if need be.
    void open();
    void wake();
    /// Lets the source fade out, and lets go of the stream when that has been heard.
    void close();

    void pulseConnectionDidEnd(const Error& error) override { fail(error); }

    Timing timing() const override { return m_timing; }
    void updateTiming() override;
    std::int64_t written() const override { return m_written; }
    std::size_t wanted() const override;
    void write(std::int64_t at, const float* interleaved, std::size_t frames) override;
    void setRunning(bool running) override;
    void callAt(std::int64_t frame) override;

private:
    void connectionDidSettle(PulseConnection::State state);
    void createStream();
    void streamDidChangeState();
    void timingDidCome();
    void readTiming();
    void checkReached();
    void letGo();
    void fail(const Error& error);
    void startLimit(pa_usec_t duration);
    void limitDidPass();
    void watch();
    std::int64_t framesIn(pa_usec_t duration) const;

    PulseConnection& m_connection;
    const AudioOutputFormat m_format;
    std::shared_ptr<AudioOutputSource> m_source;
    /// Ends waiting for a server that does not answer.
    PulseTimer m_limit;
    PulseTimer m_reach;
    PulseOperation m_query;
    PulseStreamHandle m_stream;
    bool m_isReady = false;
    bool m_isRunning = false;
    bool m_isClosing = false;
    bool m_hasEnded = false;
    /// The timing that is on its way was asked for before something changed.
    bool m_isStale = false;
    Timing m_timing;
    std::int64_t m_written = 0;
    /// How many frames the device had taken.
    std::int64_t m_read = 0;
    /// The frame that somebody waits for; negative for none.
    std::int64_t m_reached = -1;
};

}  // namespace tavi
