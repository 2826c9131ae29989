import QtQuick
import Tavi.Library
import Tavi.Ui
import Tavi.Waves
import QtQuick.Templates as T

/// Where the recording stands, on its waveform.
T.Slider {
    id: control

    required property PlayerPanel player
    property int barWidth: 2
    /// For assistive technology, which knows them by these names.
    readonly property real minimumValue: from
    readonly property real maximumValue: to
    /// The moment that a place of the wave stands for, in seconds.
    function momentAt(x) {
        return from + Math.max(0, Math.min(x / width, 1)) * (to - from)
    }

    objectName: "slider_player"
    from: 0
    to: Math.max(player.slider_player.maximumValue, 0.001)
    stepSize: 1
    live: true
    focusPolicy: Qt.TabFocus
    value: player.slider_player.value
    Accessible.role: Accessible.Slider
    Accessible.name: qsTrId("a11y_position")
    Accessible.description: qsTrId("a11y_position_value").arg(player.lblSongMinTime.text).arg(player.lblSongMaxTime.text)
    onMoved: {
        control.player.progressSliderMoved(control.value)
        control.value = Qt.binding(() => control.player.slider_player.value)
    }
    Keys.onPressed: event => {
        const page = (to - from) / 10
        event.accepted = true
        if (event.key === Qt.Key_Home)
            player.progressSliderMoved(from)
        else if (event.key === Qt.Key_End)
            player.progressSliderMoved(to)
        else if (event.key === Qt.Key_PageUp)
            player.progressSliderMoved(Math.min(value + page, to))
        else if (event.key === Qt.Key_PageDown)
            player.progressSliderMoved(Math.max(value - page, from))
        else
            event.accepted = false
    }

    background: Rectangle {
        radius: 5
        color: Theme.well

        BarsItem {
            anchors.fill: parent
            barWidth: control.barWidth
            levels: control.player.waveform
            color: Theme.accent
            restColor: Theme.dim
            to: control.visualPosition
        }

        FocusFrame {
            around: parent.radius
            control: control
        }
    }

    handle: Rectangle {
        // Whole pixels: most ticks change nothing that is seen.
        x: Math.round(control.visualPosition * (control.width - width))
        width: 2
        height: control.height
        color: Theme.text

        Rectangle {
            anchors.horizontalCenter: parent.horizontalCenter
            width: 14
            height: 14
            radius: 7
            color: Theme.text
        }
    }

    HoverHandler {
        id: hover

        acceptedDevices: PointerDevice.Mouse
        enabled: control.enabled
    }

    // The moment under the pointer.
    Item {
        id: pointed

        readonly property real place: control.pressed ? control.visualPosition * control.width : hover.point.position.x

        anchors.fill: parent
        visible: hover.hovered || control.pressed

        Rectangle {
            x: Math.round(pointed.place)
            width: 1
            height: parent.height
            visible: !control.pressed
            color: Theme.label
        }

        Rectangle {
            x: Math.max(0, Math.min(Math.round(pointed.place - width / 2), parent.width - width))
            y: parent.height - height - 4
            width: moment.implicitWidth + 12
            height: 22
            radius: 5
            color: Theme.control

            Label {
                id: moment

                anchors.centerIn: parent
                text: pointed.visible ? control.player.timeText(control.momentAt(pointed.place)) : ""
                color: Theme.text
                font.pixelSize: 13
            }
        }
    }
}
