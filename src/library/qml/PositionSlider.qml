import QtQuick
import Tavi.Library
import Tavi.Ui
import Tavi.Waves
import QtQuick.Templates as T

/// Where the recording stands, on its waveform.
T.Slider {
    id: control

    required property PlayerPanel player

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

    background: Rectangle {
        radius: 8
        color: Theme.well

        Rectangle {
            y: (parent.height - height) / 2
            width: parent.width
            height: 2
            color: Theme.control
        }

        EZAudioPlotItem {
            anchors.fill: parent
            anchors.margins: 3
            plot: control.player.audioPlot
        }

        FocusFrame {
            anchors.fill: parent
            radius: parent.radius
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
            y: -4
            width: 12
            height: 12
            radius: 6
            color: Theme.text
        }
    }
}
