import QtQuick
import Tavi.Settings
import Tavi.Ui

/// A row with a text and the slider that the text tells of.
Item {
    id: row

    required property string text
    required property real seconds
    signal slid(real value)

    implicitHeight: 45

    Label {
        id: label

        x: Theme.margin
        width: 132
        height: parent.height
        text: row.text
        elide: Text.ElideRight
    }

    TSlider {
        anchors.left: label.right
        anchors.right: parent.right
        anchors.leftMargin: 12
        anchors.rightMargin: Theme.margin
        height: parent.height
        from: 5
        to: 60
        stepSize: 5
        rest: row.seconds
        Accessible.name: row.text
        onSlid: value => row.slid(value)
    }
}
