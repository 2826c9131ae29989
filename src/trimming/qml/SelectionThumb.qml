import QtQuick
import Tavi.Trimming
import Tavi.Ui
import QtQuick.Templates as T

/// One end of the selection. Its grip lies outside of the stretch, so that the two can be told apart where they meet.
T.Slider {
    id: control

    required property TrimSelection selection
    required property TrimZoom zoom
    required property bool isLeft
    readonly property real centre: (isLeft ? selection.leftThumbX : selection.rightThumbX) - zoom.offset
    readonly property bool inView: centre > -1 && centre < zoom.viewWidth + 1
    /// How far what can be grasped reaches to the inner side: not into that of the other thumb.
    readonly property real inner: Math.max(0, Math.min(4, (selection.rightThumbX - selection.leftThumbX) / 2))
    /// Seconds; what assistive technology sets the value to is one more drag.
    readonly property real place: Math.max(from, Math.min(isLeft ? selection.startTime : selection.endTime, to))

    function nudge(seconds) {
        selection.nudge(isLeft, seconds)
        reveal()
    }

    function reveal() {
        zoom.reveal(isLeft ? selection.leftThumbX : selection.rightThumbX)
    }

    x: Math.round(Math.max(0, Math.min(centre, zoom.viewWidth))) - (isLeft ? 44 : inner)
    z: isLeft === selection.isLeftThumbInFront ? 1 : 0
    width: 44 + inner
    height: parent.height
    objectName: isLeft ? "leftThumb" : "rightThumb"
    // One that is scrolled away keeps the keyboard, which brings it back.
    opacity: inView ? 1 : 0
    from: 0
    to: Math.max(selection.audioDuration, 0.001)
    stepSize: 1
    value: place
    focusPolicy: Qt.StrongFocus
    Accessible.role: Accessible.Slider
    Accessible.name: isLeft ? qsTrId("a11y_trim_start") : qsTrId("a11y_trim_end")
    Accessible.description: isLeft ? selection.spokenStart : selection.spokenEnd
    Accessible.onIncreaseAction: nudge(stepSize)
    Accessible.onDecreaseAction: nudge(-stepSize)
    onVisualFocusChanged: if (visualFocus) reveal()
    onValueChanged: {
        if (Math.abs(value - place) > 0.0005) {
            nudge(value - place)
            value = Qt.binding(() => control.place)
        }
    }
    Keys.onPressed: event => {
        const step = event.modifiers & Qt.ShiftModifier ? 1 : 0.01
        event.accepted = true
        if (event.key === Qt.Key_Left || event.key === Qt.Key_Down)
            nudge(-step)
        else if (event.key === Qt.Key_Right || event.key === Qt.Key_Up)
            nudge(step)
        else if (event.key === Qt.Key_PageDown)
            nudge(-10)
        else if (event.key === Qt.Key_PageUp)
            nudge(10)
        else if (event.key === Qt.Key_Home)
            nudge(from - to)
        else if (event.key === Qt.Key_End)
            nudge(to - from)
        else
            event.accepted = false
    }

    Rectangle {
        id: line

        x: (control.isLeft ? 44 : control.inner) - width / 2
        width: 2
        height: parent.height
        color: Theme.text
    }

    Rectangle {
        id: grip

        x: control.isLeft ? line.x + line.width - width : line.x
        y: parent.height - height - 16
        width: 24
        height: 44
        radius: Theme.radiusTile
        color: area.pressed ? Theme.light : Theme.text

        Row {
            anchors.centerIn: parent
            spacing: 4

            Repeater {
                model: 2

                Rectangle {
                    width: 2
                    height: 18
                    radius: 1
                    color: Theme.accent
                }
            }
        }

        FocusFrame {
            around: grip.radius
            control: control
        }
    }

    MouseArea {
        id: area

        property real last: 0

        // In the selection's container, which moves where the view is scrolled.
        function across(mouse) {
            return mapToItem(control.parent, mouse.x, mouse.y).x + control.zoom.offset
        }

        anchors.fill: parent
        enabled: control.inView || pressed
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
            control.reveal()
        }
        onReleased: control.selection.endDrag(control.isLeft)
        onCanceled: control.selection.endDrag(control.isLeft)
    }
}
