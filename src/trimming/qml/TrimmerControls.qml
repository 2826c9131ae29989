import QtQuick
import Tavi.Trimming
import Tavi.Ui

/// The buttons below the waveform.
FocusScope {
    id: root

    required property AudioTrimmerViewController screen

    implicitHeight: play.height + 24 + buttons.height

    IconButton {
        id: play

        anchors.horizontalCenter: parent.horizontalCenter
        width: 64
        height: 64
        objectName: "btnPlayPause"
        imageName: root.screen.player.isPlaying ? "pause_Player.png" : "play_player.png"
        imageSize: 32
        filled: true
        name: root.screen.player.isPlaying ? qsTrId("a11y_pause") : qsTrId("trimmer_play")
        enabled: root.screen.problem === ""
        focus: true
        onClicked: root.screen.btnPlayPauseTapped()
    }

    Row {
        id: buttons

        anchors.horizontalCenter: parent.horizontalCenter
        y: play.height + 24
        spacing: 8

        TButton {
            width: Math.min(140, (root.width - 2 * Theme.margin - 16) / 3)
            objectName: "btnReset"
            text: qsTrId("trimmer_reset")
            kind: TButton.Quiet
            horizontalPadding: 8
            onClicked: root.screen.btnResetTapped()
        }

        TButton {
            width: Math.min(140, (root.width - 2 * Theme.margin - 16) / 3)
            objectName: "btnResetAudio"
            text: qsTrId("trimmer_rerecord")
            kind: TButton.Quiet
            horizontalPadding: 8
            onClicked: root.screen.btnResetAudioTapped()
        }

        TButton {
            width: Math.min(140, (root.width - 2 * Theme.margin - 16) / 3)
            objectName: "btnEditTrimmedVideo"
            text: root.screen.btnEditTrimmedVideo.title
            kind: TButton.Quiet
            horizontalPadding: 8
            enabled: root.screen.canExport
            Accessible.checkable: true
            Accessible.checked: root.screen.btnEditTrimmedVideo.selected
            onClicked: root.screen.btnEditTrimmedVideoTapped()
        }
    }
}
