#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace tavi {

/// Which frames of an endless stream are wanted: resumes and pauses as marks on the count of its frames.
///
/// A mark is set at a time, and located on the count once the stream's timing is known. One thread. Reading allocates
/// nothing.
class CaptureMarks {
public:
    CaptureMarks() { m_marks.reserve(kUsualMarks); }

    void add(bool isCapturing, std::uint64_t time) { m_marks.push_back({isCapturing, time, kUnknown}); }
    void clear() { m_marks.clear(); }
    bool isEmpty() const { return m_marks.empty(); }
    bool isWaitingForTiming() const {
        return std::any_of(m_marks.begin(), m_marks.end(), [](const Mark& mark) { return mark.position == kUnknown; });
    }
    /// When the first pause was asked for that is not passed.
    std::optional<std::uint64_t> firstPause() const {
        const auto pause =
            std::find_if(m_marks.begin(), m_marks.end(), [](const Mark& mark) { return !mark.isCapturing; });
        return pause == m_marks.end() ? std::nullopt : std::optional(pause->time);
    }

    /// Locates what is not located yet. framesUntil(time) tells how many frames are to be read until that time; marks
    /// keep their order, and none lies before what has been read.
    template <class FramesUntil>
    void locate(FramesUntil framesUntil) {
        std::int64_t earliest = m_position;
        for (Mark& mark : m_marks) {
            if (mark.position == kUnknown) {
                mark.position = m_position + framesUntil(mark.time);
            }
            mark.position = std::max(mark.position, earliest);
            earliest = mark.position;
        }
    }
    /// Puts every mark no later than that many frames from here.
    void limit(std::int64_t frames) {
        locate([frames](std::uint64_t) { return frames; });
        for (Mark& mark : m_marks) {
            mark.position = std::min(mark.position, m_position + frames);
        }
    }

    /// Passes the marks that are reached, calling paused() for each pause.
    template <class Paused>
    void pass(Paused paused) {
        while (!m_marks.empty() && m_marks.front().position != kUnknown && m_marks.front().position <= m_position) {
            m_isCapturing = m_marks.front().isCapturing;
            m_marks.erase(m_marks.begin());
            if (!m_isCapturing) {
                paused();
            }
        }
    }
    /// Reads the next frames: calls deliver(frames, count) with those that are wanted, and paused() in between. Nothing
    /// may be waiting for timing. Null stands for a hole.
    template <class Deliver, class Paused>
    void read(const float* interleaved, std::int64_t frames, int channels, Deliver deliver, Paused paused) {
        pass(paused);
        while (frames > 0) {
            const std::int64_t count =
                m_marks.empty() ? frames : std::min(frames, m_marks.front().position - m_position);
            if (m_isCapturing) {
                deliver(interleaved, static_cast<std::size_t>(count));
            }
            if (interleaved != nullptr) {
                interleaved += count * channels;
            }
            m_position += count;
            frames -= count;
            pass(paused);
        }
    }

private:
    struct Mark {
        bool isCapturing;
        std::uint64_t time;
        std::int64_t position;
    };
    static constexpr std::int64_t kUnknown = -1;
    /// More resumes and pauses than a hand can make before the first is through.
    static constexpr std::size_t kUsualMarks = 16;

    std::vector<Mark> m_marks;
    std::int64_t m_position = 0;
    bool m_isCapturing = false;
};

}  // namespace tavi
