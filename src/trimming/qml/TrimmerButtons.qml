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
    /// What each takes for its words to be whole.
    readonly property var needed: [reset, rerecord, trim].map(button => metrics.advanceWidth(button.text) + 2 * button.horizontalPadding
                                                                        + (withImages ? button.imageSize + Theme.gap : 0))

    /// An equal part, or what is needed and a share of the rest where one of them has too long words for that.
    function filledWidth(place) {
        const rest = 3 * each - needed.reduce((sum, one) => sum + one)
        return Math.max(...needed) <= each ? each : needed[place] + rest / 3
    }

    implicitWidth: reset.implicitWidth + rerecord.implicitWidth + trim.implicitWidth + 2 * spacing
    implicitHeight: Theme.touch

    FontMetrics {
        id: metrics

        font: reset.font
    }

    TButton {
        id: reset

        width: root.filling ? root.filledWidth(0) : implicitWidth
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
        width: root.filling ? root.filledWidth(1) : implicitWidth
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
        width: root.filling ? root.filledWidth(2) : implicitWidth
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
