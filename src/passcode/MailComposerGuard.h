#pragma once

#include <QObject>
#include <utility>
#include <vector>

#include "platform/LockState.h"
#include "platform/MailComposer.h"

namespace tavi {

/// Opens no mail while the program is locked: those that are asked for then, such as that of a recording which a
/// companion has stopped, open once it is unlocked. Main thread only.
class MailComposerGuard final : public QObject, public MailComposer {
public:
    /// Both outlive this.
    MailComposerGuard(MailComposer& composer, const LockState& lockState)
        : m_composer(composer), m_lockState(lockState) {
        connect(&lockState, &LockState::changed, this, &MailComposerGuard::composeWaiting);
    }

    bool canSendMail() const override { return m_composer.canSendMail(); }
    void compose(const MailMessage& message, Completion completion) override {
        m_waiting.emplace_back(message, std::move(completion));
        composeWaiting();
    }

private:
    void composeWaiting() {
        if (!m_lockState.isLocked()) {
            for (auto& [message, completion] : std::exchange(m_waiting, {})) {
                m_composer.compose(message, std::move(completion));
            }
        }
    }

    MailComposer& m_composer;
    const LockState& m_lockState;
    std::vector<std::pair<MailMessage, Completion>> m_waiting;
};

}  // namespace tavi
