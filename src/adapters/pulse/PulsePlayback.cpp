#include "adapters/pulse/PulsePlayback.h"

#include <algorithm>
#include <utility>

namespace tavi {

namespace {

/// What the server holds, and how much of it is played before it asks for more. Half of the difference between the
/// first and twice the second is what the device may hold, where nothing can be replaced any more.
constexpr pa_usec_t kHeld = 500 * PA_USEC_PER_MSEC;
constexpr pa_usec_t kAskedFor = 225 * PA_USEC_PER_MSEC;
/// What has to be there before the first frame is heard, and again when too little came.
constexpr pa_usec_t kBeforeStart = 20 * PA_USEC_PER_MSEC;
/// How long frames may be under way to the server: what it plays within that time is not replaced.
constexpr pa_usec_t kUnderWay = 5 * PA_USEC_PER_MSEC;
/// A server that does not answer for that long counts as gone.
constexpr pa_usec_t kAnswerLimit = 3 * PA_USEC_PER_SEC;
/// Closing takes no longer.
constexpr pa_usec_t kCloseLimit = PA_USEC_PER_SEC / 2;

/// What pulseError() says, but where that is about microphones.
Error playbackError(int code) {
    const bool isAboutDevice = code == PA_ERR_NOENTITY || code == PA_ERR_KILLED;
    return isAboutDevice ? Error{qtTrId("error_output_missing")} : pulseError(code);
}

}  // namespace

PulsePlayback::PulsePlayback(PulseConnection& connection, const AudioOutputFormat& format,
                             std::shared_ptr<AudioOutputSource> source)
    : m_connection(connection),
      m_format(format),
      m_source(std::move(source)),
      m_limit(connection.api()),
      m_reach(connection.api()) {}

void PulsePlayback::open() {
    m_connection.connect(
        [self = shared_from_this()](PulseConnection::State state) { self->connectionDidSettle(state); });
}

void PulsePlayback::wake() {
    if (!m_hasEnded && !m_isClosing) {
        m_source->audioOutputDidWake();
    }
}

void PulsePlayback::connectionDidSettle(PulseConnection::State state) {
    if (m_hasEnded || m_isClosing) {
        return;
    }
    if (state != PulseConnection::State::Ready) {
        fail(playbackError(state == PulseConnection::State::Refused ? PA_ERR_ACCESS : PA_ERR_CONNECTIONREFUSED));
        return;
    }
    m_connection.addObserver(shared_from_this());
    startLimit(kAnswerLimit);
    createStream();
}

void PulsePlayback::startLimit(pa_usec_t duration) {
    m_limit.start(
        m_connection.context(), pa_rtclock_now() + duration,
        [](pa_mainloop_api*, pa_time_event*, const timeval*, void* userdata) {
            static_cast<PulsePlayback*>(userdata)->limitDidPass();
        },
        this);
}

/// A server that asks for nothing may just have its device suspended; one that does not even answer is gone.
void PulsePlayback::limitDidPass() {
    m_limit.stop();
    if (m_isReady && !m_query) {
        updateTiming();
    } else {
        fail(playbackError(PA_ERR_TIMEOUT));
    }
}

/// While the stream runs something is to be heard of the server.
void PulsePlayback::watch() {
    if (m_isRunning) {
        startLimit(kAnswerLimit);
    } else {
        m_limit.stop();
    }
}

void PulsePlayback::createStream() {
    const pa_sample_spec spec{PA_SAMPLE_FLOAT32NE, static_cast<std::uint32_t>(m_format.sampleRate),
                              static_cast<std::uint8_t>(m_format.channels)};
    m_stream.reset(pa_stream_new(m_connection.context(), "Tavi", &spec, nullptr));
    if (!m_stream) {
        fail(playbackError(pa_context_errno(m_connection.context())));
        return;
    }
    pa_stream_set_state_callback(
        m_stream.get(),
        [](pa_stream*, void* userdata) { static_cast<PulsePlayback*>(userdata)->streamDidChangeState(); }, this);
    pa_stream_set_write_callback(
        m_stream.get(),
        [](pa_stream*, std::size_t, void* userdata) {
            auto& self = *static_cast<PulsePlayback*>(userdata);
            if (!self.m_isClosing) {
                self.watch();
                self.m_source->audioOutputWantsFrames(self);
            }
        },
        this);
    // Whether frames follow one another changes, or how long they take to be heard.
    const auto changed = [](pa_stream*, void* userdata) { static_cast<PulsePlayback*>(userdata)->updateTiming(); };
    pa_stream_set_underflow_callback(m_stream.get(), changed, this);
    pa_stream_set_started_callback(m_stream.get(), changed, this);
    pa_stream_set_moved_callback(m_stream.get(), changed, this);
    const auto bytes = [&spec](pa_usec_t time) { return static_cast<std::uint32_t>(pa_usec_to_bytes(time, &spec)); };
    constexpr auto kServerDecides = static_cast<std::uint32_t>(-1);
    const pa_buffer_attr attributes{kServerDecides, bytes(kHeld), bytes(kBeforeStart), bytes(kAskedFor),
                                    kServerDecides};
    constexpr auto kFlags = static_cast<pa_stream_flags_t>(PA_STREAM_START_CORKED | PA_STREAM_ADJUST_LATENCY);
    // Without a name libpulse takes the sink of the user's configuration, else the server's default.
    if (pa_stream_connect_playback(m_stream.get(), nullptr, &attributes, kFlags, nullptr, nullptr) < 0) {
        fail(playbackError(pa_context_errno(m_connection.context())));
    }
}

void PulsePlayback::streamDidChangeState() {
    switch (pa_stream_get_state(m_stream.get())) {
        case PA_STREAM_READY:
            m_isReady = true;
            m_limit.stop();
            m_source->audioOutputDidOpen(*this);
            break;
        case PA_STREAM_FAILED:
        case PA_STREAM_TERMINATED:
            fail(playbackError(pa_context_errno(m_connection.context())));
            break;
        default:
            break;
    }
}

std::size_t PulsePlayback::wanted() const {
    const std::size_t size = pa_stream_writable_size(m_stream.get());
    return size == static_cast<std::size_t>(-1) ? 0 : size / pa_frame_size(pa_stream_get_sample_spec(m_stream.get()));
}

void PulsePlayback::write(std::int64_t at, const float* interleaved, std::size_t frames) {
    const std::size_t frameSize = pa_frame_size(pa_stream_get_sample_spec(m_stream.get()));
    if (at == m_written) {
        pa_stream_write(m_stream.get(), interleaved, frames * frameSize, nullptr, 0, PA_SEEK_RELATIVE);
    } else {
        pa_stream_write(m_stream.get(), interleaved, frames * frameSize, nullptr,
                        at * static_cast<std::int64_t>(frameSize), PA_SEEK_ABSOLUTE);
    }
    m_written = at + static_cast<std::int64_t>(frames);
}

void PulsePlayback::setRunning(bool running) {
    m_isRunning = running;
    pulseForget(pa_stream_cork(m_stream.get(), running ? 0 : 1, nullptr, nullptr));
    watch();
}

std::int64_t PulsePlayback::framesIn(pa_usec_t duration) const {
    return static_cast<std::int64_t>(duration) * m_format.sampleRate / static_cast<std::int64_t>(PA_USEC_PER_SEC);
}

void PulsePlayback::updateTiming() {
    if (!m_isReady) {
        return;
    }
    if (m_query) {
        m_isStale = true;
        return;
    }
    m_isStale = false;
    m_query = PulseOperation(pa_stream_update_timing_info(
        m_stream.get(), [](pa_stream*, int, void* userdata) { static_cast<PulsePlayback*>(userdata)->timingDidCome(); },
        this));
    if (!m_isClosing) {
        startLimit(kAnswerLimit);
    }
}

void PulsePlayback::timingDidCome() {
    const auto self = shared_from_this();
    m_query.finish();
    readTiming();
    if (m_isClosing) {
        callAt(m_source->audioOutputWillClose(*this));
        return;
    }
    watch();
    if (m_isStale) {
        updateTiming();
        return;
    }
    m_source->audioOutputDidUpdateTiming(*this);
    if (m_reached >= 0 && !m_query) {
        checkReached();
    }
}

void PulsePlayback::readTiming() {
    const pa_timing_info* info = pa_stream_get_timing_info(m_stream.get());
    if (info == nullptr || info->read_index_corrupt != 0) {
        return;
    }
    const auto frameSize = static_cast<std::int64_t>(pa_frame_size(pa_stream_get_sample_spec(m_stream.get())));
    const std::int64_t read = info->read_index / frameSize;
    m_read = read;
    m_timing.isMoving = m_isRunning && info->playing != 0;
    m_timing.time = static_cast<std::int64_t>(pa_rtclock_now()) * 1000;
    m_timing.heard = read - framesIn(info->sink_usec);
    m_timing.replaceable = read;
    if (m_timing.isMoving) {
        m_timing.heard += framesIn(info->transport_usec);
        m_timing.replaceable += framesIn(info->transport_usec + kUnderWay);
    }
}

void PulsePlayback::callAt(std::int64_t frame) {
    m_reached = std::max<std::int64_t>(frame, 0);
    if (!m_query) {
        checkReached();
    }
}

/// Looks again when that frame should be heard. The end of what was written has been heard when nothing moves. What the
/// device has not taken has not been heard, whatever the estimate says: a stream that stops now would keep it.
void PulsePlayback::checkReached() {
    const std::int64_t left = m_reached - std::min(m_timing.heard, m_read);
    if (left <= 0 || (m_isRunning && !m_timing.isMoving && m_reached <= m_timing.replaceable)) {
        m_reached = -1;
        m_reach.stop();
        if (m_isClosing) {
            letGo();
        } else {
            m_source->audioOutputDidReach(*this);
        }
        return;
    }
    const auto wait = static_cast<pa_usec_t>(left) * PA_USEC_PER_SEC / static_cast<pa_usec_t>(m_format.sampleRate);
    m_reach.start(
        m_connection.context(), pa_rtclock_now() + wait + PA_USEC_PER_MSEC,
        [](pa_mainloop_api*, pa_time_event*, const timeval*, void* userdata) {
            auto& self = *static_cast<PulsePlayback*>(userdata);
            self.m_reach.stop();
            if (self.m_isClosing) {
                self.letGo();
            } else {
                self.updateTiming();
            }
        },
        this);
}

void PulsePlayback::close() {
    if (m_hasEnded) {
        return;
    }
    m_isClosing = true;
    if (!m_isReady || !m_isRunning) {
        if (m_isReady) {
            m_source->audioOutputWillClose(*this);
        }
        letGo();
        return;
    }
    m_limit.start(
        m_connection.context(), pa_rtclock_now() + kCloseLimit,
        [](pa_mainloop_api*, pa_time_event*, const timeval*, void* userdata) {
            static_cast<PulsePlayback*>(userdata)->letGo();
        },
        this);
    updateTiming();
}

void PulsePlayback::letGo() {
    const auto self = shared_from_this();
    m_hasEnded = true;
    m_isReady = false;
    m_query = {};
    m_limit.stop();
    m_reach.stop();
    m_stream.reset();
    m_connection.removeObserver(this);
}

void PulsePlayback::fail(const Error& error) {
    if (m_hasEnded) {
        return;
    }
    const auto self = shared_from_this();
    letGo();
    if (!m_isClosing) {
        m_source->audioOutputDidFail(error);
    }
}

}  // namespace tavi
