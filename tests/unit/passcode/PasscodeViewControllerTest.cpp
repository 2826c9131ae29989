#include "passcode/PasscodeViewController.h"

#include <gmock/gmock.h>

#include "passcode/PasscodeCircularButton.h"
#include "support/FakeServices.h"

namespace tavi::test {
namespace {

/// Writes down what it is told, by a letter: verified, set up, cancelled.
struct Delegate : PasscodeViewControllerDelegate {
    void didVerifyPasscode() override { told += 'V'; }
    void didSetupPasscode() override { told += 'S'; }
    void passcodeSetupCancelled() override { told += 'C'; }
    void passcodeVerificationFailed() override { told += 'F'; }

    std::string told;
};

struct PasscodeViewControllerTest : ::testing::Test, FakeServices {
    PasscodeViewControllerTest() { store.setPasscode(QStringLiteral("1234")); }

    /// Presses the digits of a script, "<" for the button beside them, and lets a tenth of a second pass at "."; what
    /// the delegate heard then, with "~" for a shake, the instruction, how many dots are filled, and that button.
    std::string play(PasscodeType type, const char* script) {
        Delegate delegate;
        PasscodeViewController screen(type, delegate, {store, appearance, runLoop});
        QObject::connect(&screen, &PasscodeViewController::shakeRequested, &screen,
                         [&delegate] { delegate.told += '~'; });
        screen.viewWillAppear();
        for (const char key : std::string_view(script)) {
            if (key == '.') {
                runLoop.advance(0.1);
            } else if (key == '<') {
                screen.cancelOrDeleteBtnPressed();
            } else {
                screen.passcodeBtnPressed(key - '0');
            }
        }
        std::string dots;
        for (const QObject* dot : screen.passcodeEntryViews()) {
            dots += dot->property("filled").toBool() ? 'o' : '-';
        }
        const QString button =
            screen.isCancelOrDeleteHidden() ? QStringLiteral("no") : screen.btnCancelOrDelete().title;
        return delegate.told + "|" + screen.lblInstruction().text.toStdString() + "|" + dots + "|" +
               button.toStdString();
    }

    PasscodeStore store{settings, keychain, runLoop.clock()};
    PasscodeAppearance appearance;
};

TEST_F(PasscodeViewControllerTest, CollectsFourDigitsAndJudgesThem) {
    using enum PasscodeType;
    const struct {
        PasscodeType type;
        const char *script, *expected;
    } cases[] = {
        {Unlock, "", "|password|----|no"},
        {Unlock, "1", "|password|o---|Delete"},
        {Unlock, "1<", "|password|----|no"},
        {Unlock, "12345", "|password|oooo|Delete"},
        {Unlock, "1234.", "V|password|oooo|Delete"},
        {Unlock, "1243.", "~|password|----|no"},
        {Unlock, "1243.1234.", "~V|password|oooo|Delete"},
        {Unlock, "1243.<", "~|password|----|no"},
        {Unlock, "1234<.", "~|password|----|no"},
        {Verify, "", "|password|----|Cancel"},
        {Verify, "<", "C|password|----|Cancel"},
        {Verify, "12<<", "|password|----|Cancel"},
        {Verify, "1243.<", "~C|password|----|Cancel"},
        {Verify, "1234.", "V|password|oooo|Delete"},
        {Setup, "", "|new_pass|----|Cancel"},
        {Setup, "5678.", "|Re_pass|----|Cancel"},
        {Setup, "5678.<", "C|Re_pass|----|Cancel"},
        {Setup, "5678.5679.", "~|new_pass|----|Cancel"},
        {Setup, "5678.5679.5679.", "~|Re_pass|----|Cancel"},
        {Setup, "5678<.", "|Re_pass|----|Cancel"},
        {Setup, "5678<.5678.", "~|new_pass|----|Cancel"},
        {Setup, "0000.0000.", "S|Re_pass|oooo|Delete"},
        {Change, "", "|old_pass|----|Cancel"},
        {Change, "1234.", "~|old_pass|----|Cancel"},
        {Change, "0000.", "|new_pass|----|Cancel"},
        {Change, "0000.<", "C|new_pass|----|Cancel"},
        {Change, "0000.5678.5679.5678.5678.", "~S|Re_pass|oooo|Delete"},
        {Unlock, "5678.", "V|password|oooo|Delete"},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(play(row.type, row.script), row.expected) << row.script;
    }
}

TEST_F(PasscodeViewControllerTest, NoEntryIsRightWhereNoneCanBeReadAndTheScreenSaysWhy) {
    const struct {
        QVariant stored;
        const char *keychainTrouble, *script, *atFirst, *afterEntry;
    } cases[] = {{QStringLiteral("1234"), "", "1243.", "", ""},
                 {QStringLiteral("1234"), "locked", "1234.", "locked", "locked"},
                 {{}, "", "<", "", ""},
                 {{}, "", "1234.", "", "passcode_missing"},
                 {1234, "", "1234.", "", "passcode_missing"}};
    for (const auto& row : cases) {
        keychain.values.insert(passcodekey::kPasscode, row.stored);
        keychain.troubleText = QLatin1String(row.keychainTrouble);
        Delegate delegate;
        PasscodeViewController screen(PasscodeType::Unlock, delegate, {store, appearance, runLoop});
        screen.viewWillAppear();
        QString shown = screen.trouble();
        QObject::connect(&screen, &PasscodeViewController::outletsChanged, [&] { shown = screen.trouble(); });
        EXPECT_EQ(shown, QLatin1String(row.atFirst));
        EXPECT_FALSE(store.isPasscodeCorrect(QString()));
        for (const char* key = row.script; *key != '.' && *key != '<'; ++key) {
            EXPECT_TRUE(screen.typed(QString(QLatin1Char(*key))));
        }
        runLoop.advance(0.1);
        EXPECT_EQ(delegate.told + shown.toStdString(), row.afterEntry);
        keychain.troubleText.clear();
        screen.troubleChanged();
        EXPECT_EQ(shown, QString());
    }
}

TEST_F(PasscodeViewControllerTest, KeyboardsTypeDigitsOfAnyScriptAndEscapeAndDeleteDoTheirOwn) {
    Delegate delegate;
    PasscodeViewController screen(PasscodeType::Verify, delegate, {store, appearance, runLoop});
    screen.viewWillAppear();
    screen.deletePressed();
    EXPECT_EQ(delegate.told, "") << "the button says Cancel";
    for (const auto& [text, isDigit] :
         {std::pair{u"a", false}, {u"", false}, {u"12", false}, {u"1", true}, {u"٢", true}}) {
        EXPECT_EQ(screen.typed(QString::fromUtf16(text)), isDigit);
    }
    screen.cancelPressed();
    EXPECT_EQ(delegate.told, "") << "the button says Delete";
    screen.deletePressed();
    EXPECT_EQ(screen.numberOfDigitsEntered(), 1);
    screen.viewWillAppear();
    EXPECT_EQ(screen.numberOfDigitsEntered(), 0) << "what is half typed does not survive";
    screen.cancelPressed();
    EXPECT_EQ(delegate.told, "C");
}

TEST_F(PasscodeViewControllerTest, KeysAreDrawnInTheirStyles) {
    const auto style = [](const char* line) {
        PasscodeButtonStyle made;
        made.lineColor = QLatin1String(line);
        made.titleColor = QStringLiteral("title");
        return made;
    };
    Delegate delegate;
    PasscodeViewController screen(PasscodeType::Unlock, delegate, {store, appearance, runLoop});
    const auto line = [&screen](int key) {
        screen.viewWillAppear();
        return screen.passcodeButtons().at(key)->property("strokeColor").toString().toStdString();
    };
    EXPECT_EQ(line(3), "#000000");
    appearance.buttonStyleProvider.addStyle(style("three"), 3);
    EXPECT_EQ(line(3) + line(4), "three#000000");
    appearance.buttonStyleProvider.addStyle(style("all"), PasscodeButtonStyleProvider::kAllButtons);
    EXPECT_EQ(line(3) + line(4), "allall");

    auto& key = *qobject_cast<PasscodeCircularButton*>(screen.passcodeButtons().at(7));
    const auto look = [&key] {
        return (key.title() + key.strokeColor() + key.fillColor() + key.titleColor()).toStdString();
    };
    EXPECT_EQ(look(), "7all#00000000all") << "the digit begins in the line's colour";
    key.setHighlighted(true);
    EXPECT_EQ(look(), "7#ffffff#000000#ffffff");
    key.setHighlighted(false);
    EXPECT_EQ(look(), "7all#00000000title");
    EXPECT_EQ(std::pair(screen.passcodeButtonSize(), screen.logoDistance()), std::pair(65, 120));
    screen.setTablet(true);
    EXPECT_EQ(std::pair(screen.passcodeButtonSize(), screen.logoDistance()), std::pair(80, 130));
}

TEST_F(PasscodeViewControllerTest, TheShakeDiesDownWithinItsTime) {
    Delegate delegate;
    PasscodeViewController screen(PasscodeType::Unlock, delegate, {store, appearance, runLoop});
    screen.viewWillAppear();
    QList<double> offsets;
    double seconds = 0.0;
    QObject::connect(&screen, &PasscodeViewController::shakeRequested, &screen,
                     [&](const QList<double>& at, double time) {
                         offsets = at;
                         seconds = time;
                     });
    for (int i = 0; i < 4; ++i) {
        screen.passcodeBtnPressed(9);
    }
    runLoop.advance(0.09);
    EXPECT_EQ(seconds, 0.0) << "the last dot is seen filled first";
    runLoop.advance(0.01);
    EXPECT_EQ(seconds, 0.75);
    EXPECT_THAT(offsets, ::testing::Pointwise(::testing::DoubleNear(1e-9),
                                              {-30.0, 21.0, -14.7, 10.29, -7.203, 5.0421, -3.52947, 2.470629}));
}

}  // namespace
}  // namespace tavi::test
