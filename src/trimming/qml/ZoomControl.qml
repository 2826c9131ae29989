import QtQuick
import Tavi.Trimming
import Tavi.Ui

/// How many times as wide as the view the waveform is, and the buttons that change it.
Item {
    id: root

    required property ZoomMotion motion
    readonly property TrimZoom zoom: motion.zoom

    implicitWidth: 140
    implicitHeight: Theme.touch
    Accessible.role: Accessible.Grouping
    Accessible.name: qsTrId("a11y_zoom")

    Rectangle {
        anchors.fill: parent
        radius: height / 2
        color: "transparent"
        border.color: Theme.edge
    }

    IconButton {
        objectName: "zoomOut"
        imageName: "zoom-out"
        imageSize: 22
        tint: Theme.light
        name: qsTrId("a11y_zoom_out")
        shortcut: "−"
        enabled: root.zoom.factor > 1
        onClicked: root.motion.step(0.5)
    }

    Label {
        anchors.centerIn: parent
        text: qsTrId("trimmer_zoom").arg(root.zoom.factor.toLocaleString(Qt.locale(), "f", root.zoom.factor < 10 ? 1 : 0))
        color: Theme.light
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    IconButton {
        anchors.right: parent.right
        objectName: "zoomIn"
        imageName: "zoom-in"
        imageSize: 22
        tint: Theme.light
        name: qsTrId("a11y_zoom_in")
        shortcut: "+"
        enabled: root.zoom.factor < root.zoom.mostFactor
        onClicked: root.motion.step(2)
    }
}
