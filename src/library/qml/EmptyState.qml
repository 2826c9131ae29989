import QtQuick
import Tavi.Ui

/// What is said where there is nothing to show.
Column {
    id: root

    required property string imageName
    required property string title
    property string hint
    /// How high it may become: the image goes first, then the hint.
    property real room: Infinity

    spacing: 12

    Icon {
        anchors.horizontalCenter: parent.horizontalCenter
        width: 56
        height: 56
        visible: root.room >= 200
        name: root.imageName
        color: Theme.edge
    }

    Label {
        width: parent.width
        text: root.title
        color: Theme.light
        font.pixelSize: 17
        font.weight: Font.Medium
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    Label {
        width: parent.width
        visible: text !== "" && root.room >= 120
        text: root.hint
        lineHeight: 1.15
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
