import QtQuick
import Tavi.Ui

/// A light that goes round on a ring of dots: something goes on, and nobody knows how long.
Item {
    id: ring

    readonly property int count: 8
    property int lit: 0

    implicitWidth: 48
    implicitHeight: 48

    // In steps, so that the window is painted a few times a second and no more.
    Timer {
        interval: Theme.ringStep
        repeat: true
        running: ring.visible
        onTriggered: ring.lit = (ring.lit + 1) % ring.count
    }

    Repeater {
        model: ring.count

        Rectangle {
            required property int index
            readonly property real angle: index / ring.count * 2 * Math.PI

            x: ring.width / 2 + Math.sin(angle) * (ring.width - width) / 2 - width / 2
            y: ring.height / 2 - Math.cos(angle) * (ring.height - height) / 2 - height / 2
            width: 8
            height: 8
            radius: 4
            color: index === ring.lit ? Theme.light : Theme.accent
        }
    }
}
