import QtQuick
import Tavi.Trimming
import Tavi.Ui

/// How far an export is, and the button that gives it up.
Rectangle {
    id: root

    required property TrimExport exporter
    signal cancelled

    color: "#d9000000"

    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
        acceptedButtons: Qt.AllButtons
    }

    Column {
        anchors.centerIn: parent
        width: Math.min(parent.width - 4 * Theme.margin, 320)
        spacing: 16

        Label {
            width: parent.width
            text: qsTrId("trimmer_exporting")
            color: Theme.text
            font.pixelSize: 17
            horizontalAlignment: Text.AlignHCenter
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }

        Rectangle {
            readonly property real from: 0
            readonly property real to: 1
            readonly property real value: root.exporter.progress

            width: parent.width
            height: 6
            radius: 3
            color: Theme.control
            Accessible.role: Accessible.ProgressBar
            Accessible.name: qsTrId("trimmer_exporting")
            Accessible.description: Math.round(root.exporter.progress * 100) + " %"

            Rectangle {
                width: parent.width * root.exporter.progress
                height: parent.height
                radius: 3
                color: Theme.accent
            }
        }

        TButton {
            anchors.horizontalCenter: parent.horizontalCenter
            width: 140
            objectName: "btnCancelExport"
            text: qsTrId("Cancel")
            kind: TButton.Quiet
            focus: true
            onClicked: root.cancelled()
        }
    }
}
