import QtQuick
import Tavi.Library
import Tavi.Ui

/// The player: what is loaded, where it stands, and its controls. Asks the screen what to do.
FocusScope {
    id: root

    required property VoiceMemoVC screen
    readonly property PlayerPanel player: screen.player
    /// Beside the list rather than below it.
    property bool beside: false
    /// It can be made small again.
    property bool foldable: false
    /// Beside the list in a large window.
    readonly property bool spacious: beside && Theme.window.height >= 480
    /// All controls in one row.
    readonly property bool oneRow: beside && column.width >= 560
    readonly property string detail: screen.playingDetail

    signal folded()

    implicitHeight: column.implicitHeight + 12

    // Where even the player alone does not fit.
    Flickable {
        anchors.fill: parent
        contentHeight: root.implicitHeight
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        clip: interactive

        Column {
            id: column

            anchors.horizontalCenter: parent.horizontalCenter
            y: root.beside ? Math.max(4, (root.height - implicitHeight) / 2) : 4
            width: Math.min(parent.width - 2 * (root.spacious && parent.width > 560 ? 40 : Theme.margin), root.beside ? 960 : 560)
            spacing: 0

            Item {
                width: parent.width
                height: root.spacious ? 68 : Theme.touch

                Label {
                    anchors.left: parent.left
                    anchors.right: root.beside ? parent.right : close.left
                    anchors.rightMargin: 4
                    height: root.spacious ? 32 : parent.height
                    text: root.screen.playingName
                    color: Theme.text
                    font.pixelSize: root.spacious ? 22 : 16
                    font.weight: root.spacious ? Font.Normal : Font.Medium
                    elide: Text.ElideMiddle
                    maximumLineCount: 1
                    Accessible.role: Accessible.Heading
                    Accessible.name: text
                }

                Label {
                    y: 32
                    width: parent.width
                    height: 20
                    visible: root.spacious
                    text: root.detail
                    elide: Text.ElideLeft
                    maximumLineCount: 1
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                }

                IconButton {
                    id: close

                    anchors.right: parent.right
                    anchors.rightMargin: -12
                    objectName: "playerClose"
                    visible: !root.beside && !root.foldable
                    imageName: "close.png"
                    imageSize: 22
                    tint: Theme.light
                    name: qsTrId("a11y_close_player")
                    shortcut: qsTrId("key_escape")
                    onClicked: root.screen.playerClose()
                }

                IconButton {
                    anchors.right: parent.right
                    anchors.rightMargin: -12
                    objectName: "fold"
                    visible: root.foldable
                    imageName: "chevron-up"
                    rotation: 180
                    imageSize: 24
                    tint: Theme.light
                    name: qsTrId("a11y_fold_player")
                    onClicked: root.folded()
                }
            }

            PositionSlider {
                id: wave

                width: parent.width
                height: root.spacious ? Math.max(120, Math.min(Math.round(Theme.window.height * 0.28), 260)) : 72
                barWidth: root.spacious ? 3 : 2
                player: root.player
                visible: root.player.hasPlayer
            }

            Label {
                width: parent.width
                height: wave.height
                visible: !root.player.hasPlayer
                text: qsTrId("player_unplayable")
                color: Theme.tint
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignHCenter
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }

            Item {
                // Below the ends of the wave.
                LayoutMirroring.enabled: false
                LayoutMirroring.childrenInherit: true
                width: parent.width
                height: 24

                Label {
                    height: parent.height
                    objectName: "lblSongMinTime"
                    text: root.player.lblSongMinTime.text
                    color: Theme.text
                    font.pixelSize: 13
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                }

                Label {
                    anchors.right: parent.right
                    height: parent.height
                    objectName: "lblSongMaxTime"
                    text: root.player.lblSongMaxTime.text
                    font.pixelSize: 13
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                }
            }

            Item {
                width: parent.width
                height: root.oneRow ? 88 : 136

                Row {
                    // Back is where the wave begins.
                    LayoutMirroring.enabled: false
                    LayoutMirroring.childrenInherit: true
                    anchors.horizontalCenter: parent.horizontalCenter
                    y: root.oneRow ? 20 : 4
                    spacing: 20

                    IconButton {
                        width: 64
                        height: 64
                        objectName: "backSkip"
                        imageName: "skip_back.png"
                        caption: root.player.lblBackwardSec.text
                        name: qsTrId("a11y_skip_back").arg(caption)
                        shortcut: "J"
                        enabled: root.player.hasPlayer
                        onClicked: root.player.backSkip()
                    }

                    IconButton {
                        width: 64
                        height: 64
                        objectName: "btnplaypuas"
                        imageName: root.player.btnplaypuas.image
                        imageSize: 32
                        filled: true
                        name: root.player.isPlayerPlaying ? qsTrId("a11y_pause") : qsTrId("a11y_play")
                        shortcut: qsTrId("key_space")
                        enabled: root.player.hasPlayer
                        focus: true
                        onClicked: root.screen.playAudio(root.screen.selectedIndex, root.player.btnplaypuas.selected)
                    }

                    IconButton {
                        width: 64
                        height: 64
                        objectName: "forwardSkip"
                        imageName: "skip_forward.png"
                        caption: root.player.lblForwardSec.text
                        name: qsTrId("a11y_skip_forward").arg(caption)
                        shortcut: "L"
                        enabled: root.player.hasPlayer
                        onClicked: root.player.forwardSkip()
                    }
                }

                SpeedControl {
                    id: speeds

                    anchors.left: parent.left
                    y: root.oneRow ? 30 : 80
                    player: root.player
                }

                StopButton {
                    anchors.right: parent.right
                    y: speeds.y
                    screen: root.screen
                }
            }
        }
    }
}
