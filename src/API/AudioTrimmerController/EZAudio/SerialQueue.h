#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <string>

#include "platform/DispatchQueues.h"

namespace tavi {

/// Background calls one at a time, in the order of asking. Any thread. Calls that are waiting when it is destroyed
/// still run.
class SerialQueue {
public:
    SerialQueue(std::string label, DispatchQueues& queues) : m_label(std::move(label)), m_queues(queues) {}

    const std::string& label() const { return m_label; }

    void async(std::function<void()> call) {
        const std::lock_guard lock(m_state->mutex);
        m_state->calls.push_back(std::move(call));
        if (!m_state->isRunning) {
            m_state->isRunning = true;
            m_queues.dispatchBackground([state = m_state] { run(*state); });
        }
    }

private:
    struct State {
        std::mutex mutex;
        std::deque<std::function<void()>> calls;
        bool isRunning = false;
    };

    static void run(State& state) {
        for (;;) {
            std::function<void()> call;
            {
                const std::lock_guard lock(state.mutex);
                if (state.calls.empty()) {
                    state.isRunning = false;
                    return;
                }
                call = std::move(state.calls.front());
                state.calls.pop_front();
            }
            call();
        }
    }

    std::string m_label;
    DispatchQueues& m_queues;
    std::shared_ptr<State> m_state = std::make_shared<State>();
};

}  // namespace tavi
