import QtQuick
import Tavi.Ui
import QtQuick.Templates as T

/// A slider whose owner decides where it rests.
T.Slider {
    id: control

    /// Where the slider rests; wherever the user moves it, the owner's answer is shown.
    required property real rest
    /// The user, a key or assistive technology asks for that value.
    signal slid(real value)
    /// How many steps a page is.
    property int page: 4
    readonly property real place: Math.max(from, Math.min(rest, to))
    property bool built: false

    function ask(wanted) {
        value = Math.max(from, Math.min(wanted, to))
    }

    // From left to right, as sound does, in every language.
    LayoutMirroring.enabled: false
    LayoutMirroring.childrenInherit: true
    implicitWidth: 160
    implicitHeight: Theme.touch
    padding: 0
    hoverEnabled: true
    focusPolicy: Qt.TabFocus
    opacity: enabled ? 1.0 : Theme.disabledOpacity
    live: true
    Accessible.role: Accessible.Slider
    Accessible.onIncreaseAction: ask(value + stepSize)
    Accessible.onDecreaseAction: ask(value - stepSize)
    Keys.onPressed: event => {
        if (event.key === Qt.Key_Home)
            ask(from)
        else if (event.key === Qt.Key_End)
            ask(to)
        else if (event.key === Qt.Key_PageUp)
            ask(value + page * stepSize)
        else if (event.key === Qt.Key_PageDown)
            ask(value - page * stepSize)
        else
            return
        event.accepted = true
    }
    value: place
    onValueChanged: {
        if (built && Math.abs(value - place) > 1e-6) {
            slid(value)
            value = Qt.binding(() => control.place)
        }
    }
    Component.onCompleted: built = true

    background: Rectangle {
        x: control.leftPadding
        y: (control.height - height) / 2
        width: control.availableWidth
        height: 4
        radius: 2
        color: Theme.track

        Rectangle {
            width: handle.x + handle.width / 2 - control.leftPadding
            height: parent.height
            radius: 2
            color: Theme.accent
        }
    }

    handle: Item {
        id: handle

        x: control.leftPadding + control.visualPosition * (control.availableWidth - width)
        y: (control.height - height) / 2
        width: 24
        height: 24

        Rectangle {
            readonly property int reach: control.pressed ? 12 : 8

            anchors.centerIn: parent
            width: parent.width - 2 + 2 * reach
            height: width
            radius: width / 2
            visible: control.pressed || control.hovered
            color: Theme.text
            opacity: control.pressed ? Theme.haloPressed : Theme.haloHover
        }

        Icon {
            anchors.fill: parent
            name: "thumb_active.png"
        }

        FocusFrame {
            anchors.margins: -3
            control: control
            around: 11
        }
    }
}
