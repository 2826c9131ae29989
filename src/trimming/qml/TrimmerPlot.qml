import QtQuick
import Tavi.Trimming
import Tavi.Ui
import Tavi.Waves

/// The waveform with the thumbs over it, their times and the play head.
Item {
    id: root

    required property AudioTrimmerViewController screen
    readonly property TrimSelection selection: screen.selection

    Item {
        id: container

        // Thumbs at the ends reach beyond the waveform.
        x: 48
        y: 44
        width: parent.width - 2 * x
        height: Math.max(120, Math.min(parent.height - y - 60, 440))
        onWidthChanged: if (width > 0) root.selection.containerWidth = width
        Component.onCompleted: if (width > 0) root.selection.containerWidth = width

        EZAudioPlotItem {
            anchors.fill: parent
            plot: root.screen.audioPlot
        }

        Label {
            anchors.centerIn: parent
            width: Math.min(parent.width - 2 * Theme.margin, implicitWidth)
            objectName: "problem"
            text: root.screen.problem || (root.screen.isLoading ? qsTrId("trimmer_loading") : "")
            visible: text !== ""
            color: root.screen.problem ? Theme.tint : Theme.label
            elide: Text.ElideRight
            maximumLineCount: 1
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }

        Rectangle {
            width: root.selection.leftThumbX
            height: parent.height
            visible: !root.screen.areEditingControlsHidden
            color: "#b3000000"
        }

        Rectangle {
            x: root.selection.rightThumbX
            width: parent.width - x
            height: parent.height
            visible: !root.screen.areEditingControlsHidden
            color: "#b3000000"
        }

        Rectangle {
            anchors.fill: parent
            color: "transparent"
            border.color: "#d41b28"
            border.width: 2
        }

        Rectangle {
            objectName: "indicator"
            x: Math.round(root.screen.player.indicatorX - width / 2)
            width: 2
            height: parent.height
            visible: !root.screen.player.indicatorHidden
            color: Theme.text
        }

        SelectionThumb {
            isLeft: true
            selection: root.selection
            visible: !root.screen.areEditingControlsHidden
        }

        SelectionThumb {
            isLeft: false
            selection: root.selection
            visible: !root.screen.areEditingControlsHidden
        }
    }

    Label {
        objectName: "lblStartTime"
        x: container.x + root.selection.lblStartX
        y: container.y - height - 12
        width: root.selection.labelWidth
        visible: !root.screen.areEditingControlsHidden
        text: root.selection.lblStartTime.text
        color: Theme.text
        horizontalAlignment: Text.AlignHCenter
        Accessible.ignored: true
    }

    Label {
        // Below where both do not fit beside each other.
        readonly property bool crowded: root.selection.lblEndX < root.selection.lblStartX + root.selection.labelWidth

        objectName: "lblEndTime"
        x: container.x + root.selection.lblEndX
        y: crowded ? container.y + container.height + 12 : container.y - height - 12
        width: root.selection.labelWidth
        visible: !root.screen.areEditingControlsHidden
        text: root.selection.lblEndTime.text
        color: Theme.text
        horizontalAlignment: Text.AlignHCenter
        Accessible.ignored: true
    }

    Label {
        anchors.horizontalCenter: parent.horizontalCenter
        y: container.y + container.height + 36
        objectName: "lblTotalDuration"
        text: qsTrId("trimmer_total").arg(root.screen.lblTotalDuration.text)
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
