import QtQuick
import Tavi.Trimming
import Tavi.Ui
import Tavi.Waves

/// The screen that exports whole seconds of a recording.
FocusScope {
    id: root

    required property AudioTrim screen
    readonly property bool trimming: screen.indicatorText !== ""

    focus: true
    Keys.onEscapePressed: screen.backButtonpressed()
    Keys.onBackPressed: screen.backButtonpressed()

    Rectangle {
        anchors.fill: parent
        color: Theme.ground
    }

    FocusScope {
        anchors.fill: parent
        enabled: !root.trimming
        focus: !root.trimming

        IconButton {
            id: close

            anchors.left: parent.left
            anchors.leftMargin: 4
            y: 4
            objectName: "btnClose"
            imageName: "close.png"
            imageSize: 24
            tint: root.screen.accentColor
            name: qsTrId("trim_close")
            onClicked: root.screen.closeButtonpressed()
        }

        Label {
            x: Theme.touch + 8
            y: 4
            width: parent.width - 2 * x
            height: Theme.touch
            text: root.screen.title
            color: Theme.text
            font.pixelSize: 17
            font.weight: Font.Medium
            horizontalAlignment: Text.AlignHCenter
            elide: Text.ElideRight
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }

        Flickable {
            y: 52
            width: parent.width
            height: parent.height - y
            contentHeight: column.height + 28
            clip: true
            interactive: contentHeight > height
            boundsBehavior: Flickable.StopAtBounds

            Column {
                id: column

                anchors.horizontalCenter: parent.horizontalCenter
                y: 12
                width: Math.min(parent.width - 2 * Theme.margin, 860)
                spacing: 16

                Label {
                    width: parent.width
                    text: root.screen.lblFileName
                    horizontalAlignment: Text.AlignHCenter
                    elide: Text.ElideMiddle
                    maximumLineCount: 1
                }

                Item {
                    width: parent.width
                    height: 200

                    Rectangle {
                        anchors.fill: parent
                        anchors.leftMargin: 20
                        anchors.rightMargin: 20
                        anchors.topMargin: 40
                        radius: 3
                        color: Theme.ground
                        border.color: root.screen.accentColor
                        border.width: 1

                        SCWaveformViewItem {
                            anchors.fill: parent
                            anchors.margins: 1
                            view: root.screen.waveformView
                        }
                    }

                    RangeSliderView {
                        y: 20
                        width: parent.width
                        height: 180
                        slider: root.screen.rangeSlider
                    }
                }

                Item {
                    LayoutMirroring.enabled: false
                    LayoutMirroring.childrenInherit: true
                    width: parent.width
                    height: 18

                    Label {
                        text: root.screen.lblCurrentTime
                        font.pixelSize: 13
                    }

                    Label {
                        anchors.right: parent.right
                        text: root.screen.lblDuration
                        font.pixelSize: 13
                    }
                }

                TSlider {
                    width: parent.width
                    from: 0
                    to: Math.max(root.screen.duration, 0.001)
                    stepSize: 1
                    rest: root.screen.currentTime
                    enabled: root.screen.duration > 0
                    Accessible.name: qsTrId("a11y_position")
                    onSlid: value => root.screen.playerSliderMoved(value)
                }

                Row {
                    LayoutMirroring.enabled: false
                    anchors.horizontalCenter: parent.horizontalCenter
                    spacing: 16

                    IconButton {
                        width: 60
                        height: 60
                        objectName: "btnPlay"
                        imageName: root.screen.btnPlay.selected ? "pause_Player.png" : "play_player.png"
                        filled: true
                        name: root.screen.btnPlay.selected ? qsTrId("a11y_pause") : qsTrId("a11y_play")
                        enabled: root.screen.btnPlay.enabled
                        focus: true
                        onClicked: root.screen.playOriginalAudio()
                    }

                    IconButton {
                        width: 60
                        height: 60
                        objectName: "btnStop"
                        imageName: "stop_Play.png"
                        name: qsTrId("a11y_stop_playing")
                        enabled: root.screen.btnStop.enabled
                        onClicked: root.screen.stopAudio()
                    }
                }

                Row {
                    id: buttons

                    readonly property real each: Math.min(160, (parent.width - 2 * spacing) / 3)

                    anchors.horizontalCenter: parent.horizontalCenter
                    spacing: 8

                    TButton {
                        width: buttons.each
                        objectName: "playTrimmed"
                        text: qsTrId("trim_play_trimmed")
                        kind: TButton.Quiet
                        horizontalPadding: 8
                        enabled: root.screen.btnPlay.enabled
                        onClicked: root.screen.playTrimmedAudio()
                    }

                    TButton {
                        width: buttons.each
                        objectName: "btnTrim"
                        text: root.screen.btnTrim.title
                        kind: TButton.Filled
                        horizontalPadding: 8
                        enabled: root.screen.btnTrim.enabled
                        onClicked: root.screen.trimAudio()
                    }

                    TButton {
                        width: buttons.each
                        objectName: "btnSave"
                        text: qsTrId("trim_save")
                        kind: TButton.Quiet
                        horizontalPadding: 8
                        enabled: root.screen.btnSave.enabled
                    }
                }
            }
        }
    }

    Rectangle {
        anchors.fill: parent
        visible: root.trimming
        focus: root.trimming
        color: Theme.scrim

        MouseArea {
            anchors.fill: parent
            hoverEnabled: true
            acceptedButtons: Qt.AllButtons
        }

        Column {
            anchors.centerIn: parent
            spacing: 8

            Label {
                anchors.horizontalCenter: parent.horizontalCenter
                text: root.screen.indicatorText
                color: Theme.text
                font.pixelSize: 17
            }

            Label {
                anchors.horizontalCenter: parent.horizontalCenter
                text: qsTrId("Processing")
            }
        }
    }
}
