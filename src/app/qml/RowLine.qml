import QtQuick
import Tavi.Ui

/// Between two rows of a section, from their words on.
Item {
    id: line

    property int inset: 48

    implicitHeight: 1

    Rectangle {
        anchors.left: parent.left
        anchors.leftMargin: line.inset
        anchors.right: parent.right
        height: 1
        color: Theme.line
    }
}
