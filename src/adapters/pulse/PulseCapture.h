#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>

#include "adapters/pulse/CaptureMarks.h"
#include "adapters/pulse/PulseConnection.h"
#include "adapters/pulse/PulseHandles.h"
#include "platform/AudioInput.h"

namespace tavi {

/// The loop thread's end of an input: a record stream, and which of its frames the listener gets.
///
/// Frames are counted as they leave the stream. resume() and pause() become marks on that count: the server's timing
/// tells which frame was in the air at a given time, and frames between marks are delivered or dropped exactly.
///
/// All on the loop's thread, but silence() and deviceName().
class PulseCapture : public PulseConnectionObserver, public std::enable_shared_from_this<PulseCapture> {
public:
    PulseCapture(PulseConnection& connection, AudioInputListener& listener);

    /// Asks for the source and opens a corked stream on it, connecting first if need be.
    void open();
    /// Delivers from, or up to, what was captured at that time of pa_rtclock_now().
    void setCapturing(bool capturing, pa_usec_t time);
    /// Lets go of the stream.
    void close();
    /// Ends the calls to the listener: none is running when this returns and none follows. Not from such a call.
    void silence();
    /// What the server calls the source for people; empty until it has said so.
    QString deviceName() const;

    void pulseConnectionDidEnd(const Error& error) override { fail(error); }
    void pulseConnectionDidPreferSource() override;

private:
    void nameSource(const pa_source_info& source);
    void connectionDidSettle(PulseConnection::State state);
    void createStream(const pa_source_info& source);
    void streamDidChangeState();
    void streamDidMove();

    void uncork();
    void cork();
    void updateTiming();
    std::int64_t framesUntil(pa_usec_t time) const;
    void drain();
    std::int64_t readableFrames() const;
    void didPause();
    void startLimit();
    void limitDidPass();
    void fail(const Error& error);
    template <class Call>
    void tell(Call call);

    PulseConnection& m_connection;
    AudioInputListener& m_listener;
    std::atomic<bool> m_isSilent = false;
    std::atomic<bool> m_isTelling = false;
    mutable std::mutex m_nameMutex;
    QString m_deviceName;

    AudioInputFormat m_format;
    PulseTimer m_limit;
    PulseOperation m_query;
    PulseOperation m_timing;
    PulseOperation m_flush;
    PulseStreamHandle m_stream;
    bool m_isReady = false;
    bool m_hasEnded = false;
    bool m_startedOnMicrophone = false;
    bool m_isCorked = true;
    CaptureMarks m_marks;
};

}  // namespace tavi
