#include "adapters/dbus/WindowState.h"

#include <QEvent>
#include <QGuiApplication>
#include <QWindow>

namespace tavi {

WindowState::WindowState(QWindow* window, QObject* parent) : QObject(parent), m_window(window) {
    window->installEventFilter(this);
    connect(window, &QWindow::visibilityChanged, this, &WindowState::changed);
    connect(window, &QObject::destroyed, this, &WindowState::changed);
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, &WindowState::changed);
}

bool WindowState::isShown() const {
    return m_window && m_window->isVisible() && m_window->isExposed() &&
           !m_window->windowStates().testFlag(Qt::WindowMinimized);
}

bool WindowState::hasFocus() const {
    return QGuiApplication::applicationState() == Qt::ApplicationActive;
}

void WindowState::present(const QString& activationToken) {
    if (!m_window) {
        return;
    }
    if (!activationToken.isEmpty()) {
        // Where Qt looks for it when it asks the compositor for the focus.
        qputenv("XDG_ACTIVATION_TOKEN", activationToken.toUtf8());
    }
    m_window->setWindowStates(m_window->windowStates() & ~Qt::WindowMinimized);
    m_window->setVisible(true);
    m_window->raise();
    m_window->requestActivate();
}

bool WindowState::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Expose) {
        // Nothing else tells that the window has been exposed, or is so no longer.
        Q_EMIT changed();
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace tavi
