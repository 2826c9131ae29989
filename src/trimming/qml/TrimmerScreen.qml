import QtQuick
import Tavi.Trimming
import Tavi.Ui

/// The trimmer: all of a phone's window, a panel in the middle of a larger one.
FocusScope {
    id: root

    required property AudioTrimmerViewController screen
    readonly property bool low: height < Theme.lowHeight && width > height
    readonly property bool wide: !low && width >= Theme.wideWidth
    readonly property bool exporting: screen.exporter.isRunning

    anchors.fill: parent
    focus: true
    Keys.onEscapePressed: exporting ? screen.cancelExport() : screen.btnCancelTapped()
    Keys.onSpacePressed: {
        if (!exporting && !screen.isEditingViewHidden)
            screen.btnPlayPauseTapped()
    }
    // No key and no touch reaches what lies below.
    Keys.onPressed: event => {
        event.accepted = true
        if (event.key === Qt.Key_Plus || event.key === Qt.Key_Equal)
            zoomMotion.step(2)
        else if (event.key === Qt.Key_Minus)
            zoomMotion.step(0.5)
    }
    Accessible.role: Accessible.Dialog
    Accessible.name: qsTrId("trimmer_title")

    ZoomMotion {
        id: zoomMotion

        zoom: root.screen.zoom
    }

    Rectangle {
        anchors.fill: parent
        color: root.wide ? Theme.scrim : "#4d000000"
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
        width: root.wide ? Math.min(parent.width - 80, 1040) : parent.width
        height: root.wide ? Math.min(parent.height - 80, 640) : parent.height
        radius: root.wide ? Theme.radiusSheet : 0
        color: Theme.ground
        border.color: Theme.edge
        border.width: root.wide ? 1 : 0

        FocusScope {
            anchors.fill: parent
            enabled: !root.exporting
            focus: !root.exporting

            TButton {
                id: cancel

                anchors.left: parent.left
                anchors.leftMargin: 8
                y: root.wide ? 10 : 4
                objectName: "btnCancel"
                text: qsTrId("Cancel")
                onClicked: root.screen.btnCancelTapped()
            }

            Label {
                id: title

                readonly property real both: width + 12 + file.width

                x: (parent.width + (root.low && Theme.mirrored ? both - 2 * width : root.low ? -both : -width)) / 2
                y: cancel.y
                width: Math.min(implicitWidth, parent.width - 2 * Math.max(cancel.width, done.width) - 40)
                height: Theme.touch
                text: qsTrId("trimmer_title")
                fontSizeMode: Text.HorizontalFit
                minimumPixelSize: Theme.textCaption
                elide: Text.ElideRight
                color: Theme.text
                font.pixelSize: Theme.textDialog
                font.weight: Font.Medium
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }

            TButton {
                id: done

                anchors.right: parent.right
                anchors.rightMargin: 12
                y: cancel.y
                objectName: "btnUpload"
                visible: !root.screen.isDoneHidden
                text: qsTrId("trimmer_done")
                kind: TButton.Filled
                enabled: root.screen.source.canExport
                onClicked: root.screen.btnUploadTapped()
            }

            Label {
                id: file

                x: root.low ? title.x + (Theme.mirrored ? -width - 12 : title.width + 12) : (parent.width - width) / 2
                y: root.low ? 4 : cancel.y + 46
                width: Math.min(implicitWidth, root.low ? parent.width - cancel.width - done.width - title.width - 80
                                                        : parent.width - 2 * Theme.margin)
                height: root.low ? Theme.touch : 20
                text: root.screen.fileText
                elide: Text.ElideMiddle
                maximumLineCount: 1
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }

            Flickable {
                anchors.fill: parent
                anchors.topMargin: root.low ? 50 : file.y + 24
                visible: !root.screen.isEditingViewHidden
                contentHeight: body.height
                interactive: contentHeight > height
                boundsBehavior: Flickable.StopAtBounds
                clip: interactive

                TrimmerBody {
                    id: body

                    width: parent.width
                    height: Math.max(least, parent.parent.height)
                    focus: true
                    screen: root.screen
                    zoomMotion: zoomMotion
                    low: root.low
                    wide: root.wide
                }
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
