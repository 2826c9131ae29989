#pragma once

#include <QObject>
#include <optional>

#include "platform/LockState.h"
#include "platform/Notices.h"

namespace tavi {

/// Keeps notices back while the program is locked. The latest of them is posted once it is unlocked; lines about work
/// go with the lock and come back after it. Main thread only.
class NoticesGuard final : public QObject, public Notices {
public:
    /// Both outlive this; this outlives what postProgress() returns.
    NoticesGuard(Notices& notices, const LockState& lockState);

    void postNotice(Notice notice) override;
    std::unique_ptr<ProgressNotice> postProgress(Notice notice) override;

private:
    class Work;

    Notices& m_notices;
    const LockState& m_lockState;
    std::optional<Notice> m_waiting;
};

}  // namespace tavi
