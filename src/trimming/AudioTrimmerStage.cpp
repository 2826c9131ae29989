#include "trimming/AudioTrimmerStage.h"

namespace tavi {

AudioTrimmerStage::AudioTrimmerStage(const AudioTrimmerViewController::Services& services, QObject* parent)
    : QObject(parent), m_services(services) {}

AudioTrimmerStage::~AudioTrimmerStage() = default;

void AudioTrimmerStage::show(std::unique_ptr<AudioTrimmerViewController> screen) {
    if (m_screen != nullptr) {
        return;
    }
    m_screen = screen.release();
    m_screen->setParent(this);
    connect(m_screen, &AudioTrimmerViewController::dismissed, this, [this, shown = m_screen] { letGo(shown); });
    m_screen->viewDidLoad();
    Q_EMIT screenChanged();
}

void AudioTrimmerStage::letGo(AudioTrimmerViewController* screen) {
    if (m_screen == screen) {
        m_screen = nullptr;
        Q_EMIT screenChanged();
        connect(screen, &AudioTrimmerViewController::busyChanged, this, [this, screen] { deleteWhenIdle(screen); });
    }
    deleteWhenIdle(screen);
}

void AudioTrimmerStage::deleteWhenIdle(AudioTrimmerViewController* screen) {
    if (!screen->isBusy()) {
        // Later: the export that has just ended goes on to tell the screen.
        screen->deleteLater();
    }
}

}  // namespace tavi
