import QtQuick
import Tavi.Recording
import QtQuick.Templates as T
import Tavi.Ui

/// A round button that is its picture.
T.AbstractButton {
    id: button

    required property string picture
    property color tint: Theme.text
    property int diameter: 88

    width: diameter
    height: diameter
    opacity: enabled ? 1.0 : Theme.disabledOpacity
    focusPolicy: Qt.TabFocus
    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.onPressAction: if (enabled) clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    contentItem: Item {
        Icon {
            anchors.fill: parent
            anchors.margins: button.down ? 2 : 0
            name: button.picture
            color: button.tint
        }
    }

    background: Item {
        FocusFrame {
            around: width / 2
            control: button
        }
    }
}
