import QtQuick
import Tavi.Ui
import QtQuick.Templates as T

/// A line to type what is looked for.
T.TextField {
    id: field

    signal leave()

    implicitHeight: Theme.touch
    leftPadding: 38
    rightPadding: clear.visible ? clear.width : 12
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
    Accessible.name: placeholderText
    Keys.onEscapePressed: {
        clear.clicked()
        leave()
    }
    Keys.onDownPressed: leave()
    Keys.onReturnPressed: leave()
    Keys.onEnterPressed: leave()

    Label {
        x: field.leftPadding
        height: parent.height
        visible: field.text === "" && field.preeditText === ""
        text: field.placeholderText
        font: field.font
    }

    Icon {
        x: 12
        anchors.verticalCenter: parent.verticalCenter
        width: 18
        height: 18
        name: "search.png"
        color: Theme.label
    }

    IconButton {
        id: clear

        anchors.right: parent.right
        width: Theme.touch
        height: parent.height
        visible: field.text !== ""
        imageName: "close.png"
        imageSize: 16
        tint: Theme.label
        name: qsTrId("a11y_clear_search")
        onClicked: field.clear()
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
