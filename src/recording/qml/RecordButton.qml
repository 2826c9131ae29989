import QtQuick
import Tavi.Recording
import QtQuick.Templates as T
import Tavi.Ui

/// One of the two equal rings, its picture inside and its word below.
T.AbstractButton {
    id: button

    required property string picture
    required property string name
    property string shortcut
    property color tint: Theme.text
    property int diameter: 80
    property bool captioned: true

    width: diameter + 16
    height: diameter + (captioned ? 28 : 0)
    hoverEnabled: true
    focusPolicy: Qt.TabFocus
    Accessible.role: Accessible.Button
    Accessible.name: name
    Accessible.onPressAction: if (enabled) clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    contentItem: Item {
        Label {
            y: button.diameter + Theme.gap
            width: parent.width
            height: 20
            visible: button.captioned
            opacity: button.enabled ? 1.0 : Theme.disabledOpacity
            text: button.text
            color: Theme.text
            horizontalAlignment: Text.AlignHCenter
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }

    background: Item {
        Rectangle {
            id: ring

            anchors.horizontalCenter: parent.horizontalCenter
            width: button.diameter
            height: button.diameter
            radius: button.diameter / 2
            color: button.down ? Theme.controlPressed : button.hovered && button.enabled ? Theme.panel : "transparent"
            border.width: button.enabled ? 3 : 2
            border.color: button.enabled ? Theme.text : Theme.edgeDisabled

            PressFade on color {
                control: button
            }

            Icon {
                anchors.fill: parent
                name: button.picture
                color: button.enabled ? button.tint : Theme.track
            }

            FocusFrame {
                control: button
                around: button.diameter / 2
            }
        }
    }

    Tip {
        control: button
        text: button.name
        shortcut: button.shortcut
    }
}
