#include "adapters/pulse/PulseCapture.h"

#include <QObject>

namespace tavi {

namespace {

/// A level meter that looks every 0.1 s finds something new each time; the loop wakes 12.5 times a second.
constexpr pa_usec_t kFragment = 80 * PA_USEC_PER_MSEC;
/// A source that has not been opened by then counts as failed.
constexpr pa_usec_t kOpenLimit = 5 * PA_USEC_PER_SEC;
/// A pause is answered by then, whatever the server does.
constexpr pa_usec_t kPauseLimit = PA_USEC_PER_SEC / 2;

}  // namespace

/// Calls the listener unless it has been silenced. A flag on either side instead of a lock: the capture thread never
/// waits, and silence() only as long as a call takes.
template <class Call>
void PulseCapture::tell(Call call) {
    m_isTelling = true;
    if (!m_isSilent) {
        call(m_listener);
    }
    m_isTelling = false;
    m_isTelling.notify_all();
}

PulseCapture::PulseCapture(PulseConnection& connection, AudioInputListener& listener)
    : m_connection(connection), m_listener(listener), m_limit(connection.api()) {}

void PulseCapture::silence() {
    m_isSilent = true;
    m_isTelling.wait(true);
}

QString PulseCapture::deviceName() const {
    const std::lock_guard lock(m_nameMutex);
    return m_deviceName;
}

void PulseCapture::nameSource(const pa_source_info& source) {
    const std::lock_guard lock(m_nameMutex);
    m_deviceName = QString::fromUtf8(source.description);
}

void PulseCapture::open() {
    m_connection.connect(
        [self = shared_from_this()](PulseConnection::State state) { self->connectionDidSettle(state); });
}

void PulseCapture::close() {
    m_hasEnded = true;
    m_marks.clear();
    m_query = {};
    m_timing = {};
    m_flush = {};
    m_limit.stop();
    m_stream.reset();
    m_connection.removeObserver(this);
}

void PulseCapture::fail(const Error& error) {
    if (m_hasEnded) {
        return;
    }
    const auto self = shared_from_this();
    close();
    tell([&error](AudioInputListener& listener) { listener.audioInputDidFail(error); });
}

void PulseCapture::connectionDidSettle(PulseConnection::State state) {
    if (m_hasEnded) {
        return;
    }
    if (state != PulseConnection::State::Ready) {
        fail(pulseError(state == PulseConnection::State::Refused ? PA_ERR_ACCESS : PA_ERR_CONNECTIONREFUSED));
        return;
    }
    m_connection.addObserver(shared_from_this());
    m_limit.start(
        m_connection.context(), pa_rtclock_now() + kOpenLimit,
        [](pa_mainloop_api*, pa_time_event*, const timeval*, void* userdata) {
            static_cast<PulseCapture*>(userdata)->fail(pulseError(PA_ERR_TIMEOUT));
        },
        this);
    m_query = PulseOperation(pa_context_get_source_info_by_name(
        m_connection.context(), m_connection.sourceName().constData(),
        [](pa_context*, const pa_source_info* info, int isLast, void* userdata) {
            auto& self = *static_cast<PulseCapture*>(userdata);
            if (isLast == 0) {
                self.createStream(*info);
            } else if (isLast < 0) {
                self.fail(pulseError(PA_ERR_NOENTITY));
            } else {
                self.m_query.finish();
            }
        },
        this));
}

void PulseCapture::createStream(const pa_source_info& source) {
    nameSource(source);
    m_startedOnMicrophone = source.monitor_of_sink == PA_INVALID_INDEX;
    if (!m_startedOnMicrophone && m_connection.chosenSource().isEmpty() && !m_connection.sources().hasMicrophone()) {
        fail(pulseError(PA_ERR_NOENTITY));
        return;
    }
    const bool isMono = source.sample_spec.channels == 1;
    m_format = {static_cast<int>(source.sample_spec.rate), isMono ? 1 : 2};
    const pa_sample_spec spec{PA_SAMPLE_FLOAT32NE, source.sample_spec.rate,
                              static_cast<std::uint8_t>(m_format.channels)};
    pa_channel_map map;
    if (isMono) {
        pa_channel_map_init_mono(&map);
    } else {
        pa_channel_map_init_stereo(&map);
    }
    m_stream.reset(pa_stream_new(m_connection.context(), "Tavi", &spec, &map));
    if (!m_stream) {
        fail(pulseError(pa_context_errno(m_connection.context())));
        return;
    }
    pa_stream_set_state_callback(
        m_stream.get(),
        [](pa_stream*, void* userdata) { static_cast<PulseCapture*>(userdata)->streamDidChangeState(); }, this);
    pa_stream_set_read_callback(
        m_stream.get(), [](pa_stream*, std::size_t, void* userdata) { static_cast<PulseCapture*>(userdata)->drain(); },
        this);
    pa_stream_set_moved_callback(
        m_stream.get(), [](pa_stream*, void* userdata) { static_cast<PulseCapture*>(userdata)->streamDidMove(); },
        this);
    constexpr auto kServerDecides = static_cast<std::uint32_t>(-1);
    // Without a fragment size the first frames come after two seconds.
    const pa_buffer_attr attributes{kServerDecides, kServerDecides, kServerDecides, kServerDecides,
                                    static_cast<std::uint32_t>(pa_usec_to_bytes(kFragment, &spec))};
    constexpr auto kFlags = static_cast<pa_stream_flags_t>(PA_STREAM_START_CORKED | PA_STREAM_ADJUST_LATENCY);
    // Without a name libpulse takes the source of the user's configuration, else the server's default.
    const QByteArray preferred = m_connection.preferredSource();
    const char* device = preferred.isEmpty() ? nullptr : preferred.constData();
    if (pa_stream_connect_record(m_stream.get(), device, &attributes, kFlags) < 0) {
        fail(pulseError(pa_context_errno(m_connection.context())));
    }
}

void PulseCapture::streamDidChangeState() {
    switch (pa_stream_get_state(m_stream.get())) {
        case PA_STREAM_READY:
            m_isReady = true;
            m_limit.stop();
            tell([this](AudioInputListener& listener) { listener.audioInputDidOpen(m_format); });
            if (!m_marks.isEmpty()) {
                uncork();
            }
            break;
        case PA_STREAM_FAILED:
        case PA_STREAM_TERMINATED: {
            const int code = pa_context_errno(m_connection.context());
            // The source vanished while it was in use, or between the question for it and its opening.
            fail(pulseError(code == PA_ERR_NOENTITY ? PA_ERR_KILLED : code));
            break;
        }
        default:
            break;
    }
}

/// The server put the stream on another source because its own vanished or by the user's wish. Another microphone is
/// welcome; the sound of the loudspeakers in place of the microphone's is not. Nothing is read until that is known.
void PulseCapture::streamDidMove() {
    m_query = PulseOperation(pa_context_get_source_info_by_index(
        m_connection.context(), pa_stream_get_device_index(m_stream.get()),
        [](pa_context*, const pa_source_info* info, int isLast, void* userdata) {
            auto& self = *static_cast<PulseCapture*>(userdata);
            if (isLast == 0) {
                self.nameSource(*info);
                if (self.m_startedOnMicrophone && info->monitor_of_sink != PA_INVALID_INDEX) {
                    self.fail(pulseError(PA_ERR_KILLED));
                }
                return;
            }
            self.m_query.finish();
            self.drain();
        },
        this));
}

void PulseCapture::pulseConnectionDidPreferSource() {
    if (m_isReady && !m_hasEnded) {
        pulseForget(pa_context_move_source_output_by_name(m_connection.context(), pa_stream_get_index(m_stream.get()),
                                                          m_connection.sourceName().constData(), nullptr, nullptr));
    }
}

void PulseCapture::setCapturing(bool capturing, pa_usec_t time) {
    if (m_hasEnded) {
        return;
    }
    if (!m_isReady && !capturing) {
        // Nothing has been captured since the resume before it.
        m_marks.clear();
        tell([](AudioInputListener& listener) { listener.audioInputDidPause(); });
        return;
    }
    m_marks.add(capturing, time);
    if (!m_isReady) {
        return;
    }
    if (m_isCorked) {
        uncork();
        return;
    }
    startLimit();
    updateTiming();
}

/// Starts the flow. What the server still holds from before is thrown away: everything until it answers to the flush.
void PulseCapture::uncork() {
    m_isCorked = false;
    m_flush = PulseOperation(pa_stream_flush(
        m_stream.get(),
        [](pa_stream*, int, void* userdata) {
            auto& self = *static_cast<PulseCapture*>(userdata);
            self.drain();
            self.m_flush.finish();
        },
        this));
    pulseForget(pa_stream_cork(m_stream.get(), 0, nullptr, nullptr));
    updateTiming();
}

void PulseCapture::cork() {
    m_isCorked = true;
    pulseForget(pa_stream_cork(m_stream.get(), 1, nullptr, nullptr));
}

void PulseCapture::updateTiming() {
    if (m_timing || !m_marks.isWaitingForTiming()) {
        return;
    }
    m_timing = PulseOperation(pa_stream_update_timing_info(
        m_stream.get(),
        [](pa_stream*, int, void* userdata) {
            auto& self = *static_cast<PulseCapture*>(userdata);
            self.m_timing.finish();
            self.m_marks.locate([&self](pa_usec_t time) { return self.framesUntil(time); });
            self.drain();
        },
        this));
}

/// How many frames are yet to be read until those that were captured at that time: what waits in the server and here,
/// and what the device had captured and not handed over. The timing information must be just in.
std::int64_t PulseCapture::framesUntil(pa_usec_t time) const {
    const pa_timing_info* info = pa_stream_get_timing_info(m_stream.get());
    if (info == nullptr || info->read_index_corrupt != 0 || info->write_index_corrupt != 0) {
        return readableFrames();
    }
    const auto frameSize = static_cast<std::int64_t>(pa_frame_size(pa_stream_get_sample_spec(m_stream.get())));
    const std::int64_t waiting = (info->write_index - info->read_index) / frameSize;
    if (info->playing == 0) {
        return waiting;
    }
    const auto measured = static_cast<std::int64_t>(pa_rtclock_now() - info->transport_usec);
    const std::int64_t inDevice =
        static_cast<std::int64_t>(info->source_usec) - static_cast<std::int64_t>(info->sink_usec);
    const std::int64_t since = static_cast<std::int64_t>(time) - measured + inDevice;
    return waiting + since * m_format.sampleRate / static_cast<std::int64_t>(PA_USEC_PER_SEC);
}

/// Reads what has arrived. Here frames pass to the listener: nothing in this allocates, locks or logs.
void PulseCapture::drain() {
    if (m_hasEnded || !m_isReady) {
        return;
    }
    const std::size_t frameSize = sizeof(float) * static_cast<std::size_t>(m_format.channels);
    const auto deliver = [this](const float* interleaved, std::size_t frames) {
        tell([=](AudioInputListener& listener) { listener.audioInputDidCapture(interleaved, frames); });
    };
    const auto paused = [this] { didPause(); };
    for (;;) {
        const bool isStale = m_isCorked || m_flush;
        if (!isStale) {
            m_marks.pass(paused);
            if (m_query || m_marks.isWaitingForTiming()) {
                return;
            }
        }
        const void* data = nullptr;
        std::size_t size = 0;
        if (pa_stream_peek(m_stream.get(), &data, &size) < 0 || size == 0) {
            return;
        }
        if (!isStale) {
            m_marks.read(static_cast<const float*>(data), static_cast<std::int64_t>(size / frameSize),
                         m_format.channels, deliver, paused);
        }
        pa_stream_drop(m_stream.get());
    }
}

std::int64_t PulseCapture::readableFrames() const {
    return static_cast<std::int64_t>(pa_stream_readable_size(m_stream.get()) /
                                     pa_frame_size(pa_stream_get_sample_spec(m_stream.get())));
}

void PulseCapture::didPause() {
    if (m_marks.isEmpty()) {
        cork();
    }
    startLimit();
    tell([](AudioInputListener& listener) { listener.audioInputDidPause(); });
}

/// Watches over the first pause that is not through.
void PulseCapture::startLimit() {
    const std::optional<pa_usec_t> pause = m_marks.firstPause();
    if (!pause) {
        m_limit.stop();
        return;
    }
    m_limit.start(
        m_connection.context(), *pause + kPauseLimit,
        [](pa_mainloop_api*, pa_time_event*, const timeval*, void* userdata) {
            static_cast<PulseCapture*>(userdata)->limitDidPass();
        },
        this);
}

/// The server does not keep up. What it sent until now is all that there is.
void PulseCapture::limitDidPass() {
    m_timing = {};
    m_marks.limit(readableFrames());
    drain();
    m_marks.limit(0);
    m_marks.pass([this] { didPause(); });
}

}  // namespace tavi
