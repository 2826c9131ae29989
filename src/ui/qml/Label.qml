import QtQuick
import Tavi.Ui

/// Text as the shell writes it. Never reads markup out of what users type.
Text {
    color: Theme.label
    font.family: Theme.family
    font.pixelSize: Theme.textBody
    textFormat: Text.PlainText
    // As the screen is laid out, whatever the words' own direction.
    horizontalAlignment: Text.AlignLeft
    verticalAlignment: Text.AlignVCenter
}
