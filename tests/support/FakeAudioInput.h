#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "platform/AudioInput.h"

namespace tavi::test {

/// A microphone whose frames the test pushes. It calls the listener on the thread of whoever calls it, before
/// returning.
class FakeAudioInput : public AudioInput {
public:
    FakeAudioInput(AudioInputListener& listener, const AudioInputFormat& format, bool answersPause,
                   std::shared_ptr<FakeAudioInput*> self)
        : m_listener(listener), m_format(format), m_answersPause(answersPause), m_self(std::move(self)) {
        *m_self = this;
    }
    ~FakeAudioInput() override { *m_self = nullptr; }
    FakeAudioInput(const FakeAudioInput&) = delete;
    FakeAudioInput& operator=(const FakeAudioInput&) = delete;

    void resume() override { m_wanted = true; }
    void pause() override {
        if (!std::exchange(m_wanted, false) || m_failed) {
            return;
        }
        finishPause();
        m_pausing = true;
        if (m_answersPause) {
            finishPause();
        }
    }

    /// The device answers now; deliver() does this too when it has not happened.
    void answer() {
        if (!std::exchange(m_opened, true)) {
            m_listener.audioInputDidOpen(m_format);
        }
    }
    /// Hands on frames if the input runs or a pause is still pending; otherwise they are lost, as they ought to be. The
    /// samples are interleaved, as many a frame as the format has channels.
    void deliver(const std::vector<float>& interleaved) {
        deliver(interleaved.data(), interleaved.size() / static_cast<std::size_t>(m_format.channels));
    }
    /// A null pointer is a hole.
    void deliver(const float* interleaved, std::size_t frames) {
        if (isCapturing()) {
            answer();
            m_listener.audioInputDidCapture(interleaved, frames);
        }
    }
    /// Ends a pending pause, where the inputs were told not to answer pauses by themselves.
    void finishPause() {
        if (std::exchange(m_pausing, false)) {
            m_listener.audioInputDidPause();
        }
    }
    /// The device is gone; only the first call counts.
    void fail(const Error& error) {
        if (!std::exchange(m_failed, true)) {
            m_listener.audioInputDidFail(error);
        }
    }

    /// Whether delivered frames reach the listener.
    bool isCapturing() const { return !m_failed && (m_wanted || m_pausing); }
    const AudioInputFormat& format() const { return m_format; }

private:
    AudioInputListener& m_listener;
    AudioInputFormat m_format;
    bool m_answersPause;
    std::shared_ptr<FakeAudioInput*> m_self;
    bool m_wanted = false;
    bool m_pausing = false;
    bool m_opened = false;
    bool m_failed = false;
};

/// Opens fake microphones.
class FakeAudioInputs : public AudioInputs {
public:
    Result<std::unique_ptr<AudioInput>> open(AudioInputListener& listener) override {
        if (!openResult) {
            return tl::unexpected<Error>(openResult.error());
        }
        m_last = std::make_shared<FakeAudioInput*>();
        ++openCount;
        return std::make_unique<FakeAudioInput>(listener, format, answersPause, m_last);
    }

    /// The input opened last; null before the first and when it has been destroyed.
    FakeAudioInput* lastInput() const { return m_last ? *m_last : nullptr; }

    /// What open() answers; an error here makes it fail.
    Result<void> openResult;
    /// The shape of the inputs opened from now on.
    AudioInputFormat format{48000, 2};
    /// Whether pause() is answered at once, or by finishPause().
    bool answersPause = true;
    int openCount = 0;

private:
    std::shared_ptr<FakeAudioInput*> m_last;
};

}  // namespace tavi::test
