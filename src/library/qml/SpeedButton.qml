import QtQuick
import Tavi.Ui
import QtQuick.Templates as T

/// One part of the joined control of speeds; filled while that is how fast the recording plays.
T.Button {
    id: control

    required property string name
    required property bool selected
    /// Its outer end is round.
    property bool isFirst: false
    property bool isLast: false

    implicitWidth: 57
    implicitHeight: Theme.touch
    focusPolicy: Qt.TabFocus
    opacity: enabled ? 1.0 : Theme.disabledOpacity
    Accessible.role: Accessible.RadioButton
    Accessible.name: name
    Accessible.checkable: true
    Accessible.checked: selected
    Accessible.onPressAction: if (enabled) clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    contentItem: Label {
        text: control.text
        color: control.selected ? Theme.text : Theme.light
        font.pixelSize: 15
        font.weight: control.selected ? Font.Bold : Font.Normal
        horizontalAlignment: Text.AlignHCenter
    }

    background: Item {
        // Round at an end of the control, square where the next part begins.
        Rectangle {
            id: fill

            anchors.fill: parent
            anchors.margins: 1
            visible: control.selected || control.down || control.hovered
            radius: control.isFirst || control.isLast ? height / 2 : 0
            color: control.selected ? (control.down ? "#a01d23" : Theme.accent) : control.down ? Theme.panel : Theme.pressed
        }

        Rectangle {
            x: control.isFirst ? parent.width / 2 : control.isLast ? 0 : 1
            y: 1
            width: control.isFirst || control.isLast ? parent.width / 2 : 0
            height: parent.height - 2
            visible: fill.visible
            color: fill.color
        }

        FocusFrame {
            anchors.fill: parent
            anchors.margins: 4
            radius: height / 2
            control: control
        }
    }
}
