import QtQuick
import Tavi.Ui
import QtQuick.Templates as T

/// One choice of an ActionSheet: a row, marked where it is what holds now; the cancelling one is a quiet button.
T.Button {
    id: control

    required property var modelData
    readonly property int spokenRole: modelData.choice ? Accessible.RadioButton : Accessible.Button
    readonly property var spokenChecked: modelData.choice ? modelData.chosen : undefined
    readonly property color tint: modelData.destructive ? Theme.tint : Theme.text

    text: modelData.title
    hoverEnabled: true
    focusPolicy: Qt.TabFocus
    Accessible.role: spokenRole
    Accessible.name: text
    Accessible.onPressAction: clicked()
    Accessible.onToggleAction: clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    contentItem: Item {
        Icon {
            anchors.left: parent.left
            anchors.leftMargin: 20
            anchors.verticalCenter: parent.verticalCenter
            width: 20
            height: 20
            visible: control.modelData.chosen || control.modelData.image !== ""
            name: control.modelData.chosen ? "check" : control.modelData.image
            color: control.modelData.chosen ? Theme.tint : control.tint
        }

        Label {
            anchors.left: parent.left
            anchors.leftMargin: control.modelData.cancel ? Theme.gap : 56
            anchors.right: parent.right
            anchors.rightMargin: control.modelData.cancel ? Theme.gap : Theme.margin
            height: parent.height
            text: control.text
            color: control.tint
            font.pixelSize: Theme.textControl
            font.weight: control.modelData.cancel || control.modelData.chosen ? Font.Medium : Font.Normal
            horizontalAlignment: control.modelData.cancel ? Text.AlignHCenter : Text.AlignLeft
            elide: Text.ElideRight
        }
    }

    background: Rectangle {
        radius: control.modelData.cancel ? Theme.radiusControl : 0
        border.width: control.modelData.cancel ? 1 : 0
        border.color: Theme.edge
        color: control.down ? Theme.controlPressed : control.hovered ? (control.modelData.cancel ? Theme.controlHover : Theme.control)
             : control.modelData.cancel ? Theme.control : "transparent"

        FocusFrame {
            control: control
            inside: !control.modelData.cancel
        }
    }
}
