import QtQuick
import Tavi.Ui
import QtQuick.Templates as T

/// A line to type in.
T.TextField {
    id: field

    implicitHeight: Theme.touch
    leftPadding: Theme.gapWide
    rightPadding: Theme.gapWide
    color: Theme.text
    placeholderTextColor: Theme.label
    selectionColor: Theme.accent
    selectedTextColor: Theme.text
    font.family: Theme.family
    font.pixelSize: Theme.textControl
    verticalAlignment: TextInput.AlignVCenter
    selectByMouse: true
    inputMethodHints: Qt.ImhNoPredictiveText
    Accessible.role: Accessible.EditableText

    Label {
        x: field.leftPadding
        height: parent.height
        visible: field.text === "" && field.preeditText === ""
        text: field.placeholderText
        font: field.font
    }

    background: Rectangle {
        y: 3
        width: parent.width
        height: parent.height - 6
        radius: Theme.radiusControl
        color: Theme.panel
        border.width: field.activeFocus ? 2 : 1
        border.color: field.activeFocus ? Theme.focus : Theme.edge
    }
}
