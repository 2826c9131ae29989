import QtQuick
import Tavi.Settings
import QtQuick.Templates as T
import Tavi.Ui

/// A row that opens a sheet of choices and shows the present one.
T.AbstractButton {
    id: row

    required property string detail

    implicitHeight: 45
    leftPadding: Theme.margin
    rightPadding: Theme.margin
    opacity: enabled ? 1.0 : Theme.disabledOpacity
    focusPolicy: Qt.TabFocus
    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.description: detail
    Accessible.onPressAction: if (enabled) clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    contentItem: Item {
        Label {
            height: parent.height
            width: parent.width - value.width - chevron.width - 24
            text: row.text
            elide: Text.ElideRight
        }

        Label {
            id: value

            anchors.right: chevron.left
            anchors.rightMargin: 10
            height: parent.height
            width: Math.min(implicitWidth, parent.width / 2)
            text: row.detail
            color: Theme.lightGrey
            elide: Text.ElideRight
        }

        Label {
            id: chevron

            anchors.right: parent.right
            height: parent.height
            text: "\u203a"
            font.pixelSize: 22
            bottomPadding: 3
            Accessible.ignored: true
        }
    }

    background: Rectangle {
        color: row.down ? Theme.header : "transparent"

        FocusFrame {
            anchors.fill: parent
            control: row
            radius: 0
        }
    }
}
