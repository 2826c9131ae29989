import QtQuick
import Tavi.Ui

/// The strip above a section of a table.
Rectangle {
    property alias text: label.text
    property alias textColor: label.color

    implicitHeight: 35
    color: Theme.header

    Label {
        id: label

        x: 10
        y: 5
        width: parent.width - 2 * x
        height: 18
        color: Theme.text
        elide: Text.ElideRight
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
}
