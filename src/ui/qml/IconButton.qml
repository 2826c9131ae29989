import QtQuick
import Tavi.Ui
import QtQuick.Templates as T

/// A button that is one image, with a caption under it where it has one.
T.Button {
    id: control

    required property string imageName
    /// What the button is called where it cannot be seen.
    required property string name
    property string caption
    property real imageSize: 28
    property real radius: Math.min(width, height) / 2
    property color tint: Theme.text
    property color fill: "transparent"

    implicitWidth: Math.max(Theme.touch, captionLabel.implicitWidth + 8)
    implicitHeight: Theme.touch
    focusPolicy: Qt.TabFocus
    opacity: enabled ? 1.0 : Theme.disabledOpacity
    Accessible.role: Accessible.Button
    Accessible.name: name
    Accessible.onPressAction: if (enabled) clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    contentItem: Item {
        Icon {
            anchors.horizontalCenter: parent.horizontalCenter
            y: (parent.height - height - (control.caption ? captionLabel.height : 0)) / 2
            width: control.imageSize
            height: control.imageSize
            name: control.imageName
            color: control.tint
        }

        Label {
            id: captionLabel

            anchors.horizontalCenter: parent.horizontalCenter
            y: (parent.height + control.imageSize - height) / 2
            visible: text !== ""
            text: control.caption
            font.pixelSize: 12
        }
    }

    background: Rectangle {
        radius: control.radius
        color: control.down ? Theme.pressed : control.fill

        FocusFrame {
            anchors.fill: parent
            radius: parent.radius
            control: control
        }
    }
}
