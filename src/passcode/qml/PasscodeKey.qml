import QtQuick
import QtQuick.Templates as T
import Tavi.Passcode
import Tavi.Ui

/// A round key with a digit.
T.AbstractButton {
    id: key

    required property PasscodeCircularButton style

    height: width
    focusPolicy: Qt.TabFocus
    text: style.title
    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.onPressAction: clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    onDownChanged: style.highlighted = down

    contentItem: Label {
        text: key.text
        color: key.style.titleColor
        // As large in a smaller key as there is room.
        font.pixelSize: Math.min(key.style.titleSize, key.width * 0.54)
        horizontalAlignment: Text.AlignHCenter
        Accessible.ignored: true
    }

    background: Rectangle {
        radius: width / 2
        color: key.style.fillColor
        // Half a point is less than a picture's smallest part; a whole one is drawn sharp.
        border.width: 1
        border.color: key.style.strokeColor

        FocusFrame {
            control: key
            around: parent.radius
            inside: true
        }
    }
}
