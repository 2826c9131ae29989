import QtQuick
import Tavi.Trimming
import Tavi.Ui

/// What else can be done with the recording. None of them is the main act.
Item {
    id: root

    required property AudioTrimmerViewController screen
    /// All of the width is theirs, in equal parts.
    property bool filling: false
    /// The last is at the other side.
    property bool spread: false
    property bool withImages: true
    readonly property int spacing: 8
    readonly property real each: (width - 2 * spacing) / 3

    implicitWidth: reset.implicitWidth + rerecord.implicitWidth + trim.implicitWidth + 2 * spacing
    implicitHeight: Theme.touch

    TButton {
        id: reset

        width: root.filling ? root.each : implicitWidth
        objectName: "btnReset"
        text: qsTrId("trimmer_reset")
        kind: TButton.Quiet
        horizontalPadding: root.filling ? 2 : 16
        imageName: root.withImages ? "reset" : ""
        imageFirst: true
        onClicked: root.screen.btnResetTapped()
    }

    TButton {
        id: rerecord

        x: reset.width + root.spacing
        width: root.filling ? root.each : implicitWidth
        objectName: "btnResetAudio"
        text: qsTrId("trimmer_rerecord")
        kind: TButton.Quiet
        horizontalPadding: root.filling ? 2 : 16
        imageName: root.withImages ? "record" : ""
        imageFirst: true
        onClicked: root.screen.btnResetAudioTapped()
    }

    TButton {
        id: trim

        x: root.spread ? root.width - width : rerecord.x + rerecord.width + root.spacing
        width: root.filling ? root.each : implicitWidth
        objectName: "btnEditTrimmedVideo"
        text: root.screen.btnEditTrimmedVideo.title
        kind: TButton.Quiet
        horizontalPadding: root.filling ? 2 : 16
        imageName: root.withImages ? "trim" : ""
        imageFirst: true
        enabled: root.screen.source.canExport
        Accessible.checkable: true
        Accessible.checked: root.screen.btnEditTrimmedVideo.selected
        onClicked: root.screen.btnEditTrimmedVideoTapped()
    }
}
