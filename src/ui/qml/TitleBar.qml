import QtQuick
import Tavi.Ui

/// The title above a screen.
Item {
    property alias text: label.text
    /// How much of the right end a button has.
    property real endWidth: 0

    implicitHeight: 44

    Label {
        id: label

        anchors.fill: parent
        anchors.leftMargin: Theme.margin
        anchors.rightMargin: Theme.margin + parent.endWidth
        font.pixelSize: Theme.textTitle
        font.weight: Theme.titleWeight
        elide: Text.ElideRight
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
}
