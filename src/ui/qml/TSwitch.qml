import QtQuick
import Tavi.Ui
import QtQuick.Templates as T

/// A row with a text and a switch at its end; the whole row turns it.
T.Switch {
    id: control

    /// What the switch stands for; a turn of the user's that the owner does not adopt springs back.
    required property bool on
    signal turned(bool on)

    implicitHeight: 45
    leftPadding: Theme.margin
    rightPadding: Theme.margin
    focusPolicy: Qt.TabFocus
    opacity: enabled ? 1.0 : Theme.disabledOpacity
    font.family: Theme.family
    font.pixelSize: Theme.textSize
    Accessible.role: Accessible.CheckBox
    Accessible.name: text
    Accessible.checkable: true
    Accessible.checked: checked
    Accessible.onPressAction: turned(!on)
    Accessible.onToggleAction: turned(!on)
    Keys.onReturnPressed: turned(!on)
    Keys.onEnterPressed: turned(!on)
    checked: on
    onToggled: {
        control.turned(control.checked)
        control.checked = Qt.binding(() => control.on)
    }

    contentItem: Label {
        text: control.text
        font: control.font
        elide: Text.ElideRight
        rightPadding: indicator.width + 12
    }

    indicator: Rectangle {
        id: indicator

        x: control.width - width - control.rightPadding
        y: (control.height - height) / 2
        width: 50
        height: 30
        radius: height / 2
        color: control.checked ? Theme.switchTint : "#39393d"

        Rectangle {
            x: control.checked ? parent.width - width - 2 : 2
            y: 2
            width: 26
            height: 26
            radius: 13
            color: Theme.text
        }
    }

    background: Rectangle {
        color: control.down ? Theme.header : "transparent"

        FocusFrame {
            anchors.fill: parent
            control: control
            radius: 0
        }
    }
}
