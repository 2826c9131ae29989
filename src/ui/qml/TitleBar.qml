import QtQuick
import Tavi.Ui

/// The title above a screen.
Item {
    property alias text: label.text

    implicitHeight: 52

    Label {
        id: label

        anchors.fill: parent
        anchors.leftMargin: Theme.margin
        anchors.rightMargin: Theme.margin
        horizontalAlignment: Text.AlignHCenter
        font.pixelSize: 22
        font.weight: Font.Light
        elide: Text.ElideRight
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
}
