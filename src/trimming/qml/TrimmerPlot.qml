import QtQuick
import Tavi.Trimming
import Tavi.Ui
import Tavi.Waves

/// The waveform, or the part of it that the zoom shows, with the thumbs over it, their times and the play head.
Item {
    id: root

    required property AudioTrimmerViewController screen
    readonly property TrimSelection selection: screen.selection
    readonly property TrimZoom zoom: screen.zoom
    readonly property bool editing: !screen.areEditingControlsHidden
    /// Thumbs at the ends reach this far beyond the waveform, and their times stand this high above it.
    readonly property int sideRoom: 44
    readonly property int labelRoom: 32

    /// Place in the view of one in the selection's container.
    function shown(x) {
        return Math.max(0, Math.min(x - zoom.offset, view.width))
    }

    Item {
        id: view

        x: root.sideRoom
        y: root.labelRoom
        width: parent.width - 2 * x
        height: parent.height - y
        onWidthChanged: root.zoom.viewWidth = width
        Component.onCompleted: root.zoom.viewWidth = width

        EZAudioPlotItem {
            anchors.fill: parent
            plot: root.screen.audioPlot
            contentWidth: root.selection.containerWidth
            contentX: root.zoom.offset
            tint: root.editing ? Theme.dim : "transparent"
        }

        // What is kept.
        Item {
            x: root.shown(root.selection.leftThumbX)
            width: root.shown(root.selection.rightThumbX) - x
            height: parent.height
            visible: root.editing
            clip: true

            EZAudioPlotItem {
                x: -parent.x
                width: view.width
                height: view.height
                plot: root.screen.audioPlot
                contentWidth: root.selection.containerWidth
                contentX: root.zoom.offset
            }

            Rectangle {
                anchors.fill: parent
                color: Theme.trimEdge
                opacity: 0.12
            }
        }

        Label {
            anchors.centerIn: parent
            width: Math.min(parent.width - 2 * Theme.margin, implicitWidth)
            objectName: "problem"
            text: root.screen.source.problem || (root.screen.source.isLoading ? qsTrId("trimmer_loading") : "")
            visible: text !== ""
            color: root.screen.source.problem ? Theme.tint : Theme.label
            wrapMode: Text.Wrap
            maximumLineCount: 3
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignHCenter
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }

        Rectangle {
            anchors.fill: parent
            color: "transparent"
            border.color: Theme.trimEdge
            border.width: 2
        }

        // A TapHandler that sees one of two fingers lift inside waits for that finger from then on.
        MouseArea {
            anchors.fill: parent
            onClicked: mouse => root.screen.player.moveTo(mouse.x + root.zoom.offset)
        }

        DragHandler {
            property real last: 0

            target: null
            yAxis.enabled: false
            // Two fingers zoom also where one of them leaves the plot.
            grabPermissions: PointerHandler.CanTakeOverFromItems | PointerHandler.ApprovesTakeOverByAnything
            onActiveChanged: last = 0
            onTranslationChanged: {
                root.zoom.scrollBy((last - translation.x) / root.selection.containerWidth)
                last = translation.x
            }
        }

        PinchHandler {
            property real last: 1

            target: null
            onActiveChanged: last = 1
            onActiveScaleChanged: {
                if (active)
                    root.zoom.zoomBy(activeScale / last, centroid.position.x)
                last = activeScale
            }
        }

        WheelHandler {
            acceptedModifiers: Qt.ControlModifier
            onWheel: event => root.zoom.zoomBy(Math.pow(1.25, event.angleDelta.y / 120), event.x)
        }

        WheelHandler {
            orientation: Qt.Vertical
            acceptedModifiers: Qt.NoModifier
            onWheel: event => root.zoom.scrollBy(-event.angleDelta.y / 600 / root.zoom.factor)
        }

        WheelHandler {
            orientation: Qt.Horizontal
            acceptedModifiers: Qt.NoModifier
            onWheel: event => root.zoom.scrollBy(-event.angleDelta.x / 600 / root.zoom.factor)
        }

        Rectangle {
            readonly property real place: root.screen.player.indicatorX - root.zoom.offset

            objectName: "indicator"
            x: Math.round(place - width / 2)
            width: 2
            height: parent.height
            visible: !root.screen.player.indicatorHidden && place >= 0 && place <= view.width
            color: Theme.text
        }

        Connections {
            target: root.screen.player

            function onIndicatorChanged() {
                if (!root.screen.player.indicatorHidden)
                    root.zoom.reveal(root.screen.player.indicatorX)
            }
        }

        SelectionThumb {
            isLeft: true
            selection: root.selection
            zoom: root.zoom
            visible: root.editing
        }

        SelectionThumb {
            isLeft: false
            selection: root.selection
            zoom: root.zoom
            visible: root.editing
        }
    }

    SelectionTime {
        id: start

        objectName: "lblStartTime"
        x: view.x + root.selection.lblStartX - root.zoom.offset
        width: root.selection.labelWidth
        text: root.selection.lblStartTime.text
        visible: root.editing && x >= 0 && x + width <= root.width
    }

    SelectionTime {
        // Inside the waveform where both do not fit beside each other.
        readonly property bool crowded: root.selection.lblEndX < root.selection.lblStartX + root.selection.labelWidth

        objectName: "lblEndTime"
        x: view.x + root.selection.lblEndX - root.zoom.offset
        y: crowded ? view.y + 6 : 2
        width: root.selection.labelWidth
        text: root.selection.lblEndTime.text
        visible: root.editing && x >= 0 && x + width <= root.width
    }
}
