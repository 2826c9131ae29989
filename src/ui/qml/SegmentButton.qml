import QtQuick
import Tavi.Ui
import QtQuick.Templates as T

/// One choice of a SegmentedControl. The chosen one is filled, its words are of medium weight, and it says so.
T.AbstractButton {
    id: control

    required property string name
    /// Whether this choice holds; a tap of the user's only asks for it.
    required property bool chosen
    property string shortcut
    readonly property int spokenRole: Accessible.RadioButton
    readonly property bool spokenChecked: chosen
    readonly property int place: Array.prototype.indexOf.call(parent.children, control)
    readonly property bool first: place === 0
    readonly property bool last: place === parent.children.length - 1

    width: parent.width / parent.children.length
    height: parent.height
    hoverEnabled: true
    focusPolicy: Qt.TabFocus
    Accessible.role: spokenRole
    Accessible.name: name
    Accessible.onPressAction: if (enabled) clicked()
    Accessible.onToggleAction: if (enabled) clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    contentItem: Label {
        opacity: control.enabled ? 1.0 : Theme.disabledOpacity
        text: control.text
        color: control.chosen ? Theme.text : Theme.light
        font.pixelSize: Theme.textControl
        font.weight: control.chosen ? Font.Bold : Font.Normal
        horizontalAlignment: Text.AlignHCenter
    }

    background: Item {
        // A round end, and a square one beside the neighbour.
        Repeater {
            model: [0, 1]

            Rectangle {
                required property int modelData
                readonly property bool square: modelData === 0 ? !control.first : !control.last

                x: modelData === 0 ? 0 : parent.width - width
                width: square ? parent.width - parent.height / 2 : parent.width
                height: parent.height
                radius: square ? 0 : height / 2
                visible: square || (control.first && control.last) || (modelData === 0 ? control.first : control.last)
                // The two lie over each other, so they are dimmed by their colour.
                color: !control.enabled ? (control.chosen ? Qt.darker(Theme.accent, 1 / Theme.disabledOpacity) : "transparent")
                     : control.chosen ? (control.down ? Theme.accentPressed : control.hovered ? Theme.accentHover : Theme.accent)
                                      : (control.down ? Theme.controlPressed : control.hovered ? Theme.controlHover : "transparent")
            }
        }

        Rectangle {
            x: -1
            width: 1
            height: parent.height
            visible: !control.first
            color: Theme.edge
        }

        FocusFrame {
            control: control
            around: control.first || control.last ? control.height / 2 : 6
            inside: true
        }
    }

    Tip {
        control: control
        text: control.name
        shortcut: control.shortcut
    }
}
