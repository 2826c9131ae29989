import QtQuick
import Tavi.Ui

/// A line to type what is looked for.
TField {
    id: field

    signal leave()

    lead: 38
    tail: clear.visible ? clear.width : Theme.gapWide
    Accessible.name: placeholderText
    Keys.onEscapePressed: {
        clear.clicked()
        leave()
    }
    Keys.onDownPressed: leave()
    Keys.onReturnPressed: leave()
    Keys.onEnterPressed: leave()

    Icon {
        anchors.left: parent.left
        anchors.leftMargin: 12
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
        onClicked: {
            field.clear()
            // Said by itself of what is typed alone.
            field.textEdited()
        }
    }
}
