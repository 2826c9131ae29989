import QtQuick
import Tavi.Ui
import QtQuick.Templates as T

/// A row of settings with a switch at its end; the whole row turns it.
T.Switch {
    id: control

    /// What the switch stands for; a turn of the user's that the owner does not adopt springs back.
    required property bool on
    property string imageName
    signal turned(bool on)

    implicitHeight: 45
    leftPadding: imageName === "" ? Theme.margin : 48
    rightPadding: Theme.margin
    hoverEnabled: true
    focusPolicy: Qt.TabFocus
    font.family: Theme.family
    font.pixelSize: Theme.textBody
    Accessible.role: Accessible.CheckBox
    Accessible.name: text
    Accessible.checkable: true
    Accessible.checked: checked
    Accessible.onPressAction: if (enabled) turned(!on)
    Accessible.onToggleAction: if (enabled) turned(!on)
    Keys.onReturnPressed: turned(!on)
    Keys.onEnterPressed: turned(!on)
    checked: on
    onToggled: {
        control.turned(control.checked)
        control.checked = Qt.binding(() => control.on)
    }

    contentItem: Label {
        text: control.text
        font: control.font
        wrapMode: Text.Wrap
        maximumLineCount: 2
        elide: Text.ElideRight
        rightPadding: indicator.width + 12
        opacity: control.enabled ? 1.0 : Theme.disabledOpacity
    }

    indicator: Rectangle {
        id: indicator

        x: control.width - width - control.rightPadding
        y: (control.height - height) / 2
        width: 52
        height: 30
        radius: height / 2
        opacity: control.enabled ? 1.0 : Theme.disabledOpacity
        color: !control.checked ? (control.down ? Theme.controlPressed : control.hovered ? Theme.controlHover : Theme.control)
                                : control.down ? Theme.switchPressed : Theme.switchOn
        border.width: control.checked ? 0 : 1
        border.color: Theme.edge

        Rectangle {
            x: control.checked ? parent.width - width - 3 : 3
            y: 3
            width: 24
            height: 24
            radius: 12
            color: Theme.text

            Behavior on x {
                enabled: !Theme.reducedMotion

                NumberAnimation {
                    duration: Theme.select
                    easing.type: Easing.OutCubic
                }
            }
        }
    }

    background: RowGround {
        hovered: control.hovered
        pressed: control.down
        focused: control.visualFocus

        Icon {
            x: Theme.margin
            anchors.verticalCenter: parent.verticalCenter
            width: 20
            height: 20
            opacity: control.enabled ? 1.0 : Theme.disabledOpacity
            name: control.imageName
            color: Theme.label
        }
    }
}
