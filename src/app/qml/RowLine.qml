import QtQuick
import Tavi.Ui

/// Between two rows of a section, from their words on.
Item {
    implicitHeight: 1

    Rectangle {
        x: 52
        width: parent.width - x
        height: 1
        color: Theme.line
    }
}
