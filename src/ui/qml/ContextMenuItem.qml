import QtQuick
import Tavi.Ui
import QtQuick.Templates as T

/// One entry of a ContextMenu.
T.Button {
    id: item

    required property var modelData
    readonly property color tint: modelData.destructive ? Theme.tint : Theme.text

    implicitHeight: Theme.touch
    text: modelData.title
    hoverEnabled: true
    focusPolicy: Qt.TabFocus
    Accessible.role: Accessible.MenuItem
    Accessible.name: text
    Accessible.onPressAction: clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    contentItem: Item {
        Icon {
            anchors.left: parent.left
            anchors.leftMargin: 14
            anchors.verticalCenter: parent.verticalCenter
            width: 20
            height: 20
            name: item.modelData.image
            color: item.tint
        }

        Label {
            anchors.left: parent.left
            anchors.leftMargin: 50
            anchors.right: keys.left
            anchors.rightMargin: Theme.gap
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
            text: item.modelData.shortcut
            font.pixelSize: Theme.textCaption
        }
    }

    background: Rectangle {
        radius: Theme.radiusTile
        color: item.down ? Theme.control : item.hovered ? Theme.controlHover : "transparent"

        FocusFrame {
            control: item
            inside: true
        }
    }
}
