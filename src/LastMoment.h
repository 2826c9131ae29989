#pragma once

#include <QMessageLogContext>
#include <functional>

namespace tavi {

/// Calls back where Qt is about to end the program at once, without its event loop: when the display server has gone,
/// and when something on the main thread cannot go on (qFatal). All that Qt does before is to say so. One at a time;
/// main thread.
class LastMoment {
public:
    /// The callback is called on the main thread, once at most, and can finish what must not be lost.
    explicit LastMoment(std::function<void()> callback);
    ~LastMoment();
    LastMoment(const LastMoment&) = delete;
    LastMoment& operator=(const LastMoment&) = delete;

private:
    QtMessageHandler m_previous;
};

}  // namespace tavi
