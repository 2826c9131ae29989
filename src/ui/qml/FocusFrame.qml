import QtQuick
import Tavi.Ui
import QtQuick.Templates as T

/// The frame around the control that has the keyboard.
Rectangle {
    required property T.Control control

    visible: control.visualFocus
    color: "transparent"
    border.color: Theme.focus
    border.width: 2
    radius: 8
}
