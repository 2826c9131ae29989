#pragma once

#include <memory>
#include <utility>

#include "platform/AudioInput.h"

namespace tavi::test {

/// A microphone whose frames the test pushes. It calls the listener on the thread of whoever calls it, before
/// returning.
struct FakeAudioInput : AudioInput {
    FakeAudioInput(AudioInputListener& listener, const AudioInputFormat& format, bool answersPause)
        : m_listener(listener), m_format(format), m_answersPause(answersPause) {}

    void resume() override { m_wanted = true; }
    void pause() override {
        m_wanted = false;
        if (std::exchange(m_pausing, true)) {
            m_listener.audioInputDidPause();
        }
        if (m_answersPause) {
            finishPause();
        }
    }

    QString deviceName() const override { return QStringLiteral("Desk"); }

    /// Hands on frames if the input runs or a pause is still pending; otherwise they are lost, as they ought to be. The
    /// samples are interleaved; a null pointer is a hole.
    void deliver(const float* interleaved, std::size_t frames) {
        if (m_wanted || m_pausing) {
            if (!std::exchange(m_opened, true)) {
                m_listener.audioInputDidOpen(m_format);
            }
            m_listener.audioInputDidCapture(interleaved, frames);
        }
    }
    /// Ends a pending pause, where the inputs were told not to answer pauses by themselves.
    void finishPause() {
        m_pausing = false;
        m_listener.audioInputDidPause();
    }
    void fail(const Error& error) { m_listener.audioInputDidFail(error); }

private:
    AudioInputListener& m_listener;
    AudioInputFormat m_format;
    bool m_answersPause;
    bool m_wanted = false;
    bool m_pausing = false;
    bool m_opened = false;
};

struct FakeAudioInputs : AudioInputs {
    Result<std::unique_ptr<AudioInput>> open(AudioInputListener& listener) override {
        if (!openResult) {
            return tl::unexpected<Error>(openResult.error());
        }
        auto input = std::make_unique<FakeAudioInput>(listener, format, answersPause);
        last = input.get();
        return input;
    }

    FakeAudioInput* last = nullptr;
    /// What open() answers; an error here makes it fail.
    Result<void> openResult;
    AudioInputFormat format{48000, 2};
    /// Whether pause() is answered at once, or by finishPause().
    bool answersPause = true;
};

}  // namespace tavi::test
