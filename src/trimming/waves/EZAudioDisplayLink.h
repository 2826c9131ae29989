#pragma once

#include <QObject>
#include <QPointer>
#include <memory>

#include "platform/DisplayRefresh.h"

namespace tavi {

class EZAudioDisplayLink;

/// What a QObject implements to hear of the display's refreshes.
class EZAudioDisplayLinkDelegate {
public:
    virtual ~EZAudioDisplayLinkDelegate() = default;
    virtual void displayLinkNeedsDisplay(EZAudioDisplayLink* displayLink) = 0;
};

}  // namespace tavi

#define TAVI_DISPLAY_LINK_DELEGATE_ID "com.quillfen.voicerecorder.EZAudioDisplayLinkDelegate"
Q_DECLARE_INTERFACE(tavi::EZAudioDisplayLinkDelegate, TAVI_DISPLAY_LINK_DELEGATE_ID)

namespace tavi {

/// Tells its delegate of every refresh of the display between start() and stop(). Main thread only.
class EZAudioDisplayLink {
public:
    /// A stopped link. The delegate is held weakly, and need not implement EZAudioDisplayLinkDelegate.
    static std::unique_ptr<EZAudioDisplayLink> displayLinkWithDelegate(DisplayRefreshes& refreshes, QObject* delegate);

    void start();
    void stop();
    /// What the display calls on every refresh.
    void update();

    bool stopped() const { return m_stopped; }
    QObject* delegate() const { return m_delegate; }
    const DisplayRefresh& displayLink() const { return *m_displayLink; }

private:
    EZAudioDisplayLink(DisplayRefreshes& refreshes, QObject* delegate);

    QPointer<QObject> m_delegate;
    bool m_stopped = true;
    std::unique_ptr<DisplayRefresh> m_displayLink;
};

}  // namespace tavi
