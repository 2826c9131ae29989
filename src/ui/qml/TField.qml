import QtQuick
import Tavi.Ui
import QtQuick.Templates as T

/// A line to type in.
T.TextField {
    id: field

    /// Before and after the words.
    property int lead: Theme.gapWide
    property int tail: Theme.gapWide

    implicitHeight: Theme.touch
    leftPadding: Theme.mirrored ? tail : lead
    rightPadding: Theme.mirrored ? lead : tail
    color: Theme.text
    placeholderTextColor: Theme.label
    selectionColor: Theme.accent
    selectedTextColor: Theme.text
    font.family: Theme.family
    font.pixelSize: Theme.textControl
    horizontalAlignment: TextInput.AlignLeft
    verticalAlignment: TextInput.AlignVCenter
    selectByMouse: true
    inputMethodHints: Qt.ImhNoPredictiveText
    Accessible.role: Accessible.EditableText

    Label {
        anchors.left: parent.left
        anchors.leftMargin: field.lead
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
