#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QColor>
#include <QDropEvent>
#include <QMimeData>
#include <QQmlComponent>
#include <cmath>
#include <fstream>
#include <thread>

#include "Shell.h"
#include "trimming/waves/BarsItem.h"
#include "trimming/waves/WaveViewItem.h"
#include "ui/WindowPlace.h"

namespace tavi::test {
namespace {

TEST(TabBar, WhileDisabledOnlyTheProgramChoosesTabs) {
    Shell shell([](Shell& s) { s.tabBar.setUserInteractionEnabled(false); });
    const double dimmed = shell.item("tab1")->opacity();
    shell.key(Qt::Key_2, Qt::ControlModifier);
    shell.tap("tab1");
    EXPECT_EQ(shell.tabBar.selectedIndex(), 0);
    shell.tabBar.setSelectedIndex(2);
    shell.settle();
    EXPECT_TRUE(shell.item("extention")->isVisible());

    shell.tabBar.setUserInteractionEnabled(true);
    EXPECT_LT(dimmed, shell.item("tab1")->opacity());
    shell.key(Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(shell.tabBar.selectedIndex(), 1);
    shell.tap("tab0");
    shell.tabBar.setSelectedIndex(3);
    EXPECT_EQ(shell.tabBar.selectedIndex(), 0);
}

TEST(Keyboard, RecordsWhereNothingElseHasTheKeys) {
    Shell shell;
    const auto press = [&shell](int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        shell.key(key, modifiers, key == Qt::Key_Space ? QStringLiteral(" ") : QString());
        shell.session.answer(true);
        shell.runLoop.drain();
        shell.settle();
    };
    press(Qt::Key_Space);
    EXPECT_TRUE(shell.recording.isRecordingRunning());
    for (const char* focused : {"btnRecord", "QQuickFlickable"}) {
        shell.item(focused)->forceActiveFocus(Qt::TabFocusReason);
        shell.hold(Qt::Key_Space, QStringLiteral(" "));
        shell.hold(Qt::Key_Return);
        EXPECT_TRUE(shell.session.questions.empty()) << focused << ": a key that is held is one press";
    }
    // Stopping disables the button that had the mouse; the space bar must still record afterwards.
    shell.tap("btnStop");
    shell.runLoop.drain();
    EXPECT_FALSE(shell.recording.isRecording());
    shell.runLoop.advance(1.0);  // Recordings are named by the second.
    press(Qt::Key_Space);
    EXPECT_TRUE(shell.recording.isRecordingRunning());
    press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_FALSE(shell.recording.isRecording());
    // Nothing to stop: nothing is saved.
    press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(shell.presenter.title().isEmpty());

    // Neither does another tab's space bar record, nor one below an alert.
    press(Qt::Key_2, Qt::ControlModifier);
    press(Qt::Key_Space);
    press(Qt::Key_1, Qt::ControlModifier);
    shell.presenter.presentActionSheet({QStringLiteral("Sheet"), {}, {{QStringLiteral("OK")}, {QStringLiteral("No")}}});
    press(Qt::Key_Space);
    EXPECT_FALSE(shell.recording.isRecording());
}

TEST(Session, KeepsAWayBackAndOut) {
    Shell shell([](Shell& s) { s.session.inputAvailable = false; });
    shell.startRecording();
    shell.key(Qt::Key_Escape);
    shell.tabBar.setSelectedIndex(1);
    shell.settle();
    shell.tap("sessionReturn");
    EXPECT_EQ(shell.tabBar.selectedIndex(), 0);
    shell.tabBar.setSelectedIndex(2);
    shell.settle();
    shell.tap("sessionDismiss");
    EXPECT_TRUE(shell.tabBar.isUserInteractionEnabled());
    shell.session.inputAvailable = true;
    shell.startRecording();
    shell.tabBar.setSelectedIndex(1);
    for (const auto& [seconds, clock] : {std::pair{12.0, "Recording 00:12"}, {3600.0, "Recording 01:00:12"}}) {
        shell.runLoop.advance(seconds);
        shell.settle();
        EXPECT_TRUE(shell.words().contains(clock)) << clock;
    }
    shell.tap("sessionReturn");
    shell.tap("btnStop");
    shell.runLoop.drain();
    const QString last = (shell.settle(), shell.item("last")->property("text").toString());
    EXPECT_TRUE(last.endsWith(QStringLiteral(" · 01:00:12")));
    shell.session.inputAvailable = false;
    shell.startRecording();
    shell.key(Qt::Key_Escape);
    EXPECT_FALSE(shell.words().contains(last.toStdString())) << "one thing at a time: Dismiss";
}

TEST(Session, EndsWithANoticeThatPlays) {
    Shell shell;
    for (const char* button : {"noticeAction", "last"}) {
        shell.tabBar.setSelectedIndex(0);
        shell.startRecording();
        shell.hear(-10.0F);
        shell.tap("btnStop");
        shell.runLoop.advance(1.0);
        shell.settle();
        shell.tap(button);
        EXPECT_EQ(shell.tabBar.selectedIndex(), 1);
        EXPECT_EQ(shell.library.playingName(), shell.fakeRecording.last.name());
        shell.library.playerClose();
    }
}

TEST(Theme, CanBeRead) {
    QQmlEngine engine;
    engine.addImportPath(QStringLiteral(":/"));
    QQmlComponent component(&engine);
    component.setData("import QtQuick\nimport Tavi.Ui\nQtObject { property var tokens: Theme }", {});
    const std::unique_ptr<QObject> holder(component.create());
    ASSERT_NE(holder, nullptr) << qPrintable(component.errorString());
    const auto* theme = holder->property("tokens").value<QObject*>();
    const auto luminance = [theme](const char* token) {
        const QColor color = theme->property(token).value<QColor>();
        EXPECT_TRUE(color.isValid()) << token;
        const auto linear = [](double part) {
            return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
    };
    // Fixed colours are exceptions: the accent as the label of the chosen tab (3.8), and as bold letters of 19 points.
    const struct {
        double least;
        std::vector<const char*> tokens, grounds;
    } cases[] = {
        {4.5, {"text", "light", "label"}, {"ground", "well", "header", "panel", "control"}},
        {4.5, {"text", "light"}, {"controlHover", "controlPressed"}},
        {4.5, {"text"}, {"accent", "accentHover", "accentPressed", "switchOn"}},
        {4.5, {"tint"}, {"ground", "well", "panel", "control", "tonal", "rowHover"}},
        {4.5, {"faint", "amber"}, {"ground", "well", "header"}},
        {3.0, {"edge", "focus"}, {"ground", "well", "panel", "control"}},
        {3.0, {"track", "accent", "trimEdge", "switchOn"}, {"ground"}},
        {3.0, {"track", "accent"}, {"panel"}},
    };
    for (const auto& [least, tokens, grounds] : cases) {
        for (const char* token : tokens) {
            for (const char* ground : grounds) {
                const auto [dark, bright] = std::minmax({luminance(token), luminance(ground)});
                EXPECT_GE((bright + 0.05) / (dark + 0.05), least) << token << " on " << ground;
            }
        }
    }
}

TEST(Keyboard, ListsWhatItDoesAndIsNeverLost) {
    Shell shell;
    for (const int key : {Qt::Key_Question, Qt::Key_F1}) {
        shell.key(key, Qt::NoModifier, key == Qt::Key_Question ? QStringLiteral("?") : QString());
        shell.key(Qt::Key_2, Qt::ControlModifier);
        EXPECT_EQ(shell.tabBar.selectedIndex(), 0) << "the list covers the screens";
        key == Qt::Key_F1 ? shell.key(Qt::Key_Escape) : shell.tap("shortcutsClose");
    }
    for (const int key : {Qt::Key_F1, Qt::Key_Tab, Qt::Key_Return}) {
        shell.key(key);
    }
    EXPECT_THAT(shell.rating.urlOpener.opened,
                ::testing::ElementsAre(::testing::ResultOf([](const auto& address) { return QUrl(address).fileName(); },
                                                           QStringLiteral("index.html"))));
    shell.item("tab0")->forceActiveFocus(Qt::TabFocusReason);
    shell.tabBar.setUserInteractionEnabled(false);
    shell.settle();
    shell.key(Qt::Key_Space);
    EXPECT_EQ(shell.session.questions.size(), 1U) << "what had the keys is disabled";
}

TEST(Tabs, TellTheirScreenThatItAppears) {
    Shell shell;
    EXPECT_FALSE(shell.recording.lblDate().text.isEmpty());
    EXPECT_TRUE(shell.library.title().isEmpty()) << "the library is read before anyone looks at it";
    shell.tabBar.setSelectedIndex(1);
    EXPECT_FALSE(shell.library.title().isEmpty());

    // A file that came while another tab, or none, was seen.
    for (const bool hidesWindow : {false, true}) {
        const int before = shell.table.tableView()->rowCount();
        hidesWindow ? shell.window->hide() : shell.tabBar.setSelectedIndex(0);
        shell.container.addDocument(hidesWindow ? "b.wav" : "a.wav", "RIFF");
        hidesWindow ? shell.window->show() : shell.tabBar.setSelectedIndex(1);
        shell.settle();
        EXPECT_EQ(shell.table.tableView()->rowCount(), before + 1);
    }
}

TEST(Alerts, QueueAndAnswerKeys) {
    Shell shell;
    std::string chosen;
    using Style = AlertAction::Style;
    const auto alert = [&chosen](const char* title, std::initializer_list<std::pair<const char*, Style>> choices) {
        Alert made{QString::fromLatin1(title), {}, {}};
        for (const auto& [text, style] : choices) {
            made.actions.push_back({QString::fromLatin1(text), style,
                                    [&chosen, title, text = text] { chosen.append(title).append(text).append(" "); }});
        }
        return made;
    };
    auto& presenter = shell.presenter;
    presenter.presentAlert(
        alert("1", {{"Delete", Style::Destructive}, {"A", Style::Default}, {"Keep", Style::Cancel}}));
    presenter.presentActionSheet(alert("2", {{"A", Style::Default}, {"B", Style::Default}, {"No", Style::Cancel}}));
    presenter.presentAlert(alert("3", {{"OK", Style::Default}}));
    presenter.presentAlert(alert("4", {{"A", Style::Default}, {"B", Style::Default}}));
    presenter.presentActionSheet(alert("5", {{"A", Style::Default}, {"No", Style::Cancel}}));
    const std::pair<const char*, Style> a{"A", Style::Default};
    presenter.presentActionSheet(alert("6", {a, a, a, {"B", Style::Default}, {"No", Style::Cancel}}));
    for (const char* title : {"7", "8"}) {
        Alert menu = alert(title, {{"A", Style::Default}, {"No", Style::Cancel}});
        menu.anchor = QPointF(100.0, 100.0);
        presenter.presentActionSheet(menu);
    }
    shell.settle();
    shell.tap("btnRecord");  // Beside an alert.
    EXPECT_EQ(chosen, "");
    shell.key(Qt::Key_3, Qt::ControlModifier);  // Below an alert keys choose no tab.
    shell.key(Qt::Key_Return);                  // Harmless beside Delete.
    shell.key(Qt::Key_Return);                  // A sheet has no default.
    presenter.updateActionSheet(alert("2", {{"A", Style::Default}, {"C", Style::Default}, {"No", Style::Cancel}}));
    EXPECT_EQ((shell.settle(), shell.words().count("C")), 1U);
    shell.key(Qt::Key_Down);
    shell.key(Qt::Key_Down);
    shell.key(Qt::Key_Return);
    shell.key(Qt::Key_Escape);  // The only action.
    shell.key(Qt::Key_Escape);  // Two choices and no cancelling one: it stays.
    shell.tap("action1");
    shell.key(Qt::Key_Escape);
    shell.window->resize(390, 280);
    shell.key(Qt::Key_Up);
    shell.key(Qt::Key_Up);
    shell.tap("action3");  // What has the keyboard has scrolled into view.
    shell.tap("action0");
    shell.tap("action0");
    EXPECT_EQ(chosen, "1Keep 2C 3OK 4B 5No 6B 7A 8A ");
    EXPECT_FALSE(presenter.isActive());
    EXPECT_EQ(shell.tabBar.selectedIndex(), 0);
    EXPECT_TRUE(shell.item("btnRecord")->hasActiveFocus()) << "the keyboard does not come back";
}

TEST(AlertPresenter, KeepsItsOwnAndTheLastOfAFloodFromOutside) {
    AlertPresenter presenter;
    int own = 0;
    for (int i = 0; i < 100; ++i) {
        Alert told{QString::number(i), {}, {}};
        told.isFromOutside = true;
        presenter.presentAlert(told);
        presenter.presentAlert({QStringLiteral("own"), {}, {}});
    }
    QStringList told;
    while (presenter.isActive()) {
        presenter.title() == u"own" ? void(++own) : void(told << presenter.title());
        presenter.dismiss();
    }
    EXPECT_EQ(own, 100);
    EXPECT_EQ(told.size(), 17);
    EXPECT_EQ(told.first() + told.last(), QStringLiteral("099"));
}

TEST(Rating, WaitsUntilNothingStandsBeforeTheScreens) {
    Shell shell;
    const auto isCovered = [&shell] { return (shell.settle(), shell.rating.rater.isCovered()); };
    EXPECT_FALSE(isCovered());
    shell.presenter.presentActionSheet({QStringLiteral("Sheet"), {}, {}});
    EXPECT_TRUE(isCovered());
    shell.presenter.dismiss();
    shell.hudView.show({QStringLiteral("Wait")});
    EXPECT_TRUE(isCovered());
    shell.hudView.hide();
    EXPECT_FALSE(isCovered());
    shell.key(Qt::Key_F1);
    EXPECT_TRUE(isCovered());
    shell.key(Qt::Key_Escape);
    shell.trim(addTalk(shell));
    EXPECT_TRUE(isCovered());
    shell.trimmers.screen()->btnCancelTapped();
    shell.runLoop.drain();
    EXPECT_FALSE(isCovered());
    shell.window->hide();
    EXPECT_TRUE(isCovered());
    shell.window->show();
    EXPECT_FALSE(isCovered());

    shell.rating.rater.options().preferredLanguage = QStringLiteral("de");
    shell.rating.store.setStoreIdentifier(QStringLiteral("com.example.store"));
    shell.rating.rater.showRater();
    shell.runLoop.advance(AppRater::kMoment);
    shell.settle();
    EXPECT_TRUE(shell.words().contains("Jetzt bewerten"));
    shell.key(Qt::Key_Escape);
    EXPECT_TRUE(shell.rating.store.isDontShowAgain()) << "whoever sends it away is not asked again";
}

TEST(Hud, CoversTheScreensUntilItIsHidden) {
    Shell shell;
    int cancels = 0;
    shell.hudView.show({QStringLiteral("Copying"), Progress::HudType::Bar, [&cancels] { ++cancels; }});
    shell.settle();
    shell.key(Qt::Key_Space);
    shell.key(Qt::Key_Escape);
    shell.key(Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(shell.tabBar.selectedIndex(), 0);
    shell.presenter.presentAlert({QStringLiteral("Alert"), {}, {}});
    shell.settle();
    shell.key(Qt::Key_Return);
    shell.key(Qt::Key_Space);
    shell.tap("hudCancel");
    EXPECT_EQ(cancels, 4);
    shell.tap("btnRecord");
    shell.hudView.show({QStringLiteral("Copying more")});
    shell.settle();
    for (const int key : {Qt::Key_Escape, Qt::Key_Space, Qt::Key_Tab, Qt::Key_Space}) {
        shell.key(key);
    }
    EXPECT_EQ(cancels, 4);
    EXPECT_TRUE(shell.session.questions.empty()) << "reaches what lies below";
    EXPECT_EQ(shell.tabBar.selectedIndex(), 0);
    std::thread([&shell] {
        shell.hudView.show({QStringLiteral("Late")});
        shell.hudView.hide();
    }).join();
    shell.settle();
    EXPECT_FALSE(shell.hudView.isShown());
    shell.key(Qt::Key_Space);
    EXPECT_EQ(shell.session.questions.size(), 1U);
}

TEST(SavePanel, AsksForAFolderAndAName) {
    Shell shell;
    const std::filesystem::path root = shell.container.root();
    for (const char* folder : {"Media/STICK", "Talks 10", "Talks 2/In", ".hidden"}) {
        std::filesystem::create_directories(root / folder);
    }
    std::vector<std::filesystem::path> picked;
    const auto present = [&] {
        shell.savePanel.presentForExport("/x/a\xff.m4a", [&picked](const auto& answer) {
            EXPECT_FALSE(*answer && (*answer)->mayReplace);
            picked.push_back(*answer ? (*answer)->path : std::filesystem::path());
        });
        shell.runLoop.drain();
        shell.settle();
    };
    present();
    EXPECT_EQ(shell.item("saveName")->property("selectedText").toString().size(), 2) << "the extension stays";
    shell.tap("saveAccept");
    EXPECT_EQ(picked.back(), root / "a\xff.m4a") << "the name's own bytes";
    present();
    EXPECT_EQ(shell.savePanel.places().mid(1), QStringList{QStringLiteral("STICK")});
    const QStringList folders = shell.savePanel.folders();
    const auto talks = folders.indexOf(QStringLiteral("Talks 2"));
    EXPECT_EQ(folders.value(talks + 1), QStringLiteral("Talks 10"));
    EXPECT_FALSE(folders.contains(QStringLiteral(".hidden")));
    shell.item("saveFolders")->forceActiveFocus(Qt::TabFocusReason);
    shell.item("saveFolders")->setProperty("currentIndex", talks);
    shell.key(Qt::Key_Return);
    shell.runLoop.drain();
    shell.settle();
    EXPECT_EQ(shell.savePanel.folders(), QStringList{QStringLiteral("In")});
    for (const char* name : {"", "a/b", "..", "b.wav"}) {
        shell.item("saveName")->setProperty("text", QString::fromLatin1(name));
        shell.item("saveName")->forceActiveFocus(Qt::TabFocusReason);
        shell.key(Qt::Key_Return);
    }
    EXPECT_EQ(picked.size(), 2U);
    EXPECT_EQ(picked.back(), root / "Talks 2/b.wav");
    EXPECT_FALSE(shell.savePanel.isActive());
    present();
    EXPECT_EQ(shell.savePanel.folder(), QFile::decodeName((root / "Talks 2").c_str())) << "where the last one went";
    shell.tap("saveUp");
    shell.savePanel.goTo(1);
    shell.runLoop.drain();
    EXPECT_EQ(shell.savePanel.folder(), QFile::decodeName((root / "Media/STICK").c_str()));
    shell.key(Qt::Key_2, Qt::ControlModifier);
    shell.key(Qt::Key_Escape);
    EXPECT_EQ(picked.size(), 3U);
    EXPECT_EQ(picked.back(), std::filesystem::path());
    EXPECT_EQ(shell.tabBar.selectedIndex(), 0) << "keys reach what lies below";
}

TEST(Notices, SayThingsInPassing) {
    Shell shell;
    const auto isRead = [&shell](const char* text) {
        QAccessibleInterface* access = QAccessible::queryAccessibleInterface(shell.item("noticeTold"));
        return access->role() == QAccessible::AlertMessage && !access->state().invisible &&
               access->text(QAccessible::Name) == QLatin1String(text);
    };
    const QQuickItem* focused = shell.window->activeFocusItem();
    shell.notices.postNotice({QStringLiteral("First")});
    shell.runLoop.advance(5.0);
    int undone = 0;
    shell.notices.postNotice({QStringLiteral("Second"), QStringLiteral("Undo"), [&undone] { ++undone; }});
    shell.runLoop.advance(5.0);
    shell.settle();
    EXPECT_TRUE(isRead("Second")) << "the time of the first is over";
    EXPECT_EQ(shell.window->activeFocusItem(), focused);
    shell.item("noticeAction")->forceActiveFocus(Qt::TabFocusReason);
    shell.runLoop.advance(60.0);
    shell.key(Qt::Key_Return);
    EXPECT_EQ(undone, 1);
    EXPECT_FALSE(shell.notices.isActive());
    shell.notices.act();
    EXPECT_EQ(undone, 1);

    auto work = shell.notices.postProgress({QStringLiteral("Work"), QStringLiteral("Undo"), [&undone] { ++undone; }});
    work->setProgress(0.25);
    shell.notices.postNotice({QStringLiteral("Third")});
    shell.settle();
    EXPECT_TRUE(isRead("Third") && shell.words().count("25 %") == 0);
    shell.runLoop.advance(60.0);
    shell.settle();
    EXPECT_TRUE(isRead("Work") && shell.words().count("25 %") == 1);
    shell.tap("noticeAction");
    EXPECT_EQ(undone, 2);
    EXPECT_TRUE(shell.notices.isActive());
    work.reset();
    shell.settle();
    EXPECT_EQ(shell.words().count("Work"), 0U) << "the line goes with the work";

    shell.presenter.presentAlert({QStringLiteral("Alert"), {}, {}});
    shell.settle();
    shell.notices.postNotice(
        {QStringLiteral("The recording could not be kept because the disk is full. ").repeated(4)});
    shell.runLoop.advance(60.0);
    shell.presenter.dismiss();
    for (const QSize size : {QSize(360, 640), QSize(1200, 800)}) {
        shell.window->resize(size);
        shell.settle();
        const QQuickItem& line = *shell.item("notice");
        EXPECT_TRUE(QRectF(QPointF(), size).contains(line.mapRectToScene(line.boundingRect())));
        shell.tap("notice");
        EXPECT_TRUE(shell.notices.isActive());
    }
    shell.window->setProperty("reducedMotion", false);
    shell.runLoop.advance(6.0);
    EXPECT_FALSE(shell.item("notice")->childItems().first()->isVisible()) << "it is seen to go, and not heard";
    EXPECT_FALSE(shell.item("notice")->property("text").toString().isEmpty()) << "its words fade with it";
    shell.settleFor(300);
    EXPECT_FALSE(shell.notices.isActive());
    for (const QQuickItem* item : shell.visibleItems()) {
        EXPECT_NE(item->objectName(), QStringLiteral("notice"));
    }
}

TEST(Import, TakesCopiesOfWhatIsDroppedOnTheWindow) {
    Shell shell;
    QList<QUrl> urls{QUrl::fromLocalFile(QString::fromStdString(shell.container.root() / "talk.wav"))};
    std::ofstream(shell.container.root() / "talk.wav") << "sound";
    while (urls.size() < 500) {
        urls.append(QUrl(QStringLiteral("file:///none/%1.wav").arg(urls.size())));
    }
    QMimeData files;
    files.setUrls(urls);
    const auto drops = [&](Qt::DropActions actions) {
        QDragEnterEvent enter({100, 100}, actions, &files, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(shell.window, &enter);
        if (!enter.isAccepted()) {
            QDragLeaveEvent leave;
            QCoreApplication::sendEvent(shell.window, &leave);
            return false;
        }
        shell.settle();
        EXPECT_EQ(shell.words().count("Drop sound files here to import them"), 1U);
        QDropEvent drop({100, 100}, actions, &files, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(shell.window, &drop);
        EXPECT_EQ(drop.dropAction(), Qt::CopyAction) << "whoever moves takes the file away";
        return drop.isAccepted();
    };
    EXPECT_FALSE(drops(Qt::MoveAction));
    EXPECT_TRUE(drops(Qt::CopyAction | Qt::MoveAction));
    shell.runLoop.drain();
    EXPECT_TRUE(std::filesystem::exists(shell.container.documentsPath() / "talk.wav"));
    EXPECT_EQ(shell.tabBar.selectedIndex(), 1);
    EXPECT_EQ(shell.notices.text(), QStringLiteral("1 file has been imported, 499 not"));
    shell.notices.act();
    shell.settle();
    EXPECT_TRUE(shell.presenter.isActive());
    EXPECT_FALSE(drops(Qt::CopyAction)) << "something stands before the screens";
}

TEST(WaveViewItem, KeepsEveryBarAcrossFramesAndWhileHidden) {
    Shell shell;
    shell.startRecording();
    auto* item = qobject_cast<WaveViewItem*>(shell.item("tavi::WaveViewItem"));
    ASSERT_NE(item, nullptr);
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
    // A quarter of the way up is inside a bar of 0 dB and outside one of -40.
    std::vector<bool> bars;
    bars.reserve(7);
    for (int x = 0; x < 7; ++x) {
        bars.push_back(item->picture().pixelColor(4 * x + 2, item->picture().height() / 4).red() > 128);
    }
    EXPECT_EQ(bars, (std::vector<bool>{true, false, true, true, true, true, false}));
    const QPoint shown = item->mapToScene({18.0, item->height() / 4}).toPoint();
    EXPECT_GT(shell.settle().pixelColor(shown).red(), 128);
}

TEST(BarsItem, PaintsNewLevelsWholeWhateverChangesItsColourMeanwhile) {
    QQuickWindow window;
    window.resize(100, 100);
    window.setColor(Qt::black);
    BarsItem item(window.contentItem());
    item.setSize({30.0, 20.0});
    item.setTo(0.5);
    window.show();
    const auto greenAt = [&window](int x, int y) {
        QCoreApplication::processEvents();
        return window.grabWindow().pixelColor(x, y).green();
    };
    EXPECT_EQ(greenAt(0, 4), 0);
    item.setLevels({1.0, 0.5, 0.1, 1.0});
    item.setTo(0.6);
    const std::pair<QPoint, int> pixels[] = {{{0, 4}, 255}, {{9, 4}, 0}, {{9, 6}, 255}, {{27, 4}, 128}};
    for (const auto& [place, green] : pixels) {
        EXPECT_NEAR(greenAt(place.x(), place.y()), green, 40) << place.x();
    }
}

TEST(WindowPlace, IsWhereItWasLeftAsFarAsTheScreensLetIt) {
    const QRect desktop(0, 0, 1366, 728);
    const QRect beside(1366, 0, 1920, 1080);
    const struct {
        QRect left;
        QList<QRect> screens;
        QRect place;
    } cases[] = {
        {{}, {desktop}, {203, 44, 960, 640}},
        {{}, {{0, 0, 390, 844}}, {0, 0, 390, 844}},
        {{}, {{0, 0, 720, 360}}, {0, 0, 720, 360}},
        {{1500, 100, 800, 600}, {desktop, beside}, {1500, 100, 800, 600}},
        {{1500, 100, 800, 600}, {desktop}, {283, 64, 800, 600}},
        {{-100, 500, 800, 600}, {desktop}, {0, 128, 800, 600}},
        {{10, 10, 5000, 20}, {desktop}, {0, 10, 1366, 280}},
    };
    for (const auto& [left, screens, place] : cases) {
        FakeUserDefaults defaults;
        WindowPlace window(defaults);
        if (left.isValid()) {
            window.keep(left);
        }
        EXPECT_EQ(window.place(screens), place) << place.x();
    }
}

}  // namespace
}  // namespace tavi::test
