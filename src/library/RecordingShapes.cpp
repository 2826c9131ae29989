#include "library/RecordingShapes.h"

#include <QPointer>
#include <algorithm>
#include <utility>

namespace tavi {

namespace {

/// More rows than the largest window shows.
constexpr std::size_t kMostWanted = 64;
/// Seconds from the first question to the first file: a list that has just come, or is being scrolled, goes before.
constexpr double kPatience = 0.15;

}  // namespace

const WaveformSample* RecordingShapes::shapeOf(const FileIdentity& identity, const std::filesystem::path& path) {
    if (const auto known = m_known.find(identity); known != m_known.end()) {
        return &known->second;
    }
    const auto asked = std::find_if(m_wanted.begin(), m_wanted.end(),
                                    [&identity](const Wanted& one) { return one.identity == identity; });
    if (asked != m_wanted.end()) {
        m_wanted.erase(asked);
    }
    m_wanted.push_back({identity, path});
    if (m_wanted.size() > kMostWanted) {
        m_wanted.pop_front();
    }
    if (!std::exchange(m_isRunning, true)) {
        m_runLoop.dispatchAfter(kPatience, [self = QPointer(this)] {
            if (self) {
                self->makeNext();
            }
        });
    }
    return nullptr;
}

QList<qreal> RecordingShapes::levelsOf(const FileIdentity& identity, const std::filesystem::path& path) {
    const WaveformSample* shape = identity == FileIdentity() ? nullptr : shapeOf(identity, path);
    return shape != nullptr ? QList<qreal>(shape->begin(), shape->end()) : QList<qreal>();
}

void RecordingShapes::makeNext() {
    m_isRunning = !m_wanted.empty();
    if (!m_isRunning) {
        return;
    }
    const Wanted next = std::move(m_wanted.back());
    m_wanted.pop_back();
    m_runLoop.dispatchBackground(
        [self = QPointer(this), next, stop = m_stop.get_token(), &files = m_files, &runLoop = m_runLoop] {
            runLoop.dispatchMain([self, identity = next.identity, shape = sampleWaveform(files, next.path, stop)] {
                if (self) {
                    self->m_known.insert_or_assign(identity, shape);
                    Q_EMIT self->made(identity);
                    self->makeNext();
                }
            });
        });
}

}  // namespace tavi
