import QtQuick
import Tavi.Ui
import QtQuick.Templates as T

/// A round button that is one image, with a caption under it where it has one.
T.Button {
    id: control

    required property string imageName
    /// What the button is called where it cannot be seen, and by its tip.
    required property string name
    property string caption
    /// The key that does the same, as the user reads it.
    property string shortcut
    property real imageSize: 24
    property real radius: Math.min(width, height) / 2
    property color tint: Theme.text
    /// Filled in the accent: a screen's main act.
    property bool filled: false

    implicitWidth: Math.max(Theme.touch, captionLabel.implicitWidth + 8)
    implicitHeight: Theme.touch
    hoverEnabled: true
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
            font.pixelSize: Theme.textCaption
        }
    }

    background: Rectangle {
        radius: control.radius
        color: control.filled ? (control.down ? Theme.accentPressed : control.hovered ? Theme.accentHover : Theme.accent)
                              : (control.down ? Theme.controlPressed : control.hovered ? Theme.control : "transparent")

        PressFade on color {
            control: control
        }

        FocusFrame {
            control: control
            around: parent.radius
            inside: !control.filled
        }
    }

    Tip {
        control: control
        text: control.name
        shortcut: control.shortcut
    }
}
