import QtQuick
import Tavi.Library
import Tavi.Ui

/// How fast the recording plays.
SegmentedControl {
    id: root

    required property PlayerPanel player

    name: qsTrId("a11y_speed")

    SegmentButton {
        objectName: "btnSlow"
        text: "½×"
        chosen: root.player.rate === 0.5
        name: qsTrId("a11y_slow")
        enabled: root.player.hasPlayer
        onClicked: root.player.slowAudio(this)
    }

    SegmentButton {
        objectName: "btnMedium"
        text: "1×"
        chosen: root.player.rate === 1
        name: qsTrId("a11y_normal")
        enabled: root.player.hasPlayer
        onClicked: root.player.mediumAudio(this)
    }

    SegmentButton {
        objectName: "btnFastPlay"
        text: "2×"
        chosen: root.player.rate === 2
        name: qsTrId("a11y_fast")
        enabled: root.player.hasPlayer
        onClicked: root.player.fastAudio(this)
    }
}
