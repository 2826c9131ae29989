import QtQuick
import Tavi.Ui
import QtQuick.Templates as T

/// A row that opens something: an image, a text, and what is chosen at present.
T.AbstractButton {
    id: row

    property string imageName
    property string detail

    implicitHeight: 45
    hoverEnabled: true
    focusPolicy: Qt.TabFocus
    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.description: detail
    Accessible.onPressAction: if (enabled) clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    contentItem: Item {
        opacity: row.enabled ? 1.0 : Theme.disabledOpacity

        Icon {
            anchors.left: parent.left
            anchors.leftMargin: Theme.margin
            anchors.verticalCenter: parent.verticalCenter
            width: 20
            height: 20
            name: row.imageName
            color: Theme.label
        }

        Label {
            anchors.left: parent.left
            anchors.leftMargin: 48
            anchors.right: row.detail === "" ? chevron.left : value.left
            anchors.rightMargin: Theme.gap
            height: parent.height
            text: row.text
            wrapMode: Text.Wrap
            maximumLineCount: 2
            elide: Text.ElideRight
        }

        Label {
            id: value

            anchors.right: chevron.left
            anchors.rightMargin: Theme.gap
            height: parent.height
            width: Math.min(implicitWidth, parent.width / 2)
            text: row.detail
            color: Theme.light
            elide: Text.ElideRight
        }

        Icon {
            id: chevron

            anchors.right: parent.right
            anchors.rightMargin: 10
            anchors.verticalCenter: parent.verticalCenter
            width: 20
            height: 20
            name: "chevron-right"
            color: Theme.label
        }
    }

    background: RowGround {
        hovered: row.hovered
        pressed: row.down
        focused: row.visualFocus
    }
}
