import QtQuick
import Tavi.Recording
import Tavi.Ui
import Tavi.Waves

/// The level view: the sound of this session over a ghost of what was there before, and what is to be said about it.
Rectangle {
    id: box

    required property AudioRecordVC screen
    /// What assistive technology reads as the level, in decibels.
    readonly property real from: -160
    readonly property real to: 0
    readonly property real value: screen.level.value

    radius: Theme.radiusWave
    color: Theme.well
    // Half a point wide: where that is less than a pixel, a pixel of half the brightness.
    border.color: Screen.devicePixelRatio < 2 ? "#6a6a6a" : Theme.light
    border.width: Math.max(1, Math.round(0.5 * Screen.devicePixelRatio)) / Screen.devicePixelRatio
    Accessible.role: Accessible.ProgressBar
    Accessible.name: qsTrId("a11y_level")
    Accessible.description: qsTrId("record_level_value").arg(Math.round(value))

    WaveViewItem {
        id: wave

        anchors.fill: parent
        anchors.margins: 2
        ground: Theme.well
        centreLine: Theme.lineStrong
        barColor: Theme.accent
        ghostColor: Theme.ghost
        earlier: box.screen.last.shape
        scaleColor: Theme.lineStrong
        columnWidth: 4
        headColor: box.screen.isRecordingRunning ? Theme.text : box.screen.isRecording ? Theme.faint : "transparent"
        wave: box.screen.waveViewMirror
    }

    Repeater {
        model: box.height < 160 ? [0] : [0, 15, 30]

        Label {
            required property int modelData

            x: parent.width - width - 10
            y: modelData === 0 ? 4 : Math.round(2 + (parent.height - 4) * modelData / 90 - height / 2)
            visible: !box.screen.isRecording
            text: modelData === 0 ? qsTrId("record_level_value").arg(0) : "−" + modelData
            color: Theme.label
            font.pixelSize: Theme.textCaption
        }
    }

    Row {
        x: parent.width - width - 10
        y: 8
        visible: box.screen.level.isClipping
        spacing: 6

        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            width: 10
            height: 10
            radius: 5
            color: Theme.tint
        }

        Label {
            text: qsTrId("record_peak")
            color: Theme.tint
            font.pixelSize: Theme.textCaption
            font.weight: Font.Medium
            Accessible.role: Accessible.AlertMessage
            Accessible.name: text
        }
    }

    Label {
        x: Theme.gapWide
        y: parent.height - height - Theme.gapWide
        width: parent.width - 2 * x
        visible: box.screen.level.isSilent
        text: qsTrId("record_silent")
        color: Theme.light
        font.pixelSize: Theme.textDetail
        wrapMode: Text.Wrap
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text
    }

    TButton {
        anchors.centerIn: parent
        objectName: "dismiss"
        kind: TButton.Quiet
        visible: box.screen.isDismissable
        text: qsTrId("session_dismiss")
        onClicked: box.screen.stopAndSaveRecording(this)
    }

    TButton {
        anchors.left: parent.left
        anchors.leftMargin: 2
        y: parent.height - height - 2
        width: Math.min(implicitWidth, parent.width - 4)
        objectName: "last"
        horizontalPadding: 10
        visible: box.screen.isIdle && !box.screen.isDismissable && box.screen.last.name !== ""
        text: qsTrId("record_last").arg(box.screen.last.name).arg(box.screen.last.time.replace(/^00:/, ""))
        tint: Theme.label
        font.pixelSize: Theme.textDetail
        Accessible.name: qsTrId("a11y_play_last").arg(box.screen.last.name)
        onClicked: box.screen.last.play()
    }
}
