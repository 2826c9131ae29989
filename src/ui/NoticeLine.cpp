#include "ui/NoticeLine.h"

#include <utility>

namespace tavi {

NoticeLine::NoticeLine(RunLoop& runLoop, QObject* parent) : QObject(parent), m_runLoop(runLoop) {}

NoticeLine::~NoticeLine() {
    stopTimer();
}

void NoticeLine::postNotice(Notice notice) {
    // The line goes before it comes again: that is what a screen reader reads anew.
    clear();
    m_notice = std::move(notice);
    m_isActive = true;
    if (!m_isHeld) {
        startTimer();
    }
    Q_EMIT noticeChanged();
}

void NoticeLine::act() {
    const auto action = std::move(m_notice.action);
    clear();
    if (action) {
        action();
    }
}

void NoticeLine::setHeld(bool held) {
    if (held == m_isHeld) {
        return;
    }
    m_isHeld = held;
    stopTimer();
    if (m_isActive && !held) {
        startTimer();
    }
}

void NoticeLine::clear() {
    stopTimer();
    if (m_isActive) {
        m_isActive = false;
        m_notice = {};
        Q_EMIT noticeChanged();
    }
}

void NoticeLine::startTimer() {
    m_timer = m_runLoop.scheduledTimer(m_notice.actionTitle.isEmpty() ? kShown : kShownWithAction, false,
                                       [this] { clear(); });
}

void NoticeLine::stopTimer() {
    if (m_timer) {
        m_timer->invalidate();
        m_timer.reset();
    }
}

}  // namespace tavi
