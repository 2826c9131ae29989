#include <gtest/gtest.h>

#include <memory>

#include "Shell.h"
#include "support/FakeDisplayRefresh.h"
#include "trimming/waves/EZAudioPlotItem.h"
#include "trimming/waves/WaveViewItem.h"

namespace tavi::test {
namespace {

TEST(TabBar, WhileDisabledOnlyTheProgramChoosesTabs) {
    const Shell shell([](Shell& s) { s.tabBar.setUserInteractionEnabled(false); });
    const double dimmed = shell.item(QStringLiteral("tab1"))->opacity();
    shell.key(Qt::Key_2, Qt::ControlModifier);
    shell.tap(*shell.item(QStringLiteral("tab1")));
    EXPECT_EQ(shell.tabBar.selectedIndex(), 0);

    auto& tabBar = const_cast<Shell&>(shell).tabBar;
    tabBar.setSelectedIndex(2);
    EXPECT_NE((shell.settle(), shell.item(QStringLiteral("extention"))), nullptr);

    tabBar.setUserInteractionEnabled(true);
    EXPECT_LT(dimmed, shell.item(QStringLiteral("tab1"))->opacity());
    shell.key(Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(shell.tabBar.selectedIndex(), 1);
    shell.tap(*shell.item(QStringLiteral("tab0")));
    EXPECT_EQ(shell.tabBar.selectedIndex(), 0);
    tabBar.setSelectedIndex(3);
    EXPECT_EQ(shell.tabBar.selectedIndex(), 0);
}

TEST(Keyboard, SpaceRecordsAndPausesAndControlSSaves) {
    Shell shell;
    const auto space = [&shell] {
        shell.key(Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "));
        shell.session.answer(true);
        shell.runLoop.drain();
        shell.settle();
    };
    space();
    EXPECT_TRUE(shell.recording.isRecordingRunning());
    space();
    EXPECT_TRUE(shell.recording.isRecording());
    EXPECT_FALSE(shell.recording.isRecordingRunning());
    // Stopping disables the button that had the mouse; the space bar must still record afterwards.
    shell.tap(*shell.item(QStringLiteral("btnStop")));
    shell.runLoop.drain();
    EXPECT_FALSE(shell.recording.isRecording());
    shell.runLoop.advance(1.0);  // Recordings are named by the second.
    space();
    EXPECT_TRUE(shell.recording.isRecordingRunning());
    shell.key(Qt::Key_S, Qt::ControlModifier);
    shell.runLoop.drain();
    EXPECT_FALSE(shell.recording.isRecording());
    // Nothing to stop: nothing is saved.
    shell.key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(shell.presenter.title().isEmpty());

    // Neither does another tab's space bar record, nor one below an alert.
    shell.key(Qt::Key_2, Qt::ControlModifier);
    space();
    shell.key(Qt::Key_1, Qt::ControlModifier);
    shell.presenter.presentActionSheet({QStringLiteral("Sheet"), {}, {{QStringLiteral("OK")}, {QStringLiteral("No")}}});
    shell.settle();
    space();
    EXPECT_FALSE(shell.recording.isRecording());
}

TEST(Tabs, TellTheirScreenThatItAppears) {
    Shell shell;
    EXPECT_FALSE(shell.recording.lblDate().text.isEmpty());
    EXPECT_TRUE(shell.library.title().isEmpty()) << "the library is read before anyone looks at it";
    shell.tabBar.setSelectedIndex(1);
    EXPECT_FALSE(shell.library.title().isEmpty());

    // A file that came while another tab, or none, was seen.
    for (const bool hidesWindow : {false, true}) {
        const int before = shell.library.tableView()->rowCount();
        hidesWindow ? shell.window->hide() : shell.tabBar.setSelectedIndex(0);
        shell.container.addDocument(hidesWindow ? QStringLiteral("b.wav") : QStringLiteral("a.wav"), "RIFF");
        hidesWindow ? shell.window->show() : shell.tabBar.setSelectedIndex(1);
        shell.settle();
        EXPECT_EQ(shell.library.tableView()->rowCount(), before + 1);
    }
}

TEST(Alerts, QueueAndAnswerKeys) {
    Shell shell;
    QStringList chosen;
    const auto action = [&chosen](const char* title, AlertAction::Style style) {
        const QString text = QString::fromLatin1(title);
        return AlertAction{text, style, [&chosen, text] { chosen.append(text); }};
    };
    using Style = AlertAction::Style;
    shell.presenter.presentAlert(
        {QStringLiteral("1"), {}, {action("1 Keep", Style::Cancel), action("1 Delete", Style::Destructive)}});
    shell.presenter.presentActionSheet(
        {QStringLiteral("2"),
         {},
         {action("2 A", Style::Default), action("2 B", Style::Default), action("2 Cancel", Style::Cancel)}});
    shell.presenter.presentAlert({QStringLiteral("3"), {}, {action("3 OK", Style::Default)}});
    shell.presenter.presentAlert(
        {QStringLiteral("4"), {}, {action("4 A", Style::Default), action("4 B", Style::Default)}});
    shell.presenter.presentActionSheet(
        {QStringLiteral("5"), {}, {action("5 A", Style::Default), action("5 Cancel", Style::Cancel)}});
    shell.settle();
    shell.key(Qt::Key_3, Qt::ControlModifier);  // Below an alert keys choose no tab.
    shell.key(Qt::Key_Return);                  // Harmless beside Delete.
    shell.key(Qt::Key_Return);                  // A sheet has no default.
    shell.key(Qt::Key_Down);
    shell.key(Qt::Key_Down);
    shell.key(Qt::Key_Return);
    shell.key(Qt::Key_Escape);  // The only action.
    shell.key(Qt::Key_Escape);  // Two choices and no cancelling one: it stays.
    shell.tap(*shell.item(QStringLiteral("action1")));
    shell.key(Qt::Key_Escape);
    EXPECT_EQ(chosen, QStringList({QStringLiteral("1 Keep"), QStringLiteral("2 B"), QStringLiteral("3 OK"),
                                   QStringLiteral("4 B"), QStringLiteral("5 Cancel")}));
    EXPECT_FALSE(shell.presenter.isActive());
    EXPECT_EQ(shell.tabBar.selectedIndex(), 0);
    EXPECT_TRUE(shell.item(QStringLiteral("btnRecord"))->hasActiveFocus()) << "the keyboard does not come back";
}

TEST(WaveViewItem, KeepsEveryBarAcrossFramesAndWhileHidden) {
    Shell shell;
    shell.startRecording();
    WaveViewItem* item = nullptr;
    for (QQuickItem* one : shell.visibleItems()) {
        item = item == nullptr ? qobject_cast<WaveViewItem*>(one) : item;
    }
    ASSERT_NE(item, nullptr);
    // A quarter of the way up is inside a bar of 0 dB and outside one of -40.
    const auto barAt = [item](int x) {
        return item->picture().pixelColor(x, item->picture().height() / 4).red() > 128;
    };
    const auto shown = [&shell, item](int x) {
        const QPointF at = item->mapToScene({x + 0.5, item->height() / 4});
        return shell.settle().pixelColor(at.toPoint() - QPoint(1, 0)).red() > 128;
    };
    shell.hear(0.0F);
    shell.settle();
    shell.hear(-40.0F);
    shell.hear(0.0F);  // Two readings in one frame.
    shell.key(Qt::Key_Shift);
    for (const bool visible : {true, false, true}) {
        item->setVisible(visible);
        shell.hear(0.0F);  // Hidden or not, nothing is lost.
        shell.settle();
    }
    const std::vector<bool> expected{true, false, true, true, true, true, false};
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(barAt(static_cast<int>(i)), expected[i]) << i;
    }
    EXPECT_TRUE(shown(5));
    EXPECT_FALSE(shown(8));
}

TEST(EZAudioPlotItem, ShowsWhatItsPlotIsFedInItsOwnSize) {
    FakeDisplayRefreshes refreshes;
    const auto plot = EZAudioPlot::init(refreshes);
    plot->setShouldOptimizeForRealtimePlot(false);
    plot->setShouldFill(true);
    plot->setBackgroundColor(QStringLiteral("#000000"));
    QQuickWindow window;
    window.resize(100, 100);
    EZAudioPlotItem item(window.contentItem());
    item.setPlot(plot.get());
    item.setSize({80.0, 60.0});
    window.show();
    EXPECT_EQ(plot->bounds(), QRectF(0.0, 0.0, 80.0, 60.0));
    const std::vector<float> samples(80, 0.5F);
    const auto redAt = [&window](int x, int y) {
        QCoreApplication::processEvents();
        return window.grabWindow().pixelColor(x, y).red();
    };
    EXPECT_EQ(redAt(40, 20), 0);
    plot->updateBuffer(samples.data(), 80);
    EXPECT_EQ(redAt(40, 20), 255);
    EXPECT_EQ(redAt(40, 10), 0);
    item.setSize({80.0, 100.0});
    EXPECT_EQ(redAt(40, 30), 255);
    EXPECT_EQ(redAt(40, 20), 0);
}

}  // namespace
}  // namespace tavi::test
