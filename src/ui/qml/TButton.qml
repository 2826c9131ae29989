import QtQuick
import Tavi.Ui
import QtQuick.Templates as T

/// A push button. A screen has one that is filled: its main act.
T.Button {
    id: control

    enum Kind {
        /// In the accent: the one main act.
        Filled,
        /// A grey ground with an edge.
        Quiet,
        /// Words on whatever lies below.
        Plain,
        /// Words in the accent's tint: an act in passing, or one that takes something away.
        Tint
    }

    property int kind: TButton.Plain
    property string imageName
    /// On which side of the words the image stands.
    property bool imageFirst: false
    property real imageSize: 16
    property real radius: Theme.radiusControl
    /// Words and image; the kind's own unless it is set.
    property color tint: kind === TButton.Tint ? Theme.tint : Theme.text
    property string shortcut
    readonly property bool raised: kind === TButton.Filled || kind === TButton.Quiet

    implicitWidth: Math.max(Theme.touch, content.implicitWidth + leftPadding + rightPadding)
    implicitHeight: Theme.touch
    horizontalPadding: raised ? 18 : 12
    hoverEnabled: true
    focusPolicy: Qt.TabFocus
    opacity: enabled ? 1.0 : Theme.disabledOpacity
    font.family: Theme.family
    font.pixelSize: Theme.textControl
    font.weight: kind === TButton.Plain ? Font.Normal : Font.Medium
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
            layoutDirection: control.imageFirst ? Qt.RightToLeft : Qt.LeftToRight
            spacing: Theme.gap

            Label {
                id: words

                width: Math.min(implicitWidth, content.width - (image.visible ? image.width + row.spacing : 0))
                text: control.text
                color: control.tint
                font: control.font
                fontSizeMode: Text.HorizontalFit
                minimumPixelSize: 11
                elide: Text.ElideRight
            }

            Icon {
                id: image

                anchors.verticalCenter: parent.verticalCenter
                width: control.imageSize
                height: control.imageSize
                visible: control.imageName !== ""
                name: control.imageName
                color: control.tint
            }
        }
    }

    background: Rectangle {
        radius: control.radius
        border.width: control.kind === TButton.Quiet ? 1 : 0
        border.color: Theme.edge
        color: {
            if (control.kind === TButton.Filled)
                return control.down ? Theme.accentPressed : control.hovered ? Theme.accentHover : Theme.accent
            if (control.kind === TButton.Quiet)
                return control.down ? Theme.controlPressed : control.hovered ? Theme.controlHover : Theme.control
            return control.down ? Theme.controlPressed : control.hovered ? Theme.control : "transparent"
        }

        PressFade on color {
            control: control
        }

        FocusFrame {
            control: control
            around: control.radius
            inside: !control.raised
        }
    }

    Tip {
        control: control
        text: control.shortcut === "" ? "" : control.text
        shortcut: control.shortcut
    }
}
