#pragma once

#include <vector>

#include "platform/DisplayRefresh.h"

namespace tavi::test {

/// A display that shows a picture when the test says so.
struct FakeDisplayRefreshes : DisplayRefreshes {
    std::unique_ptr<DisplayRefresh> create(std::function<void()> callback) override {
        return std::make_unique<Refresh>(m_refreshes, std::move(callback));
    }

    void showFrame() {
        for (const Refresh* refresh : std::vector(m_refreshes)) {
            refresh->isPaused() ? void() : refresh->callback();
        }
    }

private:
    struct Refresh : DisplayRefresh {
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
