import QtQuick
import Tavi.Ui

/// Choices of which one holds, joined in one pill. Its children are SegmentButtons.
Item {
    id: control

    default property alias segments: row.data
    /// What is chosen among, for who cannot see it.
    required property string name

    implicitWidth: 3 * 56
    implicitHeight: Theme.touch
    Accessible.role: Accessible.Grouping
    Accessible.name: name

    Row {
        id: row

        // A scale of speeds, as of sound.
        LayoutMirroring.enabled: false
        LayoutMirroring.childrenInherit: true
        anchors.fill: parent
    }

    Rectangle {
        anchors.fill: parent
        radius: height / 2
        color: "transparent"
        border.color: Theme.edge
    }
}
