import QtQuick
import Tavi.Ui

/// Shows beside a Flickable that there is more than fits, and where one is.
Rectangle {
    required property Flickable flickable
    /// How much of the Flickable's top is covered.
    property real coveredTop: 0
    readonly property real room: flickable.height - coveredTop

    visible: flickable.contentHeight > flickable.height
    x: flickable.x + flickable.width - width - 2
    y: flickable.y + coveredTop + flickable.visibleArea.yPosition * room
    width: 3
    height: Math.max(24, flickable.visibleArea.heightRatio * room)
    radius: 1.5
    color: Theme.track
}
