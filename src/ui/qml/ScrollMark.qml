import QtQuick
import Tavi.Ui

/// Shows beside a Flickable that there is more than fits, and where one is.
Rectangle {
    required property Flickable flickable
    /// How much of the Flickable's top is covered.
    property real coveredTop: 0
    /// How far it is from the Flickable's end.
    property real inset: 2
    readonly property real room: flickable.height - coveredTop

    objectName: "scrollMark"
    visible: flickable.contentHeight > flickable.height
    x: flickable.x + (Theme.mirrored ? inset : flickable.width - width - inset)
    y: flickable.y + coveredTop + flickable.visibleArea.yPosition * room
    width: 3
    height: Math.max(24, flickable.visibleArea.heightRatio * room)
    radius: 1.5
    color: Theme.track
}
