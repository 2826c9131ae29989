import QtQuick
import Tavi.Ui
import QtQuick.Templates as T

/// How the colour of a control's ground follows the pointer: fast as it goes down, slower as it comes up again.
Behavior {
    id: fade

    required property T.AbstractButton control
    property bool pressed: false

    // Told before the colour begins to change.
    onTargetValueChanged: {
        colour.duration = control.down ? Theme.pressIn : pressed ? Theme.pressOut : Theme.fade
        pressed = control.down
    }

    ColorAnimation {
        id: colour
    }
}
