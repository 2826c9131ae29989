import QtQuick
import Tavi.Library
import Tavi.Ui

/// How fast the recording plays: three speeds in one outline.
Item {
    id: root

    required property PlayerPanel player

    implicitWidth: parts.implicitWidth
    implicitHeight: Theme.touch
    Accessible.role: Accessible.Grouping
    Accessible.name: qsTrId("a11y_speed")

    Row {
        id: parts

        SpeedButton {
            objectName: "btnSlow"
            text: "½×"
            isFirst: true
            selected: root.player.rate === 0.5
            name: qsTrId("a11y_slow")
            enabled: root.player.hasPlayer
            onClicked: root.player.slowAudio(this)
        }

        SpeedButton {
            objectName: "btnMedium"
            text: "1×"
            selected: root.player.rate === 1
            name: qsTrId("a11y_normal")
            enabled: root.player.hasPlayer
            onClicked: root.player.mediumAudio(this)
        }

        SpeedButton {
            objectName: "btnFastPlay"
            text: "2×"
            isLast: true
            selected: root.player.rate === 2
            name: qsTrId("a11y_fast")
            enabled: root.player.hasPlayer
            onClicked: root.player.fastAudio(this)
        }
    }

    Rectangle {
        anchors.fill: parent
        radius: height / 2
        color: "transparent"
        border.color: Theme.edge
        border.width: 1
        opacity: root.player.hasPlayer ? 1.0 : Theme.disabledOpacity
    }

    Repeater {
        model: 2

        Rectangle {
            required property int index

            x: (index + 1) * root.width / 3
            y: 1
            width: 1
            height: root.height - 2
            color: Theme.edge
            opacity: 0.5
        }
    }
}
