import QtQuick
import Tavi.Ui

/// Shows beside a Flickable that there is more than fits, and where one is.
Rectangle {
    required property Flickable flickable

    visible: flickable.contentHeight > flickable.height
    x: flickable.x + flickable.width - width - 2
    y: flickable.y + flickable.visibleArea.yPosition * flickable.height
    width: 3
    height: Math.max(24, flickable.visibleArea.heightRatio * flickable.height)
    radius: 1.5
    color: "#5a5a5c"
}
