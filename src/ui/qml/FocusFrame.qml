import QtQuick
import Tavi.Ui
import QtQuick.Templates as T

/// The frame around the control that has the keyboard: 2 wide and 2 away, or inside what fills a row. Shown once a key
/// has brought the focus, never after a tap.
Rectangle {
    required property T.Control control
    /// The radius of what is framed.
    property real around: Theme.radiusControl
    property bool inside: false

    anchors.fill: parent
    anchors.margins: inside ? 2 : -4
    visible: control.visualFocus
    color: "transparent"
    border.color: Theme.focus
    border.width: 2
    radius: inside ? Math.max(around - 2, 4) : around + 4
}
