import QtQuick
import Tavi.Library
import Tavi.Ui

/// The player: what is loaded, where it stands, and its controls. Asks the screen what to do.
FocusScope {
    id: root

    required property VoiceMemoVC screen
    readonly property PlayerPanel player: screen.player
    readonly property string title: screen.playingName
    /// With room to spare, as beside the list.
    property bool tall: false

    implicitHeight: column.implicitHeight + 12

    Column {
        id: column

        anchors.horizontalCenter: parent.horizontalCenter
        y: root.tall ? Math.max(24, (root.height - column.implicitHeight) / 2) : 6
        width: Math.min(parent.width - 2 * Theme.margin, 560)
        spacing: root.tall ? 16 : 2

        Item {
            width: parent.width
            height: Theme.touch

            Label {
                anchors.left: parent.left
                anchors.right: close.left
                height: parent.height
                text: root.title
                color: Theme.lightGrey
                font.pixelSize: root.tall ? 18 : 15
                elide: Text.ElideMiddle
                maximumLineCount: 1
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }

            IconButton {
                id: close

                anchors.right: parent.right
                anchors.rightMargin: -10
                objectName: "playerClose"
                imageName: "close.png"
                imageSize: 20
                tint: Theme.label
                name: qsTrId("a11y_close_player")
                onClicked: root.screen.playerClose()
            }
        }

        PositionSlider {
            width: parent.width
            height: root.tall ? 160 : 64
            player: root.player
            visible: root.player.hasPlayer
        }

        Label {
            width: parent.width
            height: root.tall ? 160 : 64
            visible: !root.player.hasPlayer
            text: qsTrId("player_unplayable")
            color: Theme.warning
            horizontalAlignment: Text.AlignHCenter
        }

        Item {
            width: parent.width
            height: 18

            Label {
                objectName: "lblSongMinTime"
                text: root.player.lblSongMinTime.text
                font.pixelSize: 13
            }

            Label {
                anchors.right: parent.right
                objectName: "lblSongMaxTime"
                text: root.player.lblSongMaxTime.text
                font.pixelSize: 13
            }
        }

        Item {
            width: parent.width
            height: 64

            Row {
                anchors.centerIn: parent
                spacing: root.width < 380 ? 8 : 16

                IconButton {
                    anchors.verticalCenter: parent.verticalCenter
                    width: 64
                    height: 60
                    objectName: "backSkip"
                    imageName: "skip_back.png"
                    caption: root.player.lblBackwardSec.text
                    name: qsTrId("a11y_skip_back").arg(caption)
                    enabled: root.player.hasPlayer
                    onClicked: root.player.backSkip()
                }

                IconButton {
                    anchors.verticalCenter: parent.verticalCenter
                    width: 60
                    height: 60
                    objectName: "btnplaypuas"
                    imageName: root.player.btnplaypuas.image
                    imageSize: 30
                    fill: Theme.accent
                    name: root.player.isPlayerPlaying ? qsTrId("a11y_pause") : qsTrId("a11y_play")
                    enabled: root.player.hasPlayer
                    focus: true
                    onClicked: root.screen.playAudio(root.screen.selectedIndex, root.player.btnplaypuas.selected)
                }

                IconButton {
                    anchors.verticalCenter: parent.verticalCenter
                    width: 64
                    height: 60
                    objectName: "forwardSkip"
                    imageName: "skip_forward.png"
                    caption: root.player.lblForwardSec.text
                    name: qsTrId("a11y_skip_forward").arg(caption)
                    enabled: root.player.hasPlayer
                    onClicked: root.player.forwardSkip()
                }
            }
        }

        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: 8

            SpeedButton {
                objectName: "btnSlow"
                text: "½×"
                selected: root.player.btnSlow.selected
                name: qsTrId("a11y_slow")
                enabled: root.player.hasPlayer
                onClicked: root.player.slowAudio(this)
            }

            SpeedButton {
                objectName: "btnMedium"
                text: "1×"
                selected: root.player.btnMedium.selected
                name: qsTrId("a11y_normal")
                enabled: root.player.hasPlayer
                onClicked: root.player.mediumAudio(this)
            }

            SpeedButton {
                objectName: "btnFastPlay"
                text: "2×"
                selected: root.player.btnFastPlay.selected
                name: qsTrId("a11y_fast")
                enabled: root.player.hasPlayer
                onClicked: root.player.fastAudio(this)
            }

            IconButton {
                objectName: "stopAudio"
                width: 64
                imageName: "stop_Play.png"
                imageSize: 24
                radius: 10
                fill: Theme.control
                tint: Theme.lightGrey
                name: qsTrId("a11y_stop_playing")
                onClicked: root.screen.stopAudio()
            }
        }
    }
}
