#include "trimming/AudioTrimStage.h"

namespace tavi {

void AudioTrimStage::show(const std::filesystem::path& fileName, const QString& section) {
    if (m_screen != nullptr) {
        return;
    }
    m_screen = new AudioTrim(m_services, fileName, section, this);
    m_screen->setTrimDelegate(m_reload);
    connect(m_screen, &AudioTrim::closed, this, [this, shown = m_screen] {
        if (m_screen == shown) {
            m_screen = nullptr;
            Q_EMIT screenChanged();
            // Later: it is the screen that says so.
            shown->deleteLater();
        }
    });
    m_screen->viewDidLoad();
    Q_EMIT screenChanged();
}

}  // namespace tavi
