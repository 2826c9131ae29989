#include "ui/NoticeLine.h"

#include <utility>

namespace tavi {

NoticeLine::NoticeLine(RunLoop& runLoop, QObject* parent) : QObject(parent), m_runLoop(runLoop) {}

NoticeLine::~NoticeLine() {
    if (m_timer) {
        m_timer->invalidate();
    }
}

void NoticeLine::postNotice(Notice notice) {
    // The line goes before it comes again: that is what a screen reader reads anew.
    clear();
    m_notice = std::move(notice);
    m_timer = m_runLoop.scheduledTimer(kShown, false, [this] { clear(); });
    Q_EMIT noticeChanged();
}

void NoticeLine::act() {
    const auto action = std::move(m_notice.action);
    clear();
    if (action) {
        action();
    }
}

void NoticeLine::clear() {
    if (m_timer) {
        m_timer->invalidate();
        m_timer.reset();
        m_notice = {};
        Q_EMIT noticeChanged();
    }
}

}  // namespace tavi
