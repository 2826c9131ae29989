import QtQuick
import Tavi.Ui

/// Between two rows of a section, from their words on.
Item {
    implicitHeight: 1

    Rectangle {
        anchors.left: parent.left
        anchors.leftMargin: 52
        anchors.right: parent.right
        height: 1
        color: Theme.line
    }
}
