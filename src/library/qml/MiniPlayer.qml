import QtQuick
import Tavi.Library
import Tavi.Ui

/// The player in one line, for windows that are too low for all of it.
FocusScope {
    id: root

    required property VoiceMemoVC screen
    readonly property PlayerPanel player: screen.player

    signal unfolded()

    implicitHeight: 60

    // Anywhere beside the buttons.
    TapHandler {
        onTapped: root.unfolded()
    }

    Rectangle {
        readonly property real from: 0
        readonly property real to: root.player.slider_player.maximumValue
        readonly property real value: root.player.slider_player.value

        width: parent.width
        height: 3
        color: Theme.track
        Accessible.role: Accessible.ProgressBar
        Accessible.name: qsTrId("a11y_position")

        Rectangle {
            width: Math.round(parent.width * parent.value / Math.max(parent.to, 0.001))
            height: parent.height
            color: Theme.accent
        }
    }

    IconButton {
        id: play

        anchors.left: parent.left
        anchors.leftMargin: 8
        y: 9
        objectName: "btnplaypuas"
        imageName: root.player.btnplaypuas.image
        imageSize: 22
        filled: true
        name: root.player.isPlayerPlaying ? qsTrId("a11y_pause") : qsTrId("a11y_play")
        shortcut: qsTrId("key_space")
        enabled: root.player.hasPlayer
        focus: true
        onClicked: root.screen.playAudio(root.screen.selectedIndex, root.player.btnplaypuas.selected)
    }

    Label {
        id: name

        anchors.left: play.right
        anchors.leftMargin: 8
        anchors.right: stop.left
        anchors.rightMargin: 4
        y: 10
        height: 22
        text: root.screen.playingName
        color: Theme.text
        font.pixelSize: 15
        font.weight: Font.Medium
        elide: Text.ElideMiddle
        maximumLineCount: 1
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }

    Label {
        readonly property string times: qsTrId("player_times").arg(root.player.lblSongMinTime.text).arg(root.player.lblSongMaxTime.text)

        anchors.left: name.left
        y: root.player.hasPlayer ? 32 : 29
        width: name.width
        height: root.player.hasPlayer ? 18 : 29
        objectName: "times"
        text: !root.player.hasPlayer ? qsTrId("player_unplayable")
                                     : times + " · " + (root.player.rate === 0.5 ? "½" : root.player.rate) + "×"
        color: root.player.hasPlayer ? Theme.label : Theme.tint
        font.pixelSize: 13
        fontSizeMode: Text.Fit
        minimumPixelSize: 10
        wrapMode: root.player.hasPlayer ? Text.NoWrap : Text.Wrap
        elide: Text.ElideRight
        maximumLineCount: 2
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    IconButton {
        id: stop

        anchors.right: unfold.left
        y: 9
        objectName: "stopAudio"
        imageName: "stop_Play.png"
        imageSize: 22
        name: qsTrId("a11y_stop_playing")
        onClicked: root.screen.stopAudio()
    }

    IconButton {
        id: unfold

        anchors.right: parent.right
        anchors.rightMargin: 4
        y: 9
        objectName: "unfold"
        imageName: "chevron-up"
        imageSize: 24
        tint: Theme.light
        name: qsTrId("a11y_unfold_player")
        onClicked: root.unfolded()
    }
}
