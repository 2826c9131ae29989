import QtQuick
import Tavi.Recording
import Tavi.Ui
import Tavi.Waves

/// The record tab: format and date, the clock, the level wave, and the two buttons.
FocusScope {
    id: root

    required property AudioRecordVC screen
    /// Room between the clock and the lower edge in low windows goes to the wave first.
    readonly property bool low: height < 620

    Rectangle {
        width: parent.width
        height: headerView.height
        color: Theme.header
    }

    Item {
        id: page

        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(parent.width, 1000)
        height: parent.height

        Item {
            id: headerView

            width: parent.width
            height: Theme.touch

            Label {
                id: date

                x: Theme.margin
                height: parent.height
                text: root.screen.lblDate.text
                color: root.screen.lblDate.textColor || Theme.light
            }

            Label {
                anchors.right: parent.right
                anchors.rightMargin: Theme.margin
                width: Math.min(implicitWidth, parent.width - date.width - 3 * Theme.margin)
                height: parent.height
                text: root.screen.lblFileType.text
                color: root.screen.lblFileType.textColor || Theme.accent
                elide: Text.ElideRight
                font.weight: Font.Medium
            }
        }

        Text {
            id: clock

            anchors.horizontalCenter: parent.horizontalCenter
            y: headerView.height + (root.low ? 12 : 28)
            text: root.screen.lblTimer.text
            color: root.screen.isRecording ? Theme.text : Theme.label
            textFormat: Text.PlainText
            font.family: Theme.family
            font.pointSize: 30
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }

        Item {
            id: status

            anchors.top: clock.bottom
            anchors.topMargin: root.low ? 0 : 4
            anchors.horizontalCenter: parent.horizontalCenter
            width: parent.width - 2 * Theme.margin
            height: 28

            Row {
                anchors.centerIn: parent
                visible: !root.screen.lblRecording.hidden
                spacing: 8

                Rectangle {
                    anchors.verticalCenter: parent.verticalCenter
                    width: 10
                    height: 10
                    radius: 5
                    color: root.screen.isRecordingRunning ? Theme.accent : "transparent"
                    border.color: root.screen.isRecordingRunning ? Theme.accent : Theme.label
                    border.width: 2
                }

                Label {
                    text: root.screen.lblRecording.text
                    color: root.screen.lblRecording.textColor || Theme.text
                    font.pixelSize: 15
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                }
            }

            Label {
                anchors.fill: parent
                visible: root.screen.lblRecording.hidden
                text: root.screen.hint
                horizontalAlignment: Text.AlignHCenter
                elide: Text.ElideRight
            }
        }

        Rectangle {
            anchors.top: status.bottom
            anchors.topMargin: root.low ? 8 : 20
            anchors.bottom: buttons.top
            x: Theme.margin
            width: parent.width - 2 * x
            radius: 5
            color: Theme.well
            // Half a point wide: where that is less than a pixel, a pixel of half the brightness.
            border.color: Screen.devicePixelRatio < 2 ? "#6a6a6a" : Theme.light
            border.width: Math.max(1, Math.round(0.5 * Screen.devicePixelRatio)) / Screen.devicePixelRatio

            WaveViewItem {
                anchors.fill: parent
                anchors.margins: 3
                wave: root.screen.waveViewMirror
                ground: Theme.well
                centreLine: Theme.line
                barColor: Theme.accent
                Accessible.role: Accessible.Graphic
                Accessible.name: qsTrId("a11y_level")
            }
        }

        Item {
            id: buttons

            anchors.bottom: parent.bottom
            width: parent.width
            height: root.low ? 124 : 148

            RecordButton {
                anchors.centerIn: parent
                objectName: "btnRecord"
                focus: true
                picture: root.screen.btnRecord.image
                text: root.screen.isRecordingRunning ? qsTrId("a11y_pause")
                    : root.screen.isRecording ? qsTrId("a11y_resume") : qsTrId("a11y_record")
                enabled: root.screen.btnRecord.enabled
                onClicked: root.screen.playAndPauseRecording(this)
            }

            RecordButton {
                x: parent.width / 2 + 44 + Math.min((parent.width / 2 - 44 - diameter) / 2, 64)
                anchors.verticalCenter: parent.verticalCenter
                objectName: "btnStop"
                diameter: 56
                picture: root.screen.btnStop.image || "record_stop"
                text: qsTrId("a11y_stop")
                enabled: root.screen.btnStop.enabled
                onClicked: root.screen.stopAndSaveRecording(this)
            }
        }
    }
}
