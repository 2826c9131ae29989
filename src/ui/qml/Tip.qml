import QtQuick
import Tavi.Ui
import QtQuick.Templates as T

/// What a control without words does, and the key that does the same; shown while the pointer rests on it.
Loader {
    id: tip

    required property T.AbstractButton control
    required property string text
    /// As the user reads it, such as "Ctrl+F"; empty where no key does the same.
    property string shortcut

    // A control that has gone, with the screen around it, may still count as hovered.
    active: control.visible && control.hovered && control.enabled && !control.down && text !== ""
    sourceComponent: T.ToolTip {
        id: popup

        parent: tip.control
        visible: true
        delay: 600
        margins: 4
        x: (tip.control.width - width) / 2
        y: tip.control.height + 6
        implicitWidth: words.implicitWidth + 20
        implicitHeight: words.implicitHeight + 12
        padding: 0
        contentItem: Label {
            id: words

            text: tip.shortcut === "" ? tip.text : tip.text + "  (" + tip.shortcut + ")"
            color: Theme.text
            font.pixelSize: Theme.textCaption
            horizontalAlignment: Text.AlignHCenter
        }
        background: Rectangle {
            radius: Theme.radiusTile
            color: Theme.control
            border.color: Theme.edge
        }
    }
}
