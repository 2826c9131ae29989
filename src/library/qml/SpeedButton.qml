import QtQuick
import Tavi.Library
import Tavi.Ui

/// One of the three speeds; filled while it is the one chosen.
TButton {
    required property string name
    property bool selected: false

    width: 64
    height: Theme.touch
    fill: selected ? Theme.accent : Theme.control
    tint: selected ? Theme.text : Theme.lightGrey
    Accessible.name: name
    Accessible.checkable: true
    Accessible.checked: selected
}
