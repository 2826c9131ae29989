import QtQuick
import Tavi.Trimming
import Tavi.Ui
import Tavi.Waves

/// All of the recording, and a frame around what the plot shows: dragged it scrolls, at its edges it zooms.
Rectangle {
    id: root

    required property AudioTrimmerViewController screen
    readonly property TrimSelection selection: screen.selection
    readonly property TrimZoom zoom: screen.zoom

    objectName: "overview"
    implicitHeight: 44
    radius: Theme.radiusWave
    color: Theme.well
    Accessible.role: Accessible.Graphic
    Accessible.name: qsTrId("a11y_overview")

    BarsItem {
        anchors.fill: parent
        anchors.topMargin: 4
        anchors.bottomMargin: 4
        barWidth: 1
        gap: 0
        levels: root.screen.source.waveform
        color: Theme.trimEdge
        restColor: Theme.dim
        from: root.screen.areEditingControlsHidden ? 0 : root.selection.leftThumbX / root.selection.containerWidth
        to: root.screen.areEditingControlsHidden ? 1 : root.selection.rightThumbX / root.selection.containerWidth
    }

    Rectangle {
        id: frame

        x: Math.round(root.zoom.from * root.width) - 1
        width: Math.max(8, Math.round(root.zoom.to * root.width) + 1 - x)
        height: parent.height
        radius: 4
        color: "transparent"
        border.color: Theme.text
        border.width: 2
    }

    MouseArea {
        id: area

        readonly property int edge: 12
        /// What the pointer holds: -1 and 1 are the frame's edges, 0 all of it.
        property int held: 0
        property real last: 0

        function near(x) {
            return x < frame.x + Math.min(edge, frame.width / 4) ? -1
                 : x > frame.x + frame.width - Math.min(edge, frame.width / 4) ? 1 : 0
        }

        anchors.fill: parent
        hoverEnabled: true
        preventStealing: true
        cursorShape: near(mouseX) !== 0 ? Qt.SizeHorCursor : pressed ? Qt.ClosedHandCursor : Qt.OpenHandCursor
        onPressed: mouse => {
            const outside = mouse.x < frame.x - edge || mouse.x > frame.x + frame.width + edge
            if (outside)
                root.zoom.scrollBy(mouse.x / width - (root.zoom.from + root.zoom.to) / 2)
            held = outside ? 0 : near(mouse.x)
            last = mouse.x / width
        }
        onPositionChanged: mouse => {
            if (!pressed)
                return
            const now = mouse.x / width
            if (held < 0)
                root.zoom.show(Math.min(now, root.zoom.to), root.zoom.to)
            else if (held > 0)
                root.zoom.show(root.zoom.from, Math.max(now, root.zoom.from))
            else
                root.zoom.scrollBy(now - last)
            last = now
        }
    }
}
