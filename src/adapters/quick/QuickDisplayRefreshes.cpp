#include "adapters/quick/QuickDisplayRefreshes.h"

#include <algorithm>
#include <utility>

namespace tavi {

class QuickDisplayRefreshes::Refresh : public DisplayRefresh {
public:
    Refresh(QuickDisplayRefreshes& owner, std::function<void()> callback)
        : m_owner(owner), m_callback(std::make_shared<std::function<void()>>(std::move(callback))) {
        m_owner.m_refreshes.push_back(this);
    }
    ~Refresh() override {
        const auto self = std::find(m_owner.m_refreshes.begin(), m_owner.m_refreshes.end(), this);
        if (m_owner.m_calling) {
            *self = nullptr;
        } else {
            m_owner.m_refreshes.erase(self);
        }
    }
    Refresh(const Refresh&) = delete;
    Refresh& operator=(const Refresh&) = delete;

    void setPaused(bool paused) override {
        m_paused = paused;
        m_owner.requestFrame();
    }
    bool isPaused() const override { return m_paused; }
    void callBack() const {
        // Held here, because the callback may destroy its refresh.
        const auto callback = m_callback;
        (*callback)();
    }

private:
    QuickDisplayRefreshes& m_owner;
    std::shared_ptr<std::function<void()>> m_callback;
    bool m_paused = true;
};

void QuickDisplayRefreshes::setWindow(QQuickWindow* window) {
    if (m_window) {
        m_window->disconnect(this);
    }
    m_window = window;
    if (m_window) {
        // On the main thread, behind the animations and before the scene is handed to the renderer: what a callback
        // changes is part of this very frame.
        connect(m_window, &QQuickWindow::afterAnimating, this, &QuickDisplayRefreshes::callBack);
        requestFrame();
    }
}

std::unique_ptr<DisplayRefresh> QuickDisplayRefreshes::create(std::function<void()> callback) {
    return std::make_unique<Refresh>(*this, std::move(callback));
}

void QuickDisplayRefreshes::callBack() {
    m_calling = true;
    // By index: a callback may create refreshes, too.
    for (std::size_t i = 0; i < m_refreshes.size(); ++i) {
        if (m_refreshes[i] != nullptr && !m_refreshes[i]->isPaused()) {
            m_refreshes[i]->callBack();
        }
    }
    m_calling = false;
    std::erase(m_refreshes, nullptr);
    requestFrame();
}

void QuickDisplayRefreshes::requestFrame() {
    const auto runs = [](const Refresh* refresh) { return refresh != nullptr && !refresh->isPaused(); };
    if (m_window && std::any_of(m_refreshes.begin(), m_refreshes.end(), runs)) {
        m_window->update();
    }
}

}  // namespace tavi
