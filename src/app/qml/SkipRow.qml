import QtQuick
import Tavi.Settings
import Tavi.Ui

/// A row with a text and the slider that the text tells of.
Item {
    id: row

    required property string text
    required property real seconds
    property string imageName
    signal slid(real value)

    implicitHeight: 45

    Icon {
        anchors.left: parent.left
        anchors.leftMargin: Theme.margin
        anchors.verticalCenter: parent.verticalCenter
        width: 20
        height: 20
        name: row.imageName
        color: Theme.label
    }

    Label {
        id: label

        anchors.left: parent.left
        anchors.leftMargin: 48
        width: 126
        height: parent.height
        text: row.text
        elide: Text.ElideRight
        Accessible.ignored: true
    }

    // The slider itself is not mirrored, but its place is.
    Item {
        anchors.left: label.right
        anchors.right: parent.right
        anchors.leftMargin: Theme.gapWide
        anchors.rightMargin: Theme.margin
        height: parent.height

        TSlider {
            anchors.fill: parent
            from: 5
            to: 60
            stepSize: 5
            rest: row.seconds
            Accessible.name: row.text
            onSlid: value => row.slid(value)
        }
    }
}
