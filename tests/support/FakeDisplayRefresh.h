#pragma once

#include <algorithm>
#include <vector>

#include "platform/DisplayRefresh.h"

namespace tavi::test {

/// A display that shows a picture when the test says so.
class FakeDisplayRefreshes : public DisplayRefreshes {
public:
    std::unique_ptr<DisplayRefresh> create(std::function<void()> callback) override {
        return std::make_unique<Refresh>(m_refreshes, std::move(callback));
    }

    void showFrame() {
        const std::vector<Refresh*> before = m_refreshes;
        for (const Refresh* refresh : before) {
            if (std::count(m_refreshes.begin(), m_refreshes.end(), refresh) > 0 && !refresh->isPaused()) {
                // A copy, because the callback may destroy its refresh.
                const auto callback = refresh->callback;
                callback();
            }
        }
    }

    /// Refreshes that exist.
    std::size_t count() const { return m_refreshes.size(); }

private:
    class Refresh : public DisplayRefresh {
    public:
        Refresh(std::vector<Refresh*>& all, std::function<void()> called) : callback(std::move(called)), m_all(all) {
            m_all.push_back(this);
        }
        ~Refresh() override { std::erase(m_all, this); }
        Refresh(const Refresh&) = delete;
        Refresh& operator=(const Refresh&) = delete;
        void setPaused(bool paused) override { m_paused = paused; }
        bool isPaused() const override { return m_paused; }

        std::function<void()> callback;

    private:
        std::vector<Refresh*>& m_all;
        bool m_paused = true;
    };

    std::vector<Refresh*> m_refreshes;
};

}  // namespace tavi::test
