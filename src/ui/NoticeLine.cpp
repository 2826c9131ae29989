#include "ui/NoticeLine.h"

#include <QPointer>
#include <algorithm>
#include <utility>

namespace tavi {

class NoticeLine::Work final : public ProgressNotice {
public:
    Work(NoticeLine& line, Notice notice) : m_line(&line), m_notice(std::move(notice)) {}
    Work(const Work&) = delete;
    Work& operator=(const Work&) = delete;
    ~Work() override {
        if (m_line) {
            std::erase(m_line->m_works, this);
            Q_EMIT m_line->noticeChanged();
            Q_EMIT m_line->progressChanged();
        }
    }

    void setProgress(double fraction) override {
        m_progress = std::clamp(fraction, 0.0, 1.0);
        if (m_line) {
            Q_EMIT m_line->progressChanged();
        }
    }

    const Notice& notice() const { return m_notice; }
    double progress() const { return m_progress; }

private:
    /// Gone at the end of the program, while the work may still be given up.
    QPointer<NoticeLine> m_line;
    Notice m_notice;
    double m_progress = 0.0;
};

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
    Q_EMIT progressChanged();
}

std::unique_ptr<ProgressNotice> NoticeLine::postProgress(Notice notice) {
    auto work = std::make_unique<Work>(*this, std::move(notice));
    m_works.push_back(work.get());
    Q_EMIT noticeChanged();
    Q_EMIT progressChanged();
    return work;
}

const Notice& NoticeLine::shown() const {
    return m_isActive || m_works.empty() ? m_notice : m_works.back()->notice();
}

double NoticeLine::progress() const {
    return m_isActive || m_works.empty() ? -1.0 : m_works.back()->progress();
}

void NoticeLine::act() {
    if (!m_isActive) {
        // A copy: whoever is asked may let go of the notice at once.
        if (const auto action = shown().action) {
            action();
        }
        return;
    }
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
        Q_EMIT progressChanged();
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
