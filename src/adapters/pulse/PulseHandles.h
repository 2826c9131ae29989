#pragma once

#include <pulse/pulseaudio.h>

#include <memory>
#include <utility>

namespace tavi {

struct PulseContextDeleter {
    void operator()(pa_context* context) const {
        pa_context_set_state_callback(context, nullptr, nullptr);
        pa_context_set_subscribe_callback(context, nullptr, nullptr);
        pa_context_disconnect(context);
        pa_context_unref(context);
    }
};
using PulseContextHandle = std::unique_ptr<pa_context, PulseContextDeleter>;

struct PulseStreamDeleter {
    void operator()(pa_stream* stream) const {
        pa_stream_set_state_callback(stream, nullptr, nullptr);
        pa_stream_set_read_callback(stream, nullptr, nullptr);
        pa_stream_set_write_callback(stream, nullptr, nullptr);
        pa_stream_set_underflow_callback(stream, nullptr, nullptr);
        pa_stream_set_started_callback(stream, nullptr, nullptr);
        pa_stream_set_moved_callback(stream, nullptr, nullptr);
        pa_stream_disconnect(stream);
        pa_stream_unref(stream);
    }
};
using PulseStreamHandle = std::unique_ptr<pa_stream, PulseStreamDeleter>;

struct PulseProplistDeleter {
    void operator()(pa_proplist* properties) const { pa_proplist_free(properties); }
};
using PulseProplistHandle = std::unique_ptr<pa_proplist, PulseProplistDeleter>;

struct PulseMainloopDeleter {
    void operator()(pa_mainloop* loop) const { pa_mainloop_free(loop); }
};
using PulseMainloopHandle = std::unique_ptr<pa_mainloop, PulseMainloopDeleter>;

/// A question to the server. Dropping the handle means that the answer is not wanted: the callback does not come.
class PulseOperation {
public:
    PulseOperation() = default;
    explicit PulseOperation(pa_operation* operation) : m_operation(operation) {}
    PulseOperation(PulseOperation&& other) noexcept : m_operation(std::exchange(other.m_operation, nullptr)) {}
    PulseOperation& operator=(PulseOperation&& other) noexcept {
        std::swap(m_operation, other.m_operation);
        return *this;
    }
    ~PulseOperation() {
        if (m_operation != nullptr) {
            pa_operation_cancel(m_operation);
            pa_operation_unref(m_operation);
        }
    }

    /// For the answer's own callback: nothing is left to cancel.
    void finish() {
        if (pa_operation* operation = std::exchange(m_operation, nullptr)) {
            pa_operation_unref(operation);
        }
    }
    explicit operator bool() const { return m_operation != nullptr; }

private:
    pa_operation* m_operation = nullptr;
};

/// Lets go of a question whose answer nobody waits for; the server still does what it was asked.
inline void pulseForget(pa_operation* operation) {
    if (operation != nullptr) {
        pa_operation_unref(operation);
    }
}

/// One call to come, on the loop's thread.
class PulseTimer {
public:
    using Callback = void (*)(pa_mainloop_api*, pa_time_event*, const timeval*, void*);

    explicit PulseTimer(pa_mainloop_api* api) : m_api(api) {}
    PulseTimer(const PulseTimer&) = delete;
    PulseTimer& operator=(const PulseTimer&) = delete;
    ~PulseTimer() { stop(); }

    /// Calls at that time of pa_rtclock_now(), and no longer at one arranged earlier.
    void start(pa_context* context, pa_usec_t time, Callback callback, void* userdata) {
        stop();
        m_event = pa_context_rttime_new(context, time, callback, userdata);
    }
    void stop() {
        if (pa_time_event* event = std::exchange(m_event, nullptr)) {
            m_api->time_free(event);
        }
    }

private:
    pa_mainloop_api* m_api;
    pa_time_event* m_event = nullptr;
};

}  // namespace tavi
