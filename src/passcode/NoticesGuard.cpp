#include "passcode/NoticesGuard.h"

#include <utility>

namespace tavi {

/// A line that is there only while the program is unlocked.
class NoticesGuard::Work final : public QObject, public ProgressNotice {
public:
    Work(NoticesGuard& guard, Notice notice) : m_guard(guard), m_notice(std::move(notice)) {
        connect(&guard.m_lockState, &LockState::changed, this, &Work::update);
        update();
    }

    void setProgress(double fraction) override {
        m_fraction = fraction;
        if (m_line) {
            m_line->setProgress(fraction);
        }
    }

private:
    void update() {
        if (m_guard.m_lockState.isLocked()) {
            m_line.reset();
        } else if (!m_line) {
            m_line = m_guard.m_notices.postProgress(m_notice);
            m_line->setProgress(m_fraction);
        }
    }

    NoticesGuard& m_guard;
    Notice m_notice;
    double m_fraction = 0.0;
    std::unique_ptr<ProgressNotice> m_line;
};

NoticesGuard::NoticesGuard(Notices& notices, const LockState& lockState) : m_notices(notices), m_lockState(lockState) {
    connect(&lockState, &LockState::changed, this, [this] {
        if (!m_lockState.isLocked() && m_waiting) {
            m_notices.postNotice(*std::exchange(m_waiting, std::nullopt));
        }
    });
}

void NoticesGuard::postNotice(Notice notice) {
    if (m_lockState.isLocked()) {
        m_waiting = std::move(notice);
    } else {
        m_notices.postNotice(std::move(notice));
    }
}

std::unique_ptr<ProgressNotice> NoticesGuard::postProgress(Notice notice) {
    return std::make_unique<Work>(*this, std::move(notice));
}

}  // namespace tavi
