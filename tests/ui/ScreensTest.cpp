#include <gtest/gtest.h>

#include <QAccessible>
#include <QDir>
#include <set>

#include "Shell.h"

namespace tavi::test {
namespace {

const QString kLongText = QStringLiteral("The recording could not be kept because the disk is full, ").repeated(30);

/// A state in which the shell is looked at.
struct State {
    const char* name;
    int tab;
    std::function<void(Shell&)> prepare;
};

void speak(Shell& shell) {
    for (int i = 0; i < 260; ++i) {
        shell.hear(static_cast<float>(-6 - (i * 37 % 23) - (i / 40 % 2) * 14));
    }
}

void record(Shell& shell) {
    shell.startRecording();
    speak(shell);
}

void fillLibrary(const Shell& shell) {
    const char* const names[] = {
        "2024_Mar_05_14_03_59.m4a",
        "Interview with a very long name that nobody will ever read to its very end, part 2.wav",
        "תזכורת קולית לפני הפגישה של יום שלישי.m4a",
        "音声メモ 2024年3月5日 会議の記録とその続き.caf",
        "a.mp4",
        "<b>bold? & more.aac",
    };
    for (const char* name : names) {
        shell.container.addDocument(QString::fromUtf8(name), QByteArray(700'000, 'x'));
    }
    for (int i = 10; i < 30; ++i) {
        shell.container.addDocument(QStringLiteral("2024_Feb_%1_09_15_00.m4a").arg(i), QByteArray(i * 90'000, 'x'));
    }
}

void play(Shell& shell) {
    fillLibrary(shell);
    shell.players.seconds["2024_Feb_12_09_15_00.m4a"] = 245.0;
    shell.library.viewWillAppear();
    const auto& list = shell.library.arrRecordings();
    for (std::size_t row = 0; row < list.size(); ++row) {
        if (list[row].nativeName() == "2024_Feb_12_09_15_00.m4a") {
            shell.library.didSelectRowAtIndexPath(0, static_cast<int>(row));
        }
    }
    // Past the panel's way in.
    shell.settleFor(700);
    shell.runLoop.advance(75.0);
    shell.player.fastAudio(&shell.library);
}

void presentAlert(Shell& shell, const QString& message) {
    shell.presenter.presentAlert({QStringLiteral("Delete Recording"),
                                  message,
                                  {{QStringLiteral("Cancel"), AlertAction::Style::Cancel},
                                   {QStringLiteral("Delete"), AlertAction::Style::Destructive}}});
}

const State kStates[] = {
    {"idle", 0, {}},
    {"recording", 0, record},
    {"focus", 0, [](Shell& s) { s.key(Qt::Key_Tab); }},
    {"paused", 0, [](Shell& s) { record(s), s.startRecording(); }},
    {"empty", 1, {}},
    {"list", 1, [](Shell& s) { fillLibrary(s), s.library.viewWillAppear(); }},
    {"playing", 1, play},
    {"unplayable", 1,
     [](Shell& s) { fillLibrary(s), s.library.viewWillAppear(), s.library.didSelectRowAtIndexPath(0, 1); }},
    {"found", 1,
     [](Shell& s) { fillLibrary(s), s.library.viewWillAppear(), s.library.setSearchText(QStringLiteral("1")); }},
    {"settings", 2, {}},
    {"sheet", 2, [](Shell& s) { s.settings.showExtentionActionsheet(); }},
    {"alert", 0, [](Shell& s) { presentAlert(s, QStringLiteral("This cannot be undone. لا يمكن التراجع عن هذا.")); }},
    {"alert-one", 0,
     [](Shell& s) {
         s.presenter.presentAlert({qtTrId("microphone_denied"), qtTrId("access_device_microphone"), {{qtTrId("OK")}}});
     }},
    {"alert-long", 1, [](Shell& s) { fillLibrary(s), presentAlert(s, kLongText); }},
};

QString describe(const QQuickItem& item) {
    return QStringLiteral("%1 \"%2\" %3")
        .arg(QString::fromLatin1(item.metaObject()->className()), item.objectName(), item.property("text").toString());
}

bool isControl(const QQuickItem& item) {
    return item.inherits("QQuickAbstractButton") || item.inherits("QQuickSlider");
}

/// Whether an ancestor scrolls, so that what lies outside can be brought in.
bool scrolls(const QQuickItem* item) {
    for (const QQuickItem* one = item->parentItem(); one != nullptr; one = one->parentItem()) {
        if (one->inherits("QQuickFlickable")) {
            return true;
        }
    }
    return false;
}

QRectF sceneRect(const QQuickItem& item) {
    return item.mapRectToScene(item.boundingRect());
}

/// Controls can be reached, hit and named; texts lie inside the window and are not cut where they should fit.
void checkItems(const Shell& shell) {
    const QRectF window(QPointF(), shell.window->size());
    QList<QQuickItem*> controls;
    for (QQuickItem* item : shell.visibleItems()) {
        SCOPED_TRACE(qPrintable(describe(*item)));
        if (item->inherits("QQuickText")) {
            EXPECT_TRUE(scrolls(item) || window.contains(sceneRect(*item)));
            const bool mayElide = item->property("elide").toInt() != Qt::ElideNone;
            EXPECT_TRUE(mayElide || item->property("contentWidth").toDouble() <= item->width() + 0.5);
        }
        // Lists make rows ahead of time, bit by bit.
        const bool isInTheMaking = scrolls(item) && item->size().isEmpty();
        if (!isControl(*item) || isInTheMaking) {
            continue;
        }
        controls.append(item);
        EXPECT_GE(item->height(), 44.0);
        EXPECT_GE(item->width(), 44.0);
        EXPECT_TRUE(scrolls(item) || window.contains(sceneRect(*item)));
        QAccessibleInterface* access = QAccessible::queryAccessibleInterface(item);
        ASSERT_NE(access, nullptr);
        EXPECT_FALSE(access->text(QAccessible::Name).isEmpty());
        EXPECT_NE(access->role(), QAccessible::NoRole);
        EXPECT_NE(access->role(), QAccessible::Client);
        EXPECT_TRUE(access->state().focusable);
    }
    for (qsizetype i = 0; i < controls.size(); ++i) {
        for (qsizetype j = i + 1; j < controls.size(); ++j) {
            const bool overlap = sceneRect(*controls[i]).adjusted(1, 1, -1, -1).intersects(sceneRect(*controls[j]));
            const bool isCovered = shell.presenter.isActive() || scrolls(controls[i]) != scrolls(controls[j]);
            EXPECT_TRUE(!overlap || isCovered) << qPrintable(describe(*controls[i]) + describe(*controls[j]));
        }
    }
}

/// With TAVI_PICTURES in the environment the pictures of all states are saved there, to be looked at.
void save(const QImage& image, const State& state, const QSize& size) {
    const QString folder = qEnvironmentVariable("TAVI_PICTURES");
    if (!folder.isEmpty()) {
        EXPECT_TRUE(QDir().mkpath(folder));
        EXPECT_TRUE(
            image.save(QStringLiteral("%1/%2-%3.png").arg(folder, QLatin1String(state.name)).arg(size.width())));
    }
}

class Screens : public ::testing::TestWithParam<State> {};

TEST_P(Screens, FitEverySize) {
    Shell shell;
    shell.tabBar.setSelectedIndex(GetParam().tab);
    if (GetParam().prepare) {
        GetParam().prepare(shell);
    }
    for (const QSize size : {QSize(390, 844), QSize(360, 640), QSize(1200, 800)}) {
        SCOPED_TRACE(::testing::Message() << GetParam().name << " at " << size.width() << "x" << size.height());
        shell.resize(size);
        checkItems(shell);
        if (shell.recording.isRecordingRunning()) {
            speak(shell);  // A new size starts the wave anew.
        }
        save(shell.settle(), GetParam(), size);
    }
}

INSTANTIATE_TEST_SUITE_P(All, Screens, ::testing::ValuesIn(kStates), [](const auto& state) {
    return QString::fromLatin1(state.param.name).remove(QLatin1Char('-')).toStdString();
});

TEST(Settings, ControlsShowWhatTheScreenDecides) {
    Shell shell;
    shell.tabBar.setSelectedIndex(2);
    shell.settle();
    shell.tap(*shell.item(QStringLiteral("icloud")));
    EXPECT_TRUE(shell.store.isCloudSyncOn());
    EXPECT_TRUE(shell.item(QStringLiteral("icloud"))->property("checked").toBool());

    QQuickItem* slider = nullptr;
    for (QQuickItem* item : shell.visibleItems()) {
        slider = slider == nullptr && item->inherits("QQuickSlider") ? item : slider;
    }
    ASSERT_NE(slider, nullptr);
    shell.tap(*slider);  // Its middle is 32.5 seconds, which the screen rounds.
    EXPECT_DOUBLE_EQ(shell.settings.rewindValue(), 35.0);
    EXPECT_DOUBLE_EQ(slider->property("value").toDouble(), 35.0);
    slider->forceActiveFocus(Qt::TabFocusReason);
    shell.key(Qt::Key_Left);
    EXPECT_DOUBLE_EQ(shell.settings.rewindValue(), 30.0);
}

TEST(AssistiveTechnology, OperatesTheControls) {
    Shell shell;
    const auto act = [&shell](const char* name, const QString& action) {
        QQuickItem* item = shell.item(QString::fromLatin1(name));
        ASSERT_NE(item, nullptr) << name;
        QAccessible::queryAccessibleInterface(item)->actionInterface()->doAction(action);
        shell.settle();
    };
    act("btnRecord", QAccessibleActionInterface::pressAction());
    EXPECT_EQ(shell.session.questions.size(), 1U);
    act("btnStop", QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(QDir(shell.container.documentsPath()).isEmpty()) << "the stop button is disabled";
    shell.tabBar.setUserInteractionEnabled(false);
    act("tab2", QAccessibleActionInterface::pressAction());
    EXPECT_EQ(shell.tabBar.selectedIndex(), 0);
    shell.tabBar.setUserInteractionEnabled(true);
    act("tab2", QAccessibleActionInterface::pressAction());
    EXPECT_EQ(shell.tabBar.selectedIndex(), 2);
    act("quickMail", QAccessibleActionInterface::toggleAction());
    const QAccessible::State mail =
        QAccessible::queryAccessibleInterface(shell.item(QStringLiteral("quickMail")))->state();
    EXPECT_TRUE(mail.checkable && mail.checked);
    EXPECT_TRUE(shell.store.isQuickMailOn());
    act("quickMail", QAccessibleActionInterface::pressAction());
    EXPECT_FALSE(shell.store.isQuickMailOn());
}

TEST(Library, HeaderButtonsTurnTheOrderRound) {
    Shell shell(fillLibrary);
    shell.tabBar.setSelectedIndex(1);
    shell.settle();
    const auto firstName = [&shell] {
        const auto* model = shell.library.tableView();
        return model->data(model->index(0, 0), RecordingListModel::NameTextRole).toString();
    };
    const QString before = firstName();
    shell.tap(*shell.item(QStringLiteral("btnSortName")));
    EXPECT_NE(firstName(), before);
    EXPECT_EQ(shell.store.sort(), 2);
}

}  // namespace
}  // namespace tavi::test
