import QtQuick
import Tavi.Ui

/// The time of a thumb, on its own ground.
Rectangle {
    property alias text: words.text

    y: 2
    height: 24
    radius: Theme.radiusWave
    color: Theme.text

    Label {
        id: words

        anchors.fill: parent
        color: Theme.ground
        font.weight: Font.Medium
        horizontalAlignment: Text.AlignHCenter
        // The thumb says it.
        Accessible.ignored: true
    }
}
