import QtQuick
import Tavi.Passcode
import Tavi.Ui

/// Four dots: how many digits there are, and never which.
Item {
    id: dots

    required property PasscodeViewController screen
    property var offsets: []
    /// How far the shake has come, in places of offsets.
    property real phase: 0
    readonly property int at: Math.min(Math.floor(phase), offsets.length - 1)
    readonly property real swing: {
        if (!shake.running || offsets.length === 0)
            return 0
        const next = Math.min(at + 1, offsets.length - 1)
        return offsets[at] + (offsets[next] - offsets[at]) * (phase - at)
    }

    width: row.width
    height: row.height
    Accessible.role: Accessible.StaticText
    Accessible.name: qsTrId("passcode_digits").arg(screen.numberOfDigitsEntered)

    Row {
        id: row

        x: dots.swing
        spacing: 22

        Repeater {
            model: dots.screen.passcodeEntryViews

            Rectangle {
                required property PasscodeCircularView modelData

                width: 14
                height: 14
                radius: 7
                color: modelData.filled ? modelData.fillColor : "transparent"
                border.width: 1
                border.color: modelData.lineColor
            }
        }
    }

    NumberAnimation {
        id: shake

        target: dots
        property: "phase"
        from: 0
    }

    NumberAnimation {
        id: wink

        target: row
        property: "opacity"
        from: 0
        to: 1
        duration: Theme.fade
    }

    Connections {
        target: dots.screen

        function onShakeRequested(offsets, seconds) {
            if (Theme.reducedMotion) {
                wink.restart()
                return
            }
            dots.offsets = offsets
            shake.to = offsets.length - 1
            shake.duration = seconds * 1000
            shake.restart()
        }
    }
}
