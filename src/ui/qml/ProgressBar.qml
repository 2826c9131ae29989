import QtQuick
import Tavi.Ui

/// How much of something is done.
Rectangle {
    id: bar

    /// What is being done, for those who cannot see it.
    property string name
    property real value: 0
    readonly property real from: 0
    readonly property real to: 1

    implicitHeight: 6
    radius: height / 2
    color: Theme.control
    Accessible.role: Accessible.ProgressBar
    Accessible.name: name
    Accessible.description: Math.round(value * 100) + " %"

    Rectangle {
        anchors.left: parent.left
        width: parent.width * bar.value
        height: parent.height
        radius: parent.radius
        color: Theme.accent
    }
}
