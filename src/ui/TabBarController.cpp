#include "ui/TabBarController.h"

namespace tavi {

void TabBarController::setSelectedIndex(int index) {
    if (index == m_selectedIndex || index < 0 || index >= kTabs) {
        return;
    }
    m_selectedIndex = index;
    Q_EMIT selectedIndexChanged();
}

void TabBarController::setUserInteractionEnabled(bool enabled) {
    if (enabled == m_userInteractionEnabled) {
        return;
    }
    m_userInteractionEnabled = enabled;
    Q_EMIT userInteractionEnabledChanged();
}

void TabBarController::select(int index) {
    if (m_userInteractionEnabled) {
        setSelectedIndex(index);
    }
}

}  // namespace tavi
