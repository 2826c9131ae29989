import QtQuick
import Tavi.Ui
import QtQuick.Templates as T

/// A row of settings with a switch at its end; the whole row turns it.
T.Switch {
    id: control

    /// What the switch stands for; a turn of the user's that the owner does not adopt springs back.
    required property bool on
    property string imageName
    readonly property int lead: imageName === "" ? Theme.margin : 48
    property int tail: Theme.margin
    signal turned(bool on)

    implicitHeight: 45
    leftPadding: mirrored ? tail : lead
    rightPadding: mirrored ? lead : tail
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
        leftPadding: control.mirrored ? indicator.width + 12 : 0
        rightPadding: control.mirrored ? 0 : indicator.width + 12
        opacity: control.enabled ? 1.0 : Theme.disabledOpacity
    }

    indicator: Rectangle {
        id: indicator

        anchors.right: parent.right
        anchors.rightMargin: control.tail
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
            x: control.checked !== control.mirrored ? parent.width - width - 3 : 3
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
            anchors.left: parent.left
            anchors.leftMargin: Theme.margin
            anchors.verticalCenter: parent.verticalCenter
            width: 20
            height: 20
            opacity: control.enabled ? 1.0 : Theme.disabledOpacity
            name: control.imageName
            color: Theme.label
        }
    }
}
