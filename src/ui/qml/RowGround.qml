import QtQuick
import Tavi.Ui

/// What lies behind a row of a list or a table, and says its state.
Rectangle {
    id: ground

    property bool selected: false
    property bool hovered: false
    property bool pressed: false
    /// The keyboard is here.
    property bool focused: false

    color: pressed ? Theme.control : selected ? Theme.panel : hovered ? Theme.rowHover : "transparent"

    Rectangle {
        anchors.left: parent.left
        width: 3
        height: parent.height
        visible: ground.selected
        color: Theme.accent
    }

    Rectangle {
        anchors.fill: parent
        anchors.margins: 1
        visible: ground.focused
        color: "transparent"
        border.color: Theme.focus
        border.width: 2
        radius: Theme.radiusTile
    }
}
