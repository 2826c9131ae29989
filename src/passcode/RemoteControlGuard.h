#pragma once

#include <QObject>

#include "platform/LockState.h"
#include "platform/RemoteControl.h"

namespace tavi {

/// The desktop's media controls without what the lock hides: while the program is locked they show neither title nor
/// length nor position, and obey nothing but pause and stop. A playing recording plays on. Main thread only.
class RemoteControlGuard final : public QObject, public RemoteControl, public RemoteControlDelegate {
public:
    /// Both outlive this.
    RemoteControlGuard(RemoteControl& control, const LockState& lockState);
    ~RemoteControlGuard() override { m_control.setDelegate(nullptr); }

    void setDelegate(RemoteControlDelegate* delegate) override { m_delegate = delegate; }
    void beginReceivingRemoteControlEvents() override { m_control.beginReceivingRemoteControlEvents(); }
    void endReceivingRemoteControlEvents() override { m_control.endReceivingRemoteControlEvents(); }
    void setNowPlayingInfo(const NowPlayingInfo& info) override;
    void currentTimeDidJump() override;

    void remoteControlReceivedWithEvent(const RemoteControlEvent& event) override;
    double remoteControlCurrentTime() const override;

private:
    void lockStateChanged();

    RemoteControl& m_control;
    const LockState& m_lockState;
    RemoteControlDelegate* m_delegate = nullptr;
    NowPlayingInfo m_info;
};

}  // namespace tavi
