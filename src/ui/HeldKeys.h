#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QQuickWindow>

namespace tavi {

/// A key that is held down presses a button once: keeps the repeats of the space bar and of Enter from what a window
/// shows, but for spaces in a text. Main thread only.
class HeldKeys : public QObject {
    Q_OBJECT
    QML_ELEMENT
    /// Outlives this.
    Q_PROPERTY(QQuickWindow* target READ target WRITE setTarget REQUIRED)

public:
    QQuickWindow* target() const { return m_target; }
    void setTarget(QQuickWindow* target);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QQuickWindow* m_target = nullptr;
};

}  // namespace tavi
