#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickWindow>
#include <vector>

#include "platform/DisplayRefresh.h"

namespace tavi {

/// Refreshes by the frames of a Qt Quick window. While one of them is not paused, the window draws frame after frame,
/// as fast as its display shows them, and none while it is hidden.
class QuickDisplayRefreshes : public QObject, public DisplayRefreshes {
    Q_OBJECT

public:
    explicit QuickDisplayRefreshes(QObject* parent = nullptr) : QObject(parent) {}

    /// The window whose frames count, once there is one.
    void setWindow(QQuickWindow* window);
    std::unique_ptr<DisplayRefresh> create(std::function<void()> callback) override;

private:
    class Refresh;

    void callBack();
    void requestFrame();

    QPointer<QQuickWindow> m_window;
    /// Null where one was destroyed while they were called.
    std::vector<Refresh*> m_refreshes;
    bool m_calling = false;
};

}  // namespace tavi
