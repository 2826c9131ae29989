#pragma once

#include <QHash>
#include <QString>

namespace tavi {

// Colours are as QML reads them, "#rrggbb" or "#aarrggbb".

/// Letters of a family, points high. The shell's own letters stand for a family that is not there; empty for them.
struct PasscodeFont {
    QString family;
    double pointSize = 15.0;

    bool operator==(const PasscodeFont&) const = default;
};

/// How a key of the entry screen looks, at rest and pressed.
struct PasscodeButtonStyle {
    QString lineColor = QStringLiteral("#000000");
    QString titleColor = QStringLiteral("#000000");
    QString fillColor = QStringLiteral("#00000000");
    QString selectedLineColor = QStringLiteral("#ffffff");
    QString selectedTitleColor = QStringLiteral("#ffffff");
    QString selectedFillColor = QStringLiteral("#000000");
    PasscodeFont titleFont;

    bool operator==(const PasscodeButtonStyle&) const = default;
};

/// The styles of the keys by their numbers: 0 to 9 for the digits, kAllButtons for all of them at once.
class PasscodeButtonStyleProvider {
public:
    static constexpr int kAllButtons = 10;

    void addStyle(const PasscodeButtonStyle& style, int button) { m_buttonStyles.insert(button, style); }
    /// The style stored for that number, or the default one.
    PasscodeButtonStyle styleForButtonType(int button) const {
        return m_buttonStyles.value(button, defaultButtonStyle());
    }
    bool customStyleExistsForButtonType(int button) const { return m_buttonStyles.contains(button); }

    static PasscodeButtonStyle defaultButtonStyle() { return {}; }
    const QHash<int, PasscodeButtonStyle>& buttonStyles() const { return m_buttonStyles; }

private:
    QHash<int, PasscodeButtonStyle> m_buttonStyles;
};

/// How the entry screen looks.
struct PasscodeAppearance {
    QString backgroundColor = QStringLiteral("#ffffff");
    /// Names of images of the shell; empty for none.
    QString backgroundImage;
    QString logo;
    QString instructionsLabelColor = QStringLiteral("#000000");
    QString cancelOrDeleteButtonColor = QStringLiteral("#000000");
    QString passcodeViewLineColor = QStringLiteral("#000000");
    QString passcodeViewFillColor = QStringLiteral("#000000");
    /// Those of an error's text are kept, and nothing shows one, on purpose: a wrong passcode only shakes the dots.
    QString errorLabelColor = QStringLiteral("#ffffff");
    QString errorLabelBackgroundColor = QStringLiteral("#ff0000");
    PasscodeFont instructionsLabelFont;
    PasscodeFont cancelOrDeleteButtonFont;
    PasscodeFont errorLabelFont;
    PasscodeButtonStyleProvider buttonStyleProvider;
};

}  // namespace tavi
