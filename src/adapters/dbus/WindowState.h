#pragma once

#include <QObject>
#include <QPointer>

class QWindow;

namespace tavi {

/// Follows the main window: whether it is shown, and whether the program has the focus. Main thread.
class WindowState : public QObject {
    Q_OBJECT

public:
    /// Needs a QGuiApplication. The window may go away at any time; it then counts as hidden.
    explicit WindowState(QWindow* window, QObject* parent = nullptr);

    /// Exposed, and neither minimised nor hidden.
    bool isShown() const;
    bool hasFocus() const;
    /// Brings the window to the front, out of its minimised or hidden state. The token is the one by which a Wayland
    /// compositor lets it have the focus; empty for none.
    void present(const QString& activationToken);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void changed();

private:
    QPointer<QWindow> m_window;
};

}  // namespace tavi
