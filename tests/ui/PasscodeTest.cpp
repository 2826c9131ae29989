#include <gmock/gmock.h>

#include <QDir>
#include <QFile>
#include <QMimeData>

#include "Shell.h"
#include "platform/Application.h"

namespace tavi::test {
namespace {

struct Passcode : ::testing::Test {
    void arm() {
        shell.passcode.setPasscode(QStringLiteral("1234"));
        shell.passcode.togglePasscodeProtection(true);
    }
    void post(const QString& name) {
        shell.notifications.postNotification(name);
        shell.settle();
    }
    void lock() {
        post(applicationnotification::kDidEnterBackground);
        post(applicationnotification::kWillEnterForeground);
    }
    void evaluate() {
        shell.runLoop.advance(0.1);
        shell.settle();
    }
    void type(const char* digits, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        for (const char digit : std::string_view(digits)) {
            shell.key(digit, modifiers, QString(QLatin1Char(digit)));
        }
        evaluate();
    }
    void tap(const char* digits) {
        for (const char digit : std::string_view(digits)) {
            shell.tap((std::string("key") + digit).c_str());
        }
        evaluate();
    }
    bool isShown() { return shell.passcode.isPasscodePresented(); }

    Shell shell;
};

TEST_F(Passcode, KeysTapsAndTheNumericPadEnterDigits) {
    shell.tabBar.setSelectedIndex(2);
    shell.settle();
    shell.tap("passcodeLock");
    tap("1234");
    tap("1235");
    EXPECT_TRUE(shell.words().contains("Enter a new passcode")) << "the two differ";
    tap("6789");
    type("678", Qt::KeypadModifier);
    shell.key(Qt::Key_Tab);
    shell.key(Qt::Key_Backspace);
    EXPECT_TRUE(shell.words().contains("2 of 4 digits entered"));
    tap("8");
    QAccessible::queryAccessibleInterface(shell.item("key9"))
        ->actionInterface()
        ->doAction(QAccessibleActionInterface::pressAction());
    evaluate();
    EXPECT_TRUE(shell.passcode.isPasscodeCorrect(QStringLiteral("6789")));
    EXPECT_TRUE(shell.item("passcodeLock")->property("checked").toBool());

    shell.tap("changePass");
    type("6789");
    tap("0051");
    shell.item("key0")->forceActiveFocus(Qt::TabFocusReason);
    for (const int key : {Qt::Key_Return, Qt::Key_Space}) {
        shell.key(key);
    }
    type("51");
    EXPECT_TRUE(shell.passcode.isPasscodeCorrect(QStringLiteral("0051")));

    shell.tap("passcodeLock");
    lock();
    type("0051");
    EXPECT_TRUE(shell.item("passcodeLock")->property("checked").toBool()) << "left before the end";
    shell.tap("passcodeLock");
    type("5100");
    EXPECT_TRUE(isShown());
    shell.tap("key5");
    shell.tap("btnCancelOrDelete");
    shell.key(Qt::Key_Escape);
    EXPECT_FALSE(isShown());
    EXPECT_TRUE(shell.item("passcodeLock")->property("checked").toBool()) << "it goes back";
    shell.tap("passcodeLock");
    type("0051");
    EXPECT_FALSE(shell.settings.isPasscodeProtectionOn());
    EXPECT_FALSE(shell.item("passcodeLock")->property("checked").toBool());
}

TEST_F(Passcode, NothingBelowIsSeenHeardOrOperatedAndAllOfItComesBack) {
    addTalk(shell);
    arm();
    shell.tabBar.setSelectedIndex(1);
    shell.settle();
    const auto alert = [this](const std::optional<QString>& field) {
        Alert asking{QStringLiteral("Secret"), {}, {{QStringLiteral("Yes")}}};
        asking.text = field;
        shell.presenter.presentAlert(asking);
    };
    const std::pair<const char*, std::function<void()>> cases[] = {
        {"the library", [] {}},
        {"a notice",
         [this] {
             shell.notices.postNotice({QStringLiteral("Secret"), QStringLiteral("Undo"), {}});
         }},
        {"the trimmer", [this] { shell.trim(shell.container.documentsPath() / "a.wav"); }},
        {"the shortcuts", [this] { shell.key(Qt::Key_F1); }},
        {"a half-typed name",
         [this, alert] {
             alert(QStringLiteral("Secret"));
             shell.settle();
             shell.key(Qt::Key_X, Qt::NoModifier, QStringLiteral("x"));
         }},
    };
    for (const auto& [name, open] : cases) {
        SCOPED_TRACE(name);
        open();
        shell.runLoop.advance(1.0);
        shell.settle();
        const auto before = shell.words();
        const QQuickItem* focused = shell.window->activeFocusItem();
        for (const char* stage : {"covered", "asked"}) {
            SCOPED_TRACE(stage);
            post(stage == std::string("covered") ? applicationnotification::kDidEnterBackground
                                                 : applicationnotification::kWillEnterForeground);
            for (const QQuickItem* layer : shell.window->contentItem()->childItems()) {
                const bool isSeen = layer->isVisible() && !layer->size().isEmpty();
                EXPECT_EQ(isSeen, layer->objectName() == u"lock") << layer->metaObject()->className();
            }
            const int tab = shell.tabBar.selectedIndex();
            for (const int key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Space, Qt::Key_F1, Qt::Key_T, Qt::Key_Tab}) {
                shell.key(key);
            }
            shell.key(Qt::Key_1, Qt::ControlModifier);
            EXPECT_EQ(shell.tabBar.selectedIndex(), tab);
            EXPECT_TRUE(shell.item("lock")->hasActiveFocus());
        }
        type("4321");
        type("1234");
        EXPECT_EQ(shell.words(), before);
        EXPECT_EQ(shell.window->activeFocusItem(), focused);
    }
    shell.key(Qt::Key_Escape);

    // What comes while it is locked waits, and gets no keys.
    lock();
    alert({});
    shell.settle();
    shell.key(Qt::Key_Return);
    EXPECT_TRUE(shell.presenter.isActive());
    type("1234");
    EXPECT_TRUE(shell.words().contains("Secret"));
    shell.key(Qt::Key_Return);
    EXPECT_FALSE(shell.presenter.isActive());
}

TEST_F(Passcode, WhatIsDroppedOnTheCoverComesInAfterwards) {
    arm();
    const auto drop = [this] {
        const QDir folder(QString::fromStdString(shell.container.root()));
        QFile file(folder.filePath(QStringLiteral("dropped.wav")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write("sound") == 5);
        QMimeData mime;
        mime.setUrls({QUrl::fromLocalFile(file.fileName())});
        QDragEnterEvent enter({9, 9}, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(shell.window, &enter);
        QDropEvent event({9, 9}, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(shell.window, &event);
        shell.runLoop.drain();
        shell.settle();
        return std::filesystem::exists(shell.container.documentsPath() / "dropped.wav");
    };
    EXPECT_TRUE(drop());
    EXPECT_TRUE(std::filesystem::remove(shell.container.documentsPath() / "dropped.wav"));
    shell.tabBar.setSelectedIndex(0);
    lock();
    EXPECT_FALSE(drop());
    type("1234");
    EXPECT_TRUE(std::filesystem::exists(shell.container.documentsPath() / "dropped.wav"));
    EXPECT_EQ(shell.tabBar.selectedIndex(), 1);
}

TEST_F(Passcode, FitsTheLeastWindow) {
    arm();
    shell.window->resize(280, 280);
    lock();
    tap("1234");
    EXPECT_FALSE(isShown());
    lock();
    const QRectF window(0.0, 0.0, 280.0, 280.0);
    QRectF last;
    for (const char* name : {"lblInstruction", "passcodeEntryViewsContainerView", "key1", "key4", "key7", "key0"}) {
        const QQuickItem* item = shell.item(name);
        const QRectF place = item->mapRectToScene(item->boundingRect());
        EXPECT_TRUE(window.contains(place) && place.top() >= last.bottom()) << name;
        last = place;
    }
    EXPECT_GE(last.height(), 44.0);
}

TEST(PasscodeAtStart, TheFirstFrameIsTheCover) {
    Shell shell([](Shell& s) { s.settings.setPasscodeProtectionOn(true); });
    EXPECT_TRUE(shell.words().contains("Locked"));
    EXPECT_FALSE(shell.words().contains("Record"));
    EXPECT_TRUE(shell.lockState.isLocked());
    EXPECT_EQ(shell.window->title(), QStringLiteral("Voice Recorder"));
}

}  // namespace
}  // namespace tavi::test
