#include <gtest/gtest.h>

#include <QDir>
#include <QDragEnterEvent>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QMimeData>
#include <QStyleHints>
#include <QVersionNumber>

#include "Shell.h"
#include "support/Pictures.h"
#include "trimming/AudioTrim.h"

namespace tavi::test {
namespace {

const QString kLongText = QStringLiteral("The recording could not be kept because the disk is full, ").repeated(30);

/// A state in which the shell is looked at.
struct State {
    const char* name;
    int tab;
    /// What can be read or heard at some size; after a "!", at none.
    const char* words;
    std::function<void(Shell&)> prepare;
};

void record(Shell& shell) {
    shell.startRecording();
    for (int i = 0; i < 260; ++i) {
        shell.hear(static_cast<float>(-6 - (i * 37 % 23) - (i / 40 % 2) * 14));
    }
}

void save(Shell& shell) {
    record(shell);
    shell.runLoop.holdBackground(true);
    shell.recording.stopAndSaveRecording();
    shell.runLoop.drain();
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
        shell.container.addDocument(name, QByteArray(700'000, 'x'));
    }
    for (int i = 10; i < 30; ++i) {
        shell.container.addDocument("2024_Feb_" + std::to_string(i) + "_09_15_00.m4a", QByteArray(i * 90'000, 'x'));
    }
}

/// A file of that name sounds, of one shape for each seed.
void addSound(Shell& shell, const std::filesystem::path& name, int seed) {
    const auto sound = std::make_shared<FakeSound>();
    for (sound->planes.resize(1); sound->planes[0].size() < 40'960;) {
        const auto word = static_cast<int>(sound->planes[0].size()) / 1024 + 3 * seed;
        const double loud = 0.05 + 0.45 * std::abs(std::sin(word * 0.37) * std::sin(word * (2.1 + seed)));
        const double place = static_cast<double>(sound->planes[0].size());
        sound->planes[0].push_back(static_cast<float>(loud * std::abs(std::sin(place * 0.004)) * std::sin(place)));
    }
    shell.files.sounds[shell.container.documentsPath() / name] = sound;
}

void showLibrary(Shell& shell) {
    fillLibrary(shell);
    shell.library.viewWillAppear();
    for (int row = 0; row < 14; ++row) {
        addSound(shell, shell.table.arrRecordings().at(static_cast<std::size_t>(row)).nativeName(), row);
    }
    shell.settle();
    shell.runLoop.advance(1.0);
}

void showCloud(Shell& shell) {
    shell.settings.setCloudSyncOn(true);
    shell.connection.place.kind = CloudAccount::Kind::Folder;
    for (const char* name : {"Walk along the river.mp4", "Shopping list.caf"}) {
        shell.container.addDocument(name, QByteArray(560'000, 'x'));
    }
    const std::map<std::filesystem::path, CloudFile> files{
        {"Team call, Monday.m4a", {CloudFile::State::Sending, false, 0.42}},
        {"2026_Nov_22_18_04_51.m4a", {CloudFile::State::Waiting}},
        {"Harbour meeting.m4a", {CloudFile::State::There}},
        {"Choir rehearsal (conflict 2026-11-12 Phone).wav", {CloudFile::State::There, true}},
        {"Grandfather tells of 1958.m4a", {CloudFile::State::OnlyThere}},
        {"On its way with a very long name that nobody reads.wav", {CloudFile::State::Arriving}}};
    for (const auto& [name, file] : files) {
        if (file.state != CloudFile::State::OnlyThere && file.state != CloudFile::State::Arriving) {
            shell.cloud.files[name] = std::string(900'000, 'x');
        }
    }
    shell.library.viewWillAppear();
    shell.runLoop.advance(1.0);
    shell.connection.known = files;
    Q_EMIT shell.connection.filesChanged();
    shell.runLoop.advance(1.0);
    shell.settle();
}

void play(Shell& shell) {
    showLibrary(shell);
    shell.players.seconds[shell.table.arrRecordings().at(5).nativeName()] = 245.0;
    shell.library.didSelectRowAtIndexPath(0, 5);
    shell.settle();
    shell.runLoop.advance(75.0);
    shell.player.fastAudio(&shell.library);
}

void trim(Shell& shell) {
    TrimSelection& selection = *shell.trim(addTalk(shell)).selection();
    selection.nudge(true, 12.0);
    selection.nudge(false, -20.0);
}

void presentAlert(Shell& shell, const QString& message) {
    shell.presenter.presentAlert({QStringLiteral("Delete Recording"),
                                  message,
                                  {{QStringLiteral("Cancel"), AlertAction::Style::Cancel},
                                   {QStringLiteral("Delete"), AlertAction::Style::Destructive}}});
}

void unlock(Shell& shell) {
    showLibrary(shell);
    shell.notices.postNotice({QStringLiteral("Saved as Secret"), {}, {}});
    shell.passcode.togglePasscodeProtection(true);
    shell.notifications.postNotification(applicationnotification::kWillEnterForeground);
    shell.settle();
    shell.key(Qt::Key_4, Qt::NoModifier, QStringLiteral("4"));
    shell.key(Qt::Key_2, Qt::KeypadModifier, QStringLiteral("2"));
}

const State kStates[] = {
    {"idle", 0, "Record|Tap the red button to record|Desk|Microphone: Desk|!Too loud|no btnStop|!no lblFileType", {}},
    {"microphone", 0, "Microphone|Default of the system|Headset",
     [](Shell& s) {
         s.tap("microphone");
         s.session.setInputs({{QStringLiteral("head"), QStringLiteral("Headset")}});
         s.runLoop.drain();
     }},
    {"recording", 0, "Pause|Recording|no lblFileType|no tab0|!no btnStop", record},
    {"loud", 0, "Too loud", [](Shell& s) { record(s), s.hear(0.0F); }},
    {"silent", 0, "!Too loud|Nothing has been heard for ten seconds. Is the microphone on?",
     [](Shell& s) { s.startRecording(), s.hear(-70.0F), s.runLoop.advance(10.0); }},
    {"focus", 0, "", [](Shell& s) { s.key(Qt::Key_Tab); }},
    {"paused", 0, "Resume|Paused", [](Shell& s) { record(s), s.startRecording(); }},
    {"saving", 0, "Saving…", save},
    {"starting", 0, "Saving, then recording…", [](Shell& s) { save(s), s.startRecording(); }},
    {"saved", 0, "", [](Shell& s) { record(s), s.tap("btnStop"), s.runLoop.drain(); }},
    {"failed", 0, "Dismiss|!Return",
     [](Shell& s) { s.session.inputAvailable = false, s.startRecording(), s.presenter.dismiss(); }},
    {"session", 0, "Return|!Dismiss", [](Shell& s) { record(s), s.tabBar.setSelectedIndex(1); }},
    {"shortcuts", 0, "", [](Shell& s) { s.key(Qt::Key_F1); }},
    {"empty", 1, "", {}},
    {"list", 1, "", showLibrary},
    {"playing", 1, "01:15 / 04:05 · 2×|01:15 of 04:05", play},
    {"unplayable", 1, "This file cannot be played|no btnplaypuas|no backSkip|no forwardSkip|no btnSlow",
     [](Shell& s) { showLibrary(s), s.library.didSelectRowAtIndexPath(0, 1), s.settleFor(700); }},
    {"found", 1, "", [](Shell& s) { showLibrary(s), s.table.setSearchText(QStringLiteral("1")); }},
    {"cloud", 1,
     "Cloud Recordings|Sending, 42 %|Waiting to be sent|Only in the cloud. Tap to fetch it|On its way. Tap to ask "
     "again|"
     "Another version. Both are kept|!Refreshing the cloud recordings",
     showCloud},
    {"cloudRefresh", 1, "Refreshing the cloud recordings",
     [](Shell& s) { showCloud(s), s.cloud.hasAccount = true, s.key(Qt::Key_End), s.key(Qt::Key_F5); }},
    {"cloudEmpty", 1, "Cloud Recordings|No recordings yet",
     [](Shell& s) { s.settings.setCloudSyncOn(true), s.library.viewWillAppear(); }},
    {"menu", 1, "Trim to M4A|Rename|Upload to a drive", [](Shell& s) { showLibrary(s), s.tap("more"); }},
    {"rowSheet", 1, "Trim|!Trim to M4A",
     [](Shell& s) { showLibrary(s), s.key(Qt::Key_Down), s.key(Qt::Key_F10, Qt::ShiftModifier); }},
    {"rename", 1, "Rename Recording", [](Shell& s) { showLibrary(s), s.key(Qt::Key_Down), s.key(Qt::Key_F2); }},
    {"delete", 1, "Delete Recording", [](Shell& s) { showLibrary(s), s.key(Qt::Key_Down), s.key(Qt::Key_Delete); }},
    {"importing", 1, "Cancel|Importing 2 files",
     [](Shell& s) {
         showLibrary(s);
         s.runLoop.holdBackground(true);
         s.imports.importFiles({QUrl(QStringLiteral("file:///one.wav")), QUrl(QStringLiteral("file:///two.wav"))});
         s.runLoop.advance(1.0);
     }},
    {"dropping", 1, "Drop sound files here to import them",
     [](Shell& s) {
         showLibrary(s);
         QMimeData files;
         files.setUrls({QUrl(QStringLiteral("file:///one.wav"))});
         QDragEnterEvent event({200, 200}, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
         QCoreApplication::sendEvent(s.window, &event);
     }},
    {"undo", 1, "Undo",
     [](Shell& s) {
         showLibrary(s), s.key(Qt::Key_Down), s.key(Qt::Key_Delete), s.presenter.choose(1), s.runLoop.advance(0.2);
     }},
    {"save", 1, "Export|Home|STICK|Talks 2|Folder above|Cancel",
     [](Shell& s) {
         for (const char* folder : {"Media/STICK", "Interviews", "Talks 10", "Talks 2"}) {
             std::filesystem::create_directories(s.container.root() / folder);
         }
         showLibrary(s);
         s.savePanel.presentForExport("/2024_Mar_05_14_03_59.m4a", [](const auto&) {});
         s.runLoop.drain();
     }},
    {"settings", 2, "Rate This App|More Apps|Report a Problem|Done", {}},
    {"settingsEnd", 2, "", [](Shell& s) { s.settle(), s.item("reportBug")->forceActiveFocus(Qt::TabFocusReason); }},
    {"cloudPlace", 2, "Where is your cloud?|A WebDAV server|!Disconnect",
     [](Shell& s) { s.settle(), s.tap("icloud"); }},
    {"cloudServer", 2, "Connect|Password|!Disconnect",
     [](Shell& s) {
         s.settle(), s.tap("icloud"), s.tap("cloudServer"),
             s.item("cloudAddress")->setProperty("text", QStringLiteral("https://c.example/dav/"));
         s.connection.answer = failure(QStringLiteral("The server refuses the user or the password."));
         s.fakeLibrary.reachability.flags = ReachabilityFlags{.reachable = true};
         s.tap("cloudConnect"), s.runLoop.drain();
     }},
    {"cloudConnecting", 2, "Testing the connection…",
     [](Shell& s) {
         s.settle(), s.tap("icloud"), s.cloudPage.connectToServer(QStringLiteral("http://localhost/"), {}, {});
     }},
    {"cloudAccount", 2, "Sync Now|Disconnect|https://cloud.example.org/remote.php/dav/files/anna/Recordings/, as anna",
     [](Shell& s) {
         s.connection.place = CloudAccount::server(
             QStringLiteral("https://cloud.example.org/remote.php/dav/files/anna/Recordings"), QStringLiteral("anna"));
         s.connection.how = {CloudCondition::State::Troubled, QDateTime({2026, 11, 23}, {19, 30}),
                             QStringLiteral("The server is full. What waits is sent once there is room."), 0};
         s.settings.setCloudSyncOn(true), s.settingVC.loadData(), s.cloudPage.open();
     }},
    {"cloudFolder", 2, "Choose the Cloud Folder|Folder above|!Name",
     [](Shell& s) {
         std::filesystem::create_directories(s.container.root() / "Synced");
         s.settle(), s.tap("icloud"), s.tap("cloudFolder"), s.runLoop.drain();
     }},
    {"rating", 0, "Do You Like This Recorder?|No, Thanks|Rate It Now|Ask Me Later",
     [](Shell& s) {
         s.rating.store.setStoreIdentifier(QStringLiteral("com.example.store"));
         s.rating.rater.showRater();
         s.runLoop.advance(AppRater::kMoment);
     }},
    {"settingsHeld", 2, "no extention|no quality|!no rewind", [](Shell& s) { s.formatHold.setHeld(true); }},
    {"sheet", 2, "", [](Shell& s) { s.settingVC.showExtentionActionsheet(); }},
    {"alert", 0, "",
     [](Shell& s) { presentAlert(s, QStringLiteral("This cannot be undone. لا يمكن التراجع عن هذا.")); }},
    {"alertOne", 0, "",
     [](Shell& s) {
         s.presenter.presentAlert({qtTrId("microphone_denied"), qtTrId("access_device_microphone"), {{qtTrId("OK")}}});
     }},
    {"alertLong", 1, "", [](Shell& s) { showLibrary(s), presentAlert(s, kLongText); }},
    {"trimmer", 1, "", trim},
    {"trimmerCrowded", 1, "1:13.50 – 1:15.00 · 1.5 s",
     [](Shell& s) { s.trim(addTalk(s)).selection()->nudge(true, 73.5); }},
    {"trimmerFocus", 1, "", [](Shell& s) { trim(s), s.item("rightThumb")->forceActiveFocus(Qt::TabFocusReason); }},
    {"trimmerZoomed", 1, "2.5×", [](Shell& s) { trim(s), s.trimmers.screen()->zoom()->show(0.1, 0.5); }},
    {"trimmerPlaying", 1, "",
     [](Shell& s) { trim(s), s.trimmers.screen()->btnPlayPauseTapped(), s.runLoop.drain(), s.runLoop.advance(14.1); }},
    {"trimmerExporting", 1, "40 %|no btnCancel|no btnReset|!no btnCancelExport",
     [](Shell& s) {
         s.assets.areExportsHeldBack = true;
         trim(s), s.trimmers.screen()->btnUploadTapped();
         s.assets.sessions.back()->progress = 0.4F;
         s.runLoop.advance(0.1);
     }},
    {"trimmerRecording", 1, "", [](Shell& s) { trim(s), s.trimmers.screen()->btnResetAudioTapped(); }},
    {"passcodeUnlock", 1, "Enter your passcode|2 of 4 digits entered|Delete|!Cancel", unlock},
    {"passcodeVerify", 2, "Enter your passcode|Cancel",
     [](Shell& s) { s.passcode.disablePasscodeProtectionWithCompletion({}); }},
    {"passcodeSetup", 2, "Enter a new passcode|0 of 4 digits entered|Cancel",
     [](Shell& s) { s.passcode.setupNewPasscodeWithCompletion({}); }},
    {"passcodeChange", 2, "Enter your old passcode|Cancel",
     [](Shell& s) { s.passcode.changePasscodeWithCompletion({}); }},
    {"passcodeTrouble", 1, "The keyring that keeps your passcode is locked. Unlock it, and then try again.",
     [](Shell& s) {
         s.keychain.troubleText =
             QStringLiteral("The keyring that keeps your passcode is locked. Unlock it, and then try again.");
         unlock(s);
     }},
    {"passcodeCover", 1, "Locked|!Enter your passcode",
     [](Shell& s) {
         unlock(s);
         s.notifications.postNotification(applicationnotification::kDidEnterBackground);
     }},
    {"trimmerUnreadable", 1, "", [](Shell& s) { s.trim(s.container.addDocument("text.txt", "text")); }},
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

/// What is seen of an item at most: what clips it may leave less.
QRectF shownRect(const QQuickItem& item) {
    QRectF rect = sceneRect(item).adjusted(1, 1, -1, -1);
    for (const QQuickItem* one = item.parentItem(); one != nullptr; one = one->parentItem()) {
        rect = one->clip() ? rect & sceneRect(*one) : rect;
    }
    return rect;
}

/// Controls that can be used can be reached, hit and named; texts lie inside the window and are not cut where they
/// should fit.
void checkItems(const UserWindow& shown, bool isCovered) {
    const QRectF window(QPointF(), shown.window->size());
    QList<QQuickItem*> controls;
    for (QQuickItem* item : shown.visibleItems()) {
        SCOPED_TRACE(qPrintable(describe(*item)));
        if (item->inherits("QQuickText")) {
            EXPECT_TRUE(scrolls(item) || window.contains(sceneRect(*item)));
            const bool mayElide = item->property("elide").toInt() != Qt::ElideNone;
            EXPECT_TRUE(mayElide || item->property("contentWidth").toDouble() <= item->width() + 0.5);
        }
        EXPECT_TRUE(!item->inherits("QQuickTextField") ||
                    !QAccessible::queryAccessibleInterface(item)->text(QAccessible::Name).isEmpty());
        if (!isControl(*item) || !item->isEnabled()) {
            continue;
        }
        EXPECT_GE(std::min(item->width(), item->height()), 44.0);
        EXPECT_TRUE(scrolls(item) || window.contains(sceneRect(*item)));
        QAccessibleInterface* access = QAccessible::queryAccessibleInterface(item);
        ASSERT_NE(access, nullptr);
        EXPECT_FALSE(access->text(QAccessible::Name).isEmpty());
        EXPECT_NE(access->role(), QAccessible::NoRole);
        EXPECT_NE(access->role(), QAccessible::Client);
        EXPECT_TRUE(access->state().focusable);
        for (const QQuickItem* other : controls) {
            const bool overlap = shownRect(*other).intersects(shownRect(*item));
            EXPECT_TRUE(!overlap || isCovered || scrolls(item) != scrolls(other)) << qPrintable(describe(*other));
        }
        controls.append(item);
    }
}

/// Holds a picture against the one that is kept of it, if one is, both made small: what is elsewhere, gone or of
/// another colour shows, letters that are drawn a little otherwise do not. Other releases' letters are not compared.
/// Renewed, after a look at each, with TAVI_PICTURES=DIR and tests/ui/references/renew DIR.
void compareWithReference(const QImage& picture, const QString& name) {
    const QImage kept(QStringLiteral(TAVI_REFERENCES "/%1.png").arg(name));
    if (kept.isNull() || QLibraryInfo::version() >= QVersionNumber(6, 5)) {
        return;
    }
    const QImage seen = picture.scaled(kept.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    EXPECT_LE(differences(kept, seen, 48), kept.width() * kept.height() / 500) << qPrintable(name);
}

/// With TAVI_PICTURES in the environment the pictures are saved there, to be looked at.
std::set<std::string> lookAtEverySize(const UserWindow& shown, const char* name, bool isCovered) {
    std::set<std::string> words;
    // The smallest is 320 pixels wide, with everything half as large again. Two are written from right to left.
    for (const auto& [size, direction] : {std::pair{QSize(390, 844), Qt::LeftToRight},
                                          {QSize(320, 568), Qt::LeftToRight},
                                          {QSize(844, 390), Qt::LeftToRight},
                                          {QSize(800, 600), Qt::LeftToRight},
                                          {QSize(1200, 800), Qt::LeftToRight},
                                          {QSize(213, 379), Qt::LeftToRight},
                                          {QSize(360, 640), Qt::RightToLeft},
                                          {QSize(840, 392), Qt::RightToLeft}}) {
        SCOPED_TRACE(::testing::Message() << name << " at " << size.width() << "x" << size.height());
        shown.window->resize(size);
        QGuiApplication::setLayoutDirection(direction);
        const QImage picture = (shown.settle(), checkItems(shown, isCovered), shown.settle());
        words.merge(shown.words());
        const QString file = QStringLiteral("%1-%2").arg(QLatin1String(name)).arg(size.width());
        compareWithReference(picture, file);
        const QString folder = qEnvironmentVariable("TAVI_PICTURES");
        if (!folder.isEmpty()) {
            EXPECT_TRUE(QDir().mkpath(folder));
            EXPECT_TRUE(picture.save(QStringLiteral("%1/%2.png").arg(folder, file)));
        }
    }
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    return words;
}

class Screens : public ::testing::TestWithParam<State> {};

TEST_P(Screens, FitEverySize) {
    Shell shell;
    shell.tabBar.setSelectedIndex(GetParam().tab);
    if (GetParam().prepare) {
        GetParam().prepare(shell);
    }
    const auto words = lookAtEverySize(shell, GetParam().name, shell.presenter.isActive());
    for (const QString& part : QString::fromUtf8(GetParam().words).split(u'|', Qt::SkipEmptyParts)) {
        const bool isAbsent = part.startsWith(u'!');
        EXPECT_NE(words.contains(part.mid(isAbsent ? 1 : 0).toStdString()), isAbsent) << qPrintable(part);
    }
}

INSTANTIATE_TEST_SUITE_P(All, Screens, ::testing::ValuesIn(kStates),
                         [](const auto& state) { return state.param.name; });

TEST(TrimScreen, FitsEverySizeAndFollowsTheMouseAndTheKeys) {
    FakeServices fakes;
    FakePresenter presenter;
    FakeNotices notices;
    fakes.settings.setCloudSyncOn(true);
    AudioTrim screen({fakes.assets, fakes.assets, fakes.players, fakes.settings, fakes.container, presenter, notices,
                      fakes.runLoop, fakes.cloud},
                     addTalk(fakes), QStringLiteral("1"));
    screen.viewDidLoad();
    UserWindow shown;
    shown.show(R"(
        import QtQuick
        import Tavi.Trimming
        import Tavi.Ui
        Window {
            id: window
            required property AudioTrim controller
            visible: true
            width: 390
            height: 844
            Binding { target: Theme; property: "window"; value: Qt.size(window.width, window.height) }
            AudioTrimScreen { anchors.fill: parent; screen: window.controller }
        })",
               {{QStringLiteral("controller"), QVariant::fromValue(&screen)}});
    QQuickItem* thumb = shown.item("minThumb");
    shown.drag(*thumb, 60.0);
    EXPECT_GT(screen.leftValue(), 10.0);
    lookAtEverySize(shown, "trimScreen", false);
    const double before = screen.leftValue();
    auto* actions = QAccessible::queryAccessibleInterface(thumb)->actionInterface();
    for (const auto& [action, seconds] :
         {std::pair{actions->increaseAction(), 1.0}, {actions->decreaseAction(), 0.0}}) {
        actions->doAction(action);
        EXPECT_NEAR(screen.leftValue(), before + seconds, 0.01);
    }
    shown.item("maxThumb")->forceActiveFocus(Qt::TabFocusReason);
    shown.key(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_NEAR(screen.rightValue(), 72.0, 0.01);
    for (const auto& [movement, seconds] : {std::pair{900.0, 71.0}, {-2000.0, 0.0}}) {
        shown.drag(*thumb, movement);
        EXPECT_NEAR(screen.leftValue(), seconds, 0.01) << "a second stays, and the ends are the ends";
    }
    for (const int trims : {1, 2}) {
        shown.item("btnTrim")->forceActiveFocus(Qt::TabFocusReason);
        const bool isTrimming = (shown.key(Qt::Key_Space), shown.words().contains("no btnClose"));
        EXPECT_TRUE(isTrimming) << "covered while it trims";
        for (const int key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Tab, Qt::Key_Space, Qt::Key_Right}) {
            shown.key(key);
        }
        shown.tap("btnTrim");
        EXPECT_EQ(fakes.assets.sessions.size(), static_cast<std::size_t>(trims)) << "covered while it trims";
        EXPECT_NEAR(screen.leftValue(), 0.0, 0.01);
        fakes.runLoop.drain();
        shown.settle();
    }
    shown.key(Qt::Key_Escape);
    EXPECT_EQ(presenter.alerts.size(), 1U) << "whether to keep what was cut";
}

TEST(Settings, ControlsShowWhatTheScreenDecides) {
    Shell shell;
    shell.tabBar.setSelectedIndex(2);
    shell.settle();
    shell.tap("icloud");
    shell.key(Qt::Key_Escape);
    EXPECT_FALSE(shell.item("icloud")->property("checked").toBool()) << "there is no cloud yet";
    shell.connection.place.kind = CloudAccount::Kind::Folder;
    shell.tap("icloud");
    EXPECT_TRUE(shell.settings.isCloudSyncOn());
    EXPECT_TRUE(shell.item("icloud")->property("checked").toBool());

    shell.tap("passcodeLock");
    shell.key(Qt::Key_Escape);
    EXPECT_FALSE(shell.item("passcodeLock")->property("checked").toBool()) << "it was given up";

    QQuickItem* slider = shell.item("QQuickSlider");
    shell.drag(*slider, 0.0);  // Its middle is 32.5 seconds, which the screen rounds.
    EXPECT_DOUBLE_EQ(shell.settingVC.rewindValue(), 35.0);
    EXPECT_DOUBLE_EQ(slider->property("value").toDouble(), 35.0);
    slider->forceActiveFocus(Qt::TabFocusReason);
    std::vector<double> seconds;
    for (const int key : {Qt::Key_Left, Qt::Key_PageUp, Qt::Key_End, Qt::Key_PageDown, Qt::Key_Home}) {
        shell.key(key);
        seconds.push_back(shell.settingVC.rewindValue());
    }
    EXPECT_EQ(seconds, (std::vector{30.0, 50.0, 60.0, 40.0, 5.0}));
    shell.item("quality")->forceActiveFocus(Qt::TabFocusReason);
    for (const auto& [key, isAsked] : {std::pair{Qt::Key_Enter, true}, {Qt::Key_Escape, false}}) {
        shell.key(key);
        EXPECT_EQ(shell.presenter.isActive(), isAsked);
    }
    shell.notices.postNotice({QStringLiteral("A line over the last row")});
    shell.settle();
    const QQuickItem* row = shell.item("reportBug");
    shell.item("reportBug")->forceActiveFocus(Qt::TabFocusReason);
    EXPECT_LE(row->mapToScene({0.0, row->height()}).y(), shell.item("notice")->mapToScene({0.0, 0.0}).y());
}

TEST(AssistiveTechnology, OperatesTheControls) {
    Shell shell;
    const auto act = [&shell](const char* name, const QString& action) {
        QAccessible::queryAccessibleInterface(shell.item(name))->actionInterface()->doAction(action);
        shell.settle();
    };
    act("btnRecord", QAccessibleActionInterface::pressAction());
    EXPECT_EQ(shell.session.questions.size(), 1U);
    act("btnStop", QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(std::filesystem::is_empty(shell.container.documentsPath())) << "the stop button is disabled";
    shell.tabBar.setUserInteractionEnabled(false);
    act("tab2", QAccessibleActionInterface::pressAction());
    EXPECT_EQ(shell.tabBar.selectedIndex(), 0);
    shell.tabBar.setUserInteractionEnabled(true);
    act("tab2", QAccessibleActionInterface::pressAction());
    EXPECT_EQ(shell.tabBar.selectedIndex(), 2);
    // What a reader that comes late finds.
    QAccessible::setActive(false);
    QAccessible::setActive(true);
    const auto* tab = QAccessible::queryAccessibleInterface(shell.item("tab2"));
    EXPECT_EQ(tab->role(), QAccessible::PageTab);
    EXPECT_TRUE(tab->state().selected);
    act("quality", QAccessibleActionInterface::pressAction());
    const auto* medium = QAccessible::queryAccessibleInterface(shell.item("action1"));
    EXPECT_TRUE(medium->role() == QAccessible::RadioButton && medium->state().checked);
    shell.key(Qt::Key_Escape);
    act("quickMail", QAccessibleActionInterface::toggleAction());
    const QAccessible::State mail = QAccessible::queryAccessibleInterface(shell.item("quickMail"))->state();
    EXPECT_TRUE(mail.checkable && mail.checked);
    EXPECT_TRUE(shell.settings.isQuickMailOn());
}

TEST(Library, HandsAndKeysFindTheirWay) {
    Shell shell(fillLibrary);
    shell.tabBar.setSelectedIndex(1);
    shell.settle();
    for (const auto& [button, words] : {std::pair{"btnSortSize", "Sorted by Size, ascending"},
                                        {"btnSortSize", "Sorted by Size, descending"},
                                        {"btnSortDate", "Sorted by Date, ascending"},
                                        {"btnSortName", "Sorted by Name, ascending"}}) {
        EXPECT_TRUE((shell.tap(button), shell.words()).contains(words)) << words;
    }

    const QQuickItem* list = shell.item("tableView");
    const double titleHeight = 44.0;
    for (const auto& [key, row] : {std::pair{Qt::Key_End, 25}, {Qt::Key_PageUp, 15}, {Qt::Key_Home, 0}}) {
        shell.key(key);
        EXPECT_EQ(list->property("currentIndex").toInt(), row);
    }
    shell.key(Qt::Key_End);
    EXPECT_EQ(shell.item("btnSortName")->mapToScene({0.0, 0.0}).y(), 0.0) << "the title scrolls away, the order stays";
    EXPECT_NEAR(sceneRect(*shell.item("scrollMark")).bottom(), sceneRect(*list).bottom(), 1.0);
    shell.key(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(shell.item("btnSortName")->mapToScene({0.0, 0.0}).y(), titleHeight);
    EXPECT_TRUE(shell.item("search")->hasActiveFocus());
    shell.key(Qt::Key_Escape);
    EXPECT_TRUE(list->hasActiveFocus());
    EXPECT_LT(shell.item("find")->mapToScene({0.0, 0.0}).y(), 0.0) << "an empty search does not stay";

    shell.players.seconds[shell.table.arrRecordings().back().nativeName()] = 60.0;
    const QQuickItem* last = list->property("currentItem").value<QQuickItem*>();
    shell.key(Qt::Key_Up);
    const int interval = QGuiApplication::styleHints()->mouseDoubleClickInterval();
    QGuiApplication::styleHints()->setMouseDoubleClickInterval(60'000);
    for (int click = 0; click < 2; ++click) {
        shell.drag(*last, 0.0);
    }
    EXPECT_EQ(list->property("currentItem").value<QQuickItem*>(), last) << "the keys are about another row";
    QGuiApplication::styleHints()->setMouseDoubleClickInterval(interval);
    EXPECT_TRUE(shell.library.isPlaying()) << "a double click plays";
    const QObject* speed = shell.item("btnMedium")->property("contentItem").value<QObject*>();
    EXPECT_TRUE(speed->property("font").value<QFont>().bold()) << "not by its colour alone";
    shell.item("slider_player")->forceActiveFocus(Qt::TabFocusReason);
    for (const auto& [key, seconds] : {std::pair{Qt::Key_L, 30.0}, {Qt::Key_J, 20.0}, {Qt::Key_PageUp, 26.0}}) {
        shell.key(key);
        EXPECT_NEAR(shell.player.currentTime(), seconds, 0.1);
    }
    for (const char* spoken : {"a11y_row_playing", "a11y_row_paused"}) {
        EXPECT_TRUE(QAccessible::queryAccessibleInterface(list->property("currentItem").value<QQuickItem*>())
                        ->text(QAccessible::Description)
                        .endsWith(qtTrId(spoken)));
        shell.tap("btnplaypuas");
    }
    const QQuickItem* slider = shell.item("slider_player");
    shell.mouse(QEvent::MouseMove, slider->mapToScene({slider->width() * 0.76, 30.0}), false);
    EXPECT_TRUE((shell.settle(), shell.words()).contains("00:45")) << "the moment under the pointer";
    shell.item("stopAudio")->forceActiveFocus(Qt::TabFocusReason);
    shell.key(Qt::Key_Return);
    EXPECT_FALSE(shell.library.isPanelShown());
    EXPECT_TRUE(list->hasActiveFocus()) << "the keyboard is not lost with the player";

    // A row's actions: a right click and arrow keys lead to a new name, which Enter gives; Enter alone deletes nothing.
    shell.key(Qt::Key_Home);
    shell.drag(*list->property("currentItem").value<QQuickItem*>(), 0.0, Qt::RightButton);
    for (const int key : {Qt::Key_Return, Qt::Key_Down, Qt::Key_Return}) {
        shell.key(key);
    }
    EXPECT_TRUE(shell.item("field")->hasActiveFocus());
    shell.key(Qt::Key_A, Qt::NoModifier, QStringLiteral("A"));
    for (const int key : {Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Return, Qt::Key_Delete, Qt::Key_Return}) {
        shell.key(key);
    }
    shell.runLoop.advance(0.2);
    EXPECT_EQ(shell.table.rowOf(0, "A.m4a"),
              list->property("currentItem").value<QQuickItem*>()->property("row").toInt());
    EXPECT_FALSE(shell.presenter.isActive());

    shell.window->resize(390, 600);
    for (int recording = 0; recording < 2; ++recording) {
        shell.key(Qt::Key_Return);
        shell.tap("unfold");
        EXPECT_TRUE(shell.item("fold")->isVisible());
        shell.key(Qt::Key_Escape);
    }
    shell.key(Qt::Key_Return);
    shell.item("stopAudio")->forceActiveFocus(Qt::TabFocusReason);
    shell.key(Qt::Key_Return);
    EXPECT_TRUE(list->hasActiveFocus()) << "the keyboard is not lost with the small player";
    shell.key(Qt::Key_F, Qt::ControlModifier);
    shell.key(Qt::Key_9, Qt::NoModifier, QStringLiteral("9"));
    EXPECT_LT(list->property("count").toInt(), 26);
    shell.key(Qt::Key_Escape);
    EXPECT_EQ(list->property("count").toInt(), 26) << "without a search all are there";
}

}  // namespace
}  // namespace tavi::test
