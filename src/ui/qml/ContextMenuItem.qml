import QtQuick
import Tavi.Ui
import QtQuick.Templates as T

/// One entry of a ContextMenu.
T.MenuItem {
    id: item

    property string imageName
    /// The key that does the same, as the user reads it.
    property string shortcut
    /// Takes something away.
    property bool destructive: false
    readonly property color tint: destructive ? Theme.tint : Theme.text

    implicitWidth: 220
    implicitHeight: 40
    hoverEnabled: true
    opacity: enabled ? 1.0 : Theme.disabledOpacity
    Accessible.name: text

    contentItem: Item {
        Icon {
            x: 14
            anchors.verticalCenter: parent.verticalCenter
            width: 20
            height: 20
            name: item.imageName
            color: item.tint
        }

        Label {
            x: 50
            width: keys.x - x - Theme.gap
            height: parent.height
            text: item.text
            color: item.tint
            font.pixelSize: Theme.textControl
            elide: Text.ElideRight
        }

        Label {
            id: keys

            anchors.right: parent.right
            anchors.rightMargin: 14
            height: parent.height
            text: item.shortcut
            font.pixelSize: Theme.textCaption
        }
    }

    background: Rectangle {
        radius: Theme.radiusTile
        color: item.down ? Theme.control : item.highlighted ? Theme.controlHover : "transparent"
    }
}
