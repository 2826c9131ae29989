import QtQuick
import Tavi.Trimming
import Tavi.Ui

/// The trimmer: all of a phone's window, a panel in the middle of a larger one.
FocusScope {
    id: root

    required property AudioTrimmerViewController screen
    readonly property bool wide: width >= Theme.wideWidth
    readonly property bool exporting: screen.exporter.isRunning

    anchors.fill: parent
    focus: true
    Keys.onEscapePressed: exporting ? screen.cancelExport() : screen.btnCancelTapped()
    Keys.onSpacePressed: event => {
        if (!event.isAutoRepeat && !exporting && !screen.isEditingViewHidden)
            screen.btnPlayPauseTapped()
    }
    // No key and no touch reaches what lies below.
    Keys.onPressed: event => event.accepted = true
    Accessible.role: Accessible.Dialog
    Accessible.name: qsTrId("trimmer_title")

    Rectangle {
        anchors.fill: parent
        color: "#4d000000"
    }

    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
        acceptedButtons: Qt.AllButtons
        onWheel: wheel => wheel.accepted = true
    }

    Rectangle {
        id: panel

        anchors.centerIn: parent
        width: root.wide ? Math.min(parent.width - 80, 860) : parent.width
        height: root.wide ? Math.min(parent.height - 80, 560) : parent.height
        radius: root.wide ? 14 : 0
        color: Theme.ground
        border.color: Theme.control
        border.width: root.wide ? 1 : 0

        FocusScope {
            anchors.fill: parent
            enabled: !root.exporting
            focus: !root.exporting

            TButton {
                id: cancel

                x: 4
                y: 4
                width: 88
                objectName: "btnCancel"
                text: qsTrId("Cancel")
                onClicked: root.screen.btnCancelTapped()
            }

            Label {
                anchors.horizontalCenter: parent.horizontalCenter
                y: 4
                height: Theme.touch
                text: qsTrId("trimmer_title")
                color: Theme.text
                font.pixelSize: 17
                font.weight: Font.Medium
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }

            TButton {
                x: parent.width - width - 8
                y: 4
                width: 84
                objectName: "btnUpload"
                visible: !root.screen.isDoneHidden
                text: qsTrId("trimmer_done")
                kind: TButton.Filled
                enabled: root.screen.canExport
                onClicked: root.screen.btnUploadTapped()
            }

            Label {
                id: file

                x: Theme.margin
                y: cancel.y + cancel.height + 4
                width: parent.width - 2 * x
                text: root.screen.fileText
                horizontalAlignment: Text.AlignHCenter
                elide: Text.ElideMiddle
                maximumLineCount: 1
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }

            TrimmerPlot {
                id: plot

                anchors.top: file.bottom
                anchors.bottom: controls.top
                anchors.bottomMargin: 8
                width: parent.width
                visible: !root.screen.isEditingViewHidden
                screen: root.screen
            }

            TrimmerControls {
                id: controls

                anchors.bottom: parent.bottom
                anchors.bottomMargin: 20
                width: parent.width
                visible: !root.screen.isEditingViewHidden
                focus: true
                screen: root.screen
            }

            Column {
                anchors.centerIn: parent
                visible: !root.screen.isRecordingViewHidden
                spacing: 24

                Label {
                    anchors.horizontalCenter: parent.horizontalCenter
                    text: qsTrId("lbl_recording")
                    color: Theme.text
                    font.pixelSize: 20
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                }

                IconButton {
                    anchors.horizontalCenter: parent.horizontalCenter
                    width: 88
                    height: 88
                    objectName: "btnStopRecording"
                    imageName: "stop.png"
                    imageSize: 56
                    tint: Theme.accent
                    name: qsTrId("trimmer_stop_recording")
                    onClicked: root.screen.btnStopRecordingTapped()
                }
            }
        }

        TrimmerProgress {
            anchors.fill: parent
            visible: root.exporting
            focus: root.exporting
            exporter: root.screen.exporter
            radius: panel.radius
            onCancelled: root.screen.cancelExport()
        }
    }
}
