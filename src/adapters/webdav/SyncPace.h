#pragma once

#include <optional>

namespace tavi {

/// When a mirror looks at both sides. One thread at a time.
class SyncPace {
public:
    /// Something has changed here, or the user wants to know.
    void ask();
    /// Without a network nothing is done.
    void setOnline(bool isOnline);
    /// Who sees nothing needs no news of the server; what is to be done is done all the same.
    void setVisible(bool isVisible);
    /// A pass begins.
    void begin() { m_isAsked = false; }
    /// It has ended: with both sides in step or not, a server that asks to be left alone for so many seconds, or work
    /// for another pass at once.
    void end(bool isInStep, int retryAfter, bool isToBeContinued);
    /// Seconds from the end of the last pass to the next; nothing where it waits for a change of these.
    std::optional<int> pause() const;

private:
    bool m_isAsked = true, m_isOnline = true, m_isVisible = true;
    bool m_isInStep = false;
    int m_pause = 0, m_retryAfter = 0, m_continued = 0;
};

}  // namespace tavi
