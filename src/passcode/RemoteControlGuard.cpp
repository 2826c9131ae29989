#include "passcode/RemoteControlGuard.h"

namespace tavi {

namespace {

/// What may be seen of a recording: that there is one, and whether it plays.
NowPlayingInfo withoutContent(const NowPlayingInfo& info) {
    const bool isLoaded = !info.identifier.isEmpty();
    return {.identifier = isLoaded ? QStringLiteral("locked") : QString(),
            .title = {},
            .playbackDuration = 0.0,
            .playbackState = info.playbackState,
            .playbackRate = 1.0};
}

}  // namespace

RemoteControlGuard::RemoteControlGuard(RemoteControl& control, const LockState& lockState)
    : m_control(control), m_lockState(lockState) {
    m_control.setDelegate(this);
    connect(&lockState, &LockState::changed, this, &RemoteControlGuard::lockStateChanged);
}

void RemoteControlGuard::lockStateChanged() {
    setNowPlayingInfo(m_info);
    if (!m_lockState.isLocked()) {
        m_control.currentTimeDidJump();
    }
}

void RemoteControlGuard::setNowPlayingInfo(const NowPlayingInfo& info) {
    m_info = info;
    m_control.setNowPlayingInfo(m_lockState.isLocked() ? withoutContent(info) : info);
}

void RemoteControlGuard::currentTimeDidJump() {
    if (!m_lockState.isLocked()) {
        m_control.currentTimeDidJump();
    }
}

void RemoteControlGuard::remoteControlReceivedWithEvent(const RemoteControlEvent& event) {
    using Subtype = RemoteControlEvent::Subtype;
    if (m_delegate == nullptr) {
        return;
    }
    if (!m_lockState.isLocked() || event.subtype == Subtype::Pause || event.subtype == Subtype::Stop) {
        m_delegate->remoteControlReceivedWithEvent(event);
    } else if (event.subtype == Subtype::TogglePlayPause &&
               m_info.playbackState == NowPlayingInfo::PlaybackState::Playing) {
        // The one key that many keyboards and headsets have for a pause.
        m_delegate->remoteControlReceivedWithEvent({.subtype = Subtype::Pause});
    }
}

double RemoteControlGuard::remoteControlCurrentTime() const {
    return m_delegate == nullptr || m_lockState.isLocked() ? 0.0 : m_delegate->remoteControlCurrentTime();
}

}  // namespace tavi
