import QtQuick
import Tavi.Ui
import QtQuick.Templates as T

/// A push button: filled, or a plain text and image on the ground.
T.Button {
    id: control

    property string imageName
    property color tint: Theme.text
    property color fill: "transparent"
    property color pressedFill: Theme.control

    implicitWidth: Math.max(Theme.touch, content.implicitWidth + 2 * padding)
    implicitHeight: Math.max(Theme.touch, content.implicitHeight + 16)
    padding: 12
    focusPolicy: Qt.TabFocus
    opacity: enabled ? 1.0 : Theme.disabledOpacity
    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.onPressAction: if (enabled) clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    contentItem: Item {
        id: content

        implicitWidth: words.implicitWidth + (image.visible ? image.width + row.spacing : 0)
        implicitHeight: row.implicitHeight

        Row {
            id: row

            anchors.centerIn: parent
            spacing: 4

            Label {
                id: words

                width: Math.min(implicitWidth, content.width - (image.visible ? image.width + row.spacing : 0))
                text: control.text
                color: control.tint
                font: control.font
                elide: Text.ElideRight
            }

            Icon {
                id: image

                anchors.verticalCenter: parent.verticalCenter
                width: 14
                height: 14
                visible: control.imageName !== ""
                name: control.imageName
                color: control.tint
            }
        }
    }

    font.family: Theme.family
    font.pixelSize: 15

    background: Rectangle {
        radius: 10
        color: control.down ? control.pressedFill : control.fill

        FocusFrame {
            anchors.fill: parent
            radius: parent.radius
            control: control
        }
    }
}
