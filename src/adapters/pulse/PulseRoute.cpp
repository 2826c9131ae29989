#include "adapters/pulse/PulseRoute.h"

#include <utility>

namespace tavi {

void PulseRoute::useSpeaker() {
    if (const auto way = m_connection.sinks().speaker(m_connection.chosenSink())) {
        use(*way);
    }
}

void PulseRoute::useReceiver() {
    if (const auto way = m_connection.sinks().receiver(m_connection.chosenSink())) {
        use(*way);
    } else {
        restore();
    }
}

void PulseRoute::restore(std::function<void()> done) {
    const auto before = std::exchange(m_before, std::nullopt);
    const auto chosen = std::exchange(m_chosen, std::nullopt);
    const PulseSinks& sinks = m_connection.sinks();
    if (before && sinks.has(*before) && sinks.inUse(m_connection.chosenSink()) == chosen) {
        use(*before, std::move(done));
        m_before.reset();
        m_chosen.reset();
    } else if (done) {
        done();
    }
}

void PulseRoute::use(const PulseWayOut& way, std::function<void()> done) {
    const auto inUse = m_connection.sinks().inUse(m_connection.chosenSink());
    if (m_connection.context() == nullptr || !inUse || inUse == way) {
        if (done) {
            done();
        }
        return;
    }
    m_before = m_before ? m_before : inUse;
    m_chosen = way;
    if (inUse->sink != way.sink) {
        pulseForget(pa_context_set_default_sink(m_connection.context(), way.sink.constData(), nullptr, nullptr));
    }
    m_done = std::move(done);
    m_operation = PulseOperation(pa_context_set_sink_port_by_name(
        m_connection.context(), way.sink.constData(), way.port.constData(),
        [](pa_context*, int, void* userdata) {
            auto& self = *static_cast<PulseRoute*>(userdata);
            self.m_operation.finish();
            if (const auto call = std::exchange(self.m_done, {})) {
                call();
            }
        },
        this));
}

}  // namespace tavi
