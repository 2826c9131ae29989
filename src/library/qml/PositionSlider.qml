import QtQuick
import Tavi.Library
import Tavi.Ui
import Tavi.Waves

/// Where the recording stands, on its waveform.
TSlider {
    id: control

    required property PlayerPanel player
    property int barWidth: 2

    /// The moment that a place of the wave stands for, in seconds.
    function momentAt(x) {
        return from + Math.max(0, Math.min(x / width, 1)) * (to - from)
    }

    objectName: "slider_player"
    from: 0
    to: Math.max(player.slider_player.maximumValue, 0.001)
    stepSize: 1
    page: Math.max(1, Math.round(to / 10))
    rest: player.slider_player.value
    Accessible.name: qsTrId("a11y_position")
    Accessible.description: qsTrId("a11y_position_value").arg(player.lblSongMinTime.text).arg(player.lblSongMaxTime.text)
    onSlid: value => player.progressSliderMoved(value)

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
