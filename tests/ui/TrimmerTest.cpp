#include <gtest/gtest.h>

#include <qpa/qwindowsysteminterface.h>

#include "Shell.h"

namespace tavi::test {
namespace {

TEST(Trimmer, ThumbsFollowTheMouseTheKeysAndAssistiveTechnology) {
    Shell shell;
    AudioTrimmerViewController& screen = shell.trim(addTalk(shell));
    const TrimSelection& selection = *screen.selection();
    const QImage talk = shell.settle();
    screen.audioPlot()->updateBuffer(std::vector<float>(100).data(), 100);
    EXPECT_NE(shell.settle(), talk) << "what the plot is fed is not seen";
    QQuickItem* thumb = shell.item("leftThumb");
    shell.drag(*thumb, 10.0 * selection.containerWidth() / 75.0);
    EXPECT_NEAR(selection.startTime(), 10.0, 0.01);
    EXPECT_TRUE(thumb->hasActiveFocus());
    shell.key(Qt::Key_Right);
    EXPECT_NEAR(selection.startTime(), 10.01, 0.01);
    shell.key(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_NEAR(selection.startTime(), 9.01, 0.01);

    QAccessibleInterface* access = QAccessible::queryAccessibleInterface(shell.item("rightThumb"));
    EXPECT_EQ(access->role(), QAccessible::Slider);
    EXPECT_EQ(access->text(QAccessible::Description), QStringLiteral("01:15.00"));
    ASSERT_NE(access->valueInterface(), nullptr);
    access->valueInterface()->setCurrentValue(70.0);
    EXPECT_NEAR(selection.endTime(), 70.0, 1e-6);
    access->actionInterface()->doAction(QAccessibleActionInterface::decreaseAction());
    EXPECT_NEAR(access->valueInterface()->currentValue().toDouble(), 69.0, 1e-6);
}

TEST(Trimmer, ButtonsAndKeysDoWhatTheySay) {
    Shell shell;
    shell.assets.areExportsHeldBack = true;
    const std::filesystem::path talk = addTalk(shell);
    const TrimPlayer& player = *shell.trim(talk).player();
    const auto isPlaying = [&] {
        shell.runLoop.drain();
        return player.isPlaying();
    };
    shell.tap("btnPlayPause");
    EXPECT_TRUE(isPlaying());
    QStringList visited;
    for (int i = 0; i < 10; ++i) {
        visited.append(shell.window->activeFocusItem()->objectName());
        shell.key(Qt::Key_Tab);
    }
    EXPECT_EQ(visited.join(QLatin1Char(' ')),
              QStringLiteral("btnPlayPause btnReset btnResetAudio btnEditTrimmedVideo btnCancel btnUpload leftThumb "
                             "rightThumb zoomIn btnPlayPause"))
        << "what the trimmer covers is out of reach";
    TrimZoom& zoom = *shell.trimmers.screen()->zoom();
    EXPECT_LT(shell.item("zoomOut")->opacity(), 0.5) << "it is seen to be disabled";
    shell.window->setProperty("reducedMotion", false);
    shell.key(Qt::Key_Plus);
    shell.tap("zoomIn");
    shell.settleFor(300);
    EXPECT_EQ(zoom.factor(), 4.0) << "the second step begins before the first is over";
    const QQuickItem* plot = shell.item("tavi::EZAudioPlotItem");
    const QPointF quarter = plot->mapToScene({plot->width() / 4.0, 50.0});
    const auto turn = [&](int angle, Qt::KeyboardModifiers modifiers) {
        QWheelEvent event(quarter, quarter, {}, {0, angle}, Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(shell.window, &event);
    };
    const QPointingDevice touch(QStringLiteral("touch"), 1, QInputDevice::DeviceType::TouchScreen,
                                QPointingDevice::PointerType::Finger, QInputDevice::Capability::Position, 2, 0);
    const auto pinch = [&](double distance, QEventPoint::State state) {
        QWindowSystemInterface::TouchPoint point;
        point.state = state;
        QList<QWindowSystemInterface::TouchPoint> points(2, point);
        for (const int finger : {0, 1}) {
            points[finger].id = finger;
            points[finger].area.moveCenter(
                shell.window->mapToGlobal(quarter + QPointF((finger - 0.5) * distance, 0.0)));
        }
        QWindowSystemInterface::handleTouchEvent<QWindowSystemInterface::SynchronousDelivery>(shell.window, &touch,
                                                                                              points);
    };
    turn(120, Qt::ControlModifier);
    EXPECT_NEAR(zoom.factor(), 5.0, 1e-6);
    EXPECT_NEAR(zoom.from(), 0.3875, 1e-3) << "what is under the pointer stays";
    turn(-120, Qt::NoModifier);
    EXPECT_NEAR(zoom.from(), 0.4275, 1e-3) << "without Ctrl it scrolls";
    for (const double distance : {40.0, 60.0, 80.0, 100.0, 120.0, 160.0, 200.0}) {
        pinch(distance, distance == 40.0 ? QEventPoint::Pressed : QEventPoint::Updated);
    }
    pinch(200.0, QEventPoint::Released);
    EXPECT_NEAR(zoom.factor(), 12.5, 1e-6) << "a finger beside the plot";
    EXPECT_NEAR(zoom.from(), 0.4575, 1e-3) << "what is between the fingers stays";
    shell.drag(*plot, -80.0);
    EXPECT_GT(zoom.from(), 0.46) << "a drag scrolls";
    EXPECT_EQ(player.indicatorX(), 0.0) << "a drag is no tap";
    zoom.show(0.375, 0.625);
    shell.tap("tavi::EZAudioPlotItem");
    EXPECT_NEAR(player.indicatorX(), zoom.offset() + zoom.viewWidth() / 2.0, 1.0) << "a tap moves the play head";
    shell.drag(*shell.item("overview"), 50.0);
    EXPECT_NEAR(zoom.from(), 0.375 + 50.0 / shell.item("overview")->width(), 1e-3);
    shell.item("leftThumb")->forceActiveFocus(Qt::TabFocusReason);
    EXPECT_EQ(zoom.from(), 0.0) << "where the keyboard is";
    EXPECT_EQ(shell.item("range")->property("text").toString(), QStringLiteral("0:00.00 – 1:15.00 · 75.0 s"));
    shell.key(Qt::Key_Space);
    EXPECT_FALSE(isPlaying());
    for (const std::size_t exports : {1, 2}) {
        shell.tap("btnUpload");
        ASSERT_EQ(shell.assets.sessions.size(), exports);
        shell.key(Qt::Key_Space);
        EXPECT_FALSE(isPlaying());
        exports == 1 ? shell.key(Qt::Key_Escape) : shell.tap("btnCancelExport");
        shell.runLoop.drain();
        EXPECT_EQ(shell.assets.sessions.back()->status, AssetExportStatus::Cancelled);
    }
    shell.key(Qt::Key_Escape);
    EXPECT_EQ(shell.trimmers.screen(), nullptr);
    shell.trim(talk);
    shell.tap("btnCancel");
    EXPECT_EQ(shell.trimmers.screen(), nullptr);
}

}  // namespace
}  // namespace tavi::test
