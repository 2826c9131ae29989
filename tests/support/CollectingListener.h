#pragma once

#include <QStringList>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <vector>

#include "platform/AudioInput.h"

namespace tavi::test {

/// Keeps what an input delivers, from whatever thread.
struct CollectingListener : AudioInputListener {
    struct Heard {
        AudioInputFormat format;
        /// "open", "sound" (once for any number of deliveries in a row), "pause", "fail".
        QStringList events;
        /// Interleaved; holes are silence.
        std::vector<float> samples;
        /// Frames delivered before each pause.
        std::vector<std::size_t> pausedAt;
        QString failure;

        std::size_t frames() const {
            return format.channels == 0 ? 0 : samples.size() / static_cast<std::size_t>(format.channels);
        }
        qsizetype count(const char* event) const { return events.count(QString::fromLatin1(event)); }
    };

    void audioInputDidOpen(const AudioInputFormat& format) override {
        change("open", [&] { m_heard.format = format; });
    }
    void audioInputDidCapture(const float* interleaved, std::size_t frames) override {
        change("sound", [&] {
            const std::size_t count = frames * static_cast<std::size_t>(m_heard.format.channels);
            if (interleaved == nullptr) {
                m_heard.samples.resize(m_heard.samples.size() + count);
            } else {
                m_heard.samples.insert(m_heard.samples.end(), interleaved, interleaved + count);
            }
        });
    }
    void audioInputDidPause() override {
        change("pause", [&] { m_heard.pausedAt.push_back(m_heard.frames()); });
    }
    void audioInputDidFail(const Error& error) override {
        change("fail", [&] { m_heard.failure = error.text; });
    }

    Heard heard() const {
        const std::lock_guard lock(m_mutex);
        return m_heard;
    }
    /// Waits until what was heard is as wanted; false when that does not come within ten seconds.
    template <class Wanted>
    bool waitFor(Wanted wanted) const {
        std::unique_lock lock(m_mutex);
        return m_changed.wait_for(lock, std::chrono::seconds(10), [&] { return wanted(m_heard); });
    }
    bool waitForFrames(std::size_t frames) const {
        return waitFor([frames](const Heard& heard) { return heard.frames() >= frames; });
    }
    bool waitForEvents(const char* event, int count) const {
        return waitFor([=](const Heard& heard) { return heard.count(event) >= count; });
    }

private:
    template <class Change>
    void change(const char* event, Change apply) {
        {
            const std::lock_guard lock(m_mutex);
            apply();
            const QString name = QString::fromLatin1(event);
            if (name != QLatin1String("sound") || m_heard.events.isEmpty() || m_heard.events.last() != name) {
                m_heard.events.append(name);
            }
        }
        m_changed.notify_all();
    }

    mutable std::mutex m_mutex;
    mutable std::condition_variable m_changed;
    Heard m_heard;
};

}  // namespace tavi::test
