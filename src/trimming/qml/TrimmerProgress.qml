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

        ProgressBar {
            width: parent.width
            name: qsTrId("trimmer_exporting")
            value: root.exporter.progress
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
