import QtQuick
import Tavi.Ui
import QtQuick.Templates as T

/// A slider whose owner decides where it rests.
T.Slider {
    id: control

    /// Where the slider rests; wherever the user moves it, the owner's answer is shown.
    required property real rest
    signal slid(real value)

    implicitWidth: 160
    implicitHeight: Theme.touch
    leftPadding: 4
    rightPadding: 4
    focusPolicy: Qt.TabFocus
    opacity: enabled ? 1.0 : Theme.disabledOpacity
    live: true
    Accessible.role: Accessible.Slider
    Accessible.onIncreaseAction: slid(value + stepSize)
    Accessible.onDecreaseAction: slid(value - stepSize)
    value: rest
    onMoved: {
        control.slid(control.value)
        control.value = Qt.binding(() => control.rest)
    }

    background: Item {
        Rectangle {
            x: control.leftPadding
            anchors.verticalCenter: parent.verticalCenter
            width: control.availableWidth
            height: 4
            radius: 2
            color: Theme.control

            Rectangle {
                width: handle.x + handle.width / 2 - control.leftPadding
                height: parent.height
                radius: 2
                color: Theme.accent
            }
        }
    }

    handle: Icon {
        id: handle

        x: control.leftPadding + control.visualPosition * (control.availableWidth - width)
        y: (control.height - height) / 2
        width: 24
        height: 24
        name: "thumb_active.png"

        FocusFrame {
            anchors.fill: parent
            anchors.margins: -4
            radius: width / 2
            control: control
        }
    }
}
