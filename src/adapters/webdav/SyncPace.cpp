#include "adapters/webdav/SyncPace.h"

#include <algorithm>

namespace tavi {

namespace {

constexpr int kShortestPause = 60;
constexpr int kLongestPause = 3600;
/// Passes in a row without a pause.
constexpr int kMostContinued = 3;

}  // namespace

void SyncPace::ask() {
    m_isAsked = true;
    m_pause = 0;
}

void SyncPace::setOnline(bool isOnline) {
    isOnline && !m_isOnline ? ask() : void();
    m_isOnline = isOnline;
}

void SyncPace::setVisible(bool isVisible) {
    if (isVisible && !m_isVisible) {
        m_pause = std::min(m_pause, kShortestPause);
    }
    m_isVisible = isVisible;
}

void SyncPace::end(bool isInStep, int retryAfter, bool isToBeContinued) {
    m_isInStep = isInStep;
    m_retryAfter = std::min(retryAfter, kLongestPause);
    m_continued = isToBeContinued ? m_continued + 1 : 0;
    m_pause = std::clamp(m_pause * 2, kShortestPause, kLongestPause);
}

std::optional<int> SyncPace::pause() const {
    const bool hasWork = m_isAsked || !m_isInStep;
    if (!m_isOnline || (!m_isVisible && !hasWork)) {
        return std::nullopt;
    }
    const bool isAtOnce = m_isAsked || (m_continued > 0 && m_continued <= kMostContinued);
    // A server that asks to be left alone is, whatever changes here.
    return std::max(isAtOnce ? 0 : m_pause, m_retryAfter);
}

}  // namespace tavi
