#include <gmock/gmock.h>

#include <QGuiApplication>
#include <QQuickWindow>

#include "adapters/quick/QuickDisplayRefreshes.h"
#include "support/EventLoop.h"

namespace tavi::test {
namespace {

/// A window whose frames are shown.
struct Display {
    Display() {
        refreshes.setWindow(&window);
        window.resize(40, 40);
        window.show();
    }
    bool showFrames(int count) {
        int shown = 0;
        QObject context;
        QObject::connect(&window, &QQuickWindow::frameSwapped, &context,
                         [&] { ++shown < count ? window.update() : void(); });
        window.update();
        return spinUntil([&shown, count] { return shown >= count; });
    }

    QQuickWindow window;
    QuickDisplayRefreshes refreshes;
};

TEST(QuickDisplayRefreshes, CallBackOnEveryFrameWhileNotPausedAndMayBeDestroyedByThat) {
    Display display;
    int calls = 0;
    auto first = display.refreshes.create([&calls] { ++calls; });
    const auto callsOf = [&display, &calls](int frames) {
        calls = 0;
        EXPECT_TRUE(display.showFrames(frames));
        return calls;
    };
    EXPECT_TRUE(first->isPaused());
    EXPECT_EQ(callsOf(2), 0);
    first->setPaused(false);
    EXPECT_GE(callsOf(3), 3);
    first->setPaused(true);
    EXPECT_EQ(callsOf(2), 0);
    std::unique_ptr<DisplayRefresh> second;
    first = display.refreshes.create([&, witness = std::make_shared<int>(1)] {
        second.reset();
        first.reset();
        calls += *witness;
    });
    second = display.refreshes.create([&calls] { calls += 10; });
    first->setPaused(false);
    second->setPaused(false);
    EXPECT_EQ(callsOf(2), 1);
}

TEST(QuickDisplayRefreshes, KeepItsWindowDrawingOnlyWhileOneIsNotPaused) {
    Display display;
    int calls = 0;
    const auto refresh = display.refreshes.create([&calls] { ++calls; });
    refresh->setPaused(false);
    EXPECT_TRUE(spinUntil([&calls] { return calls >= 5; }));
    refresh->setPaused(true);
    // The frame that is under way may still come.
    ASSERT_TRUE(display.showFrames(2));
    int frames = 0;
    QObject::connect(&display.window, &QQuickWindow::frameSwapped, &display.window, [&frames] { ++frames; });
    QDeadlineTimer while100(100);
    spinUntil([&while100] { return while100.hasExpired(); });
    EXPECT_EQ(frames, 0);
}

}  // namespace
}  // namespace tavi::test

int main(int argc, char** argv) {
    ::testing::InitGoogleMock(&argc, argv);
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
