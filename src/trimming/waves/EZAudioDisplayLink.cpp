#include "trimming/waves/EZAudioDisplayLink.h"

namespace tavi {

EZAudioDisplayLink::EZAudioDisplayLink(DisplayRefreshes& refreshes, QObject* delegate)
    : m_delegate(delegate), m_displayLink(refreshes.create([this] { update(); })) {}

std::unique_ptr<EZAudioDisplayLink> EZAudioDisplayLink::displayLinkWithDelegate(DisplayRefreshes& refreshes,
                                                                                QObject* delegate) {
    return std::unique_ptr<EZAudioDisplayLink>(new EZAudioDisplayLink(refreshes, delegate));
}

void EZAudioDisplayLink::start() {
    m_displayLink->setPaused(false);
    m_stopped = false;
}

void EZAudioDisplayLink::stop() {
    m_displayLink->setPaused(true);
    m_stopped = true;
}

void EZAudioDisplayLink::update() {
    if (m_stopped) {
        return;
    }
    if (auto* delegate = qobject_cast<EZAudioDisplayLinkDelegate*>(m_delegate.data())) {
        delegate->displayLinkNeedsDisplay(this);
    }
}

}  // namespace tavi
