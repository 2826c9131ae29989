import QtQuick
import Tavi.Trimming
import Tavi.Ui
import QtQuick.Templates as T

/// One end of the selection. Its grip lies outside of the stretch, so that the two can be told apart where they meet.
T.Slider {
    id: control

    required property TrimSelection selection
    required property bool isLeft
    readonly property real centre: isLeft ? selection.leftThumbX : selection.rightThumbX
    /// Seconds; what assistive technology sets the value to is one more drag.
    readonly property real minimumValue: from
    readonly property real maximumValue: to
    readonly property real place: Math.max(from, Math.min(isLeft ? selection.startTime : selection.endTime, to))

    x: Math.round(centre) - (isLeft ? width : 0)
    y: -10
    z: isLeft === selection.isLeftThumbInFront ? 1 : 0
    width: 44
    height: parent.height + 20
    objectName: isLeft ? "leftThumb" : "rightThumb"
    from: 0
    to: Math.max(selection.audioDuration, 0.001)
    stepSize: 1
    value: place
    focusPolicy: Qt.StrongFocus
    Accessible.role: Accessible.Slider
    Accessible.name: isLeft ? qsTrId("a11y_trim_start") : qsTrId("a11y_trim_end")
    Accessible.description: isLeft ? selection.spokenStart : selection.spokenEnd
    Accessible.onIncreaseAction: selection.nudge(isLeft, stepSize)
    Accessible.onDecreaseAction: selection.nudge(isLeft, -stepSize)
    onValueChanged: {
        if (Math.abs(value - place) > 0.0005) {
            selection.nudge(isLeft, value - place)
            value = Qt.binding(() => control.place)
        }
    }
    Keys.onPressed: event => {
        const step = event.modifiers & Qt.ShiftModifier ? 1 : 0.01
        if (event.key === Qt.Key_Left || event.key === Qt.Key_Down)
            selection.nudge(isLeft, -step)
        else if (event.key === Qt.Key_Right || event.key === Qt.Key_Up)
            selection.nudge(isLeft, step)
        else
            return
        event.accepted = true
    }

    Rectangle {
        id: bar

        x: (control.isLeft ? control.width : 0) - width / 2
        y: 10
        width: 4
        height: parent.height - 20
        color: Theme.text
    }

    Rectangle {
        x: control.isLeft ? bar.x - width + 4 : bar.x
        anchors.verticalCenter: parent.verticalCenter
        width: 26
        height: 64
        radius: 8
        color: area.pressed ? "#e2353d" : Theme.accent
        border.color: Theme.text
        border.width: 2

        Row {
            anchors.centerIn: parent
            spacing: 4

            Repeater {
                model: 2

                Rectangle {
                    width: 2
                    height: 20
                    radius: 1
                    color: Theme.text
                }
            }
        }

        FocusFrame {
            around: 8
            control: control
        }
    }

    MouseArea {
        id: area

        property real last: 0

        function across(mouse) {
            return mapToItem(control.parent, mouse.x, mouse.y).x
        }

        anchors.fill: parent
        preventStealing: true
        cursorShape: Qt.SizeHorCursor
        onPressed: mouse => {
            last = across(mouse)
            control.forceActiveFocus(Qt.MouseFocusReason)
            control.selection.beginDrag(control.isLeft)
        }
        onPositionChanged: mouse => {
            const now = across(mouse)
            control.selection.drag(control.isLeft, now - last)
            last = now
        }
        onReleased: control.selection.endDrag(control.isLeft)
        onCanceled: control.selection.endDrag(control.isLeft)
    }
}
