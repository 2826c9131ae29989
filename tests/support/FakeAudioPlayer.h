#pragma once

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>

#include "platform/AudioPlayer.h"
#include "platform/RunLoop.h"

namespace tavi::test {

/// A player without sound: its time passes with the run loop's clock.
struct FakeAudioPlayer : AudioPlayer {
    FakeAudioPlayer(double duration, RunLoop& runLoop, std::shared_ptr<FakeAudioPlayer*> self)
        : m_runLoop(runLoop), m_self(std::move(self)), m_duration(duration) {
        *m_self = this;
    }
    ~FakeAudioPlayer() override {
        *m_self = nullptr;
        settle();
    }
    FakeAudioPlayer(const FakeAudioPlayer&) = delete;
    FakeAudioPlayer& operator=(const FakeAudioPlayer&) = delete;

    void setDelegate(AudioPlayerDelegate* delegate) override { m_delegate = delegate; }
    bool prepareToPlay() override { return true; }
    bool play() override {
        if (!m_isPlaying) {
            m_time = m_time >= m_duration ? 0.0 : m_time;
            m_isPlaying = true;
            run();
        }
        return true;
    }
    void pause() override {
        settle();
        m_isPlaying = false;
    }
    void stop() override { pause(); }
    bool isPlaying() const override { return m_isPlaying; }
    Error error() const override { return m_error.value_or(Error()); }
    double currentTime() const override {
        const double elapsed = m_isPlaying ? static_cast<double>(m_since.msecsTo(m_runLoop.clock().now())) / 1000 : 0.0;
        return std::min(m_time + elapsed * effectiveRate(), m_duration);
    }
    void setCurrentTime(double seconds) override {
        settle();
        m_time = std::isnan(seconds) ? m_time : std::clamp(seconds, 0.0, m_duration);
        run();
    }
    double duration() const override { return m_duration; }
    void setEnableRate(bool enabled) override {
        settle();
        m_isRateEnabled = enabled;
        run();
    }
    void setRate(float rate) override {
        settle();
        m_rate = std::isnan(rate) ? m_rate : std::clamp(rate, 0.5F, 2.0F);
        run();
    }
    float rate() const override { return m_rate; }
    void setMeteringEnabled(bool enabled) override { m_isMetering = enabled; }
    void updateMeters() override { m_power = m_isMetering && m_isPlaying ? -20.0F : -160.0F; }
    float averagePowerForChannel(int channel) const override { return channel < 2 ? m_power : -160.0F; }

    /// The file or the sound system is gone, for good.
    void fail(const Error& error) {
        m_error = error;
        if (m_isPlaying) {
            finish(false);
        }
    }

    double effectiveRate() const { return m_isRateEnabled ? static_cast<double>(m_rate) : 1.0; }

private:
    /// Brings the time up to now and arranges nothing more.
    void settle() {
        m_time = currentTime();
        m_since = m_runLoop.clock().now();
        if (m_end) {
            m_end->invalidate();
            m_end.reset();
        }
    }
    void run() {
        m_since = m_runLoop.clock().now();
        if (m_isPlaying) {
            const double left = m_error ? 0.0 : (m_duration - m_time) / effectiveRate();
            m_end = m_runLoop.scheduledTimer(left, false, [self = m_self] {
                if (*self != nullptr) {
                    (*self)->finish(!(*self)->m_error);
                }
            });
        }
    }
    void finish(bool successfully) {
        settle();
        m_time = successfully ? m_duration : m_time;
        m_isPlaying = false;
        if (m_delegate != nullptr) {
            m_delegate->audioPlayerDidFinishPlaying(*this, successfully);
        }
    }

    RunLoop& m_runLoop;
    std::shared_ptr<FakeAudioPlayer*> m_self;
    AudioPlayerDelegate* m_delegate = nullptr;
    double m_duration;
    /// The current time at m_since.
    double m_time = 0.0;
    QDateTime m_since;
    std::shared_ptr<Timer> m_end;
    bool m_isPlaying = false;
    std::optional<Error> m_error;
    bool m_isRateEnabled = false;
    float m_rate = 1.0F;
    bool m_isMetering = false;
    float m_power = -160.0F;
};

/// Makes fake players of the files that a test names.
struct FakeAudioPlayers : AudioPlayers {
    explicit FakeAudioPlayers(RunLoop& runLoop) : m_runLoop(runLoop) {}

    Result<std::unique_ptr<AudioPlayer>> playerWithContentsOfURL(const std::filesystem::path& path) override {
        const auto found = seconds.find(path.filename());
        if (found == seconds.end()) {
            return failure(QStringLiteral("no sound file"));
        }
        m_last = std::make_shared<FakeAudioPlayer*>(nullptr);
        return std::make_unique<FakeAudioPlayer>(found->second, m_runLoop, m_last);
    }

    /// The player made last; null when it is gone.
    FakeAudioPlayer* last() const { return m_last == nullptr ? nullptr : *m_last; }

    /// Durations by file name; any other is no sound file.
    std::map<std::filesystem::path, double> seconds;

private:
    RunLoop& m_runLoop;
    std::shared_ptr<FakeAudioPlayer*> m_last;
};

}  // namespace tavi::test
