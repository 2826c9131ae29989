import QtQuick
import Tavi.Trimming
import Tavi.Ui

/// The trimmer below its title: high, lying on its side, or in a panel of a large window.
FocusScope {
    id: root

    // Sound runs from left to right, and what is done with it stands where it is.
    LayoutMirroring.enabled: false
    LayoutMirroring.childrenInherit: true

    required property AudioTrimmerViewController screen
    required property ZoomMotion zoomMotion
    /// A phone on its side.
    required property bool low
    required property bool wide
    /// The texts and controls under the plot are in one row.
    readonly property bool oneRow: low || wide
    readonly property int side: plot.sideRoom
    /// What everything but the plot takes, and the least height in which all of it can be used.
    readonly property real taken: (low ? 124 : wide ? 8 + 44 + 4 + 44 + 16 + 64 + 28 : 4 + 36 + 44 + 8 + 44 + 12 + 64 + 16 + 44 + 16)
    readonly property real least: taken + plot.labelRoom + 96
    /// What is left for the plot and its labels.
    readonly property real free: height - taken
    /// Air between the groups, the same everywhere.
    readonly property real air: low ? 0 : Math.max(0, (free - plotHeight) / 4)
    readonly property real plotHeight: Math.min(free, plot.labelRoom + (low ? 400 : Math.max(140, Math.min(Math.round(Theme.window.height * 0.36), 320))))
    // Under the plot, from the top down; in a low window the last row lies at the lower edge.
    readonly property real textTop: air + plotHeight + (oneRow ? 8 : 4)
    readonly property real overviewTop: low ? height - 60 : wide ? textTop + 48 : textTop + 36 + air
    readonly property real zoomTop: oneRow ? textTop : overviewTop + 52
    readonly property real playTop: low ? height - 64 : wide ? overviewTop + 60 + air : zoomTop + 56 + air

    TrimmerPlot {
        id: plot

        y: root.air
        width: parent.width
        height: root.plotHeight
        screen: root.screen
    }

    Label {
        id: range

        x: (parent.width - width) / 2
        y: root.textTop
        // In the middle, without touching what stands beside it.
        width: root.oneRow ? 2 * (zoom.x - 12) - parent.width : parent.width - 2 * Theme.gap
        height: root.oneRow ? 44 : 36
        objectName: "range"
        visible: !root.screen.areEditingControlsHidden
        text: root.screen.selection.rangeText
        color: Theme.text
        font.pixelSize: 16
        font.weight: Font.Medium
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 10
        horizontalAlignment: Text.AlignHCenter
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    TrimmerOverview {
        id: overview

        x: root.low ? play.x + play.width + 16 : root.side
        y: root.overviewTop
        width: root.low ? buttons.x - x - 16 : parent.width - 2 * root.side
        screen: root.screen
    }

    Label {
        // Below the edge of the plot where it fits there.
        x: Math.max(Theme.margin, Math.min(root.side, zoom.x - 8 - implicitWidth))
        y: zoom.y
        width: zoom.x - x - 8
        height: zoom.height
        objectName: "lblTotalDuration"
        text: qsTrId("trimmer_total").arg(root.screen.lblTotalDuration.text)
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 10
        elide: Text.ElideRight
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    ZoomControl {
        id: zoom

        x: parent.width - width - root.side
        y: root.zoomTop
        motion: root.zoomMotion
    }

    IconButton {
        id: play

        x: root.low ? root.side : Math.round((parent.width - width) / 2)
        y: root.playTop
        width: root.low ? 52 : 64
        height: width
        objectName: "btnPlayPause"
        imageName: root.screen.player.isPlaying ? "pause_Player.png" : "play_player.png"
        imageSize: root.low ? 26 : 32
        filled: true
        name: root.screen.player.isPlaying ? qsTrId("a11y_pause") : qsTrId("trimmer_play")
        shortcut: qsTrId("key_space")
        enabled: root.screen.source.problem === ""
        focus: true
        onClicked: root.screen.btnPlayPauseTapped()
    }

    TrimmerButtons {
        id: buttons

        x: root.low ? parent.width - width - root.side : root.wide ? root.side : Theme.margin
        y: root.low ? root.playTop + 4 : root.wide ? root.playTop + 10 : parent.height - height - 16
        width: root.low ? implicitWidth : parent.width - 2 * (root.wide ? root.side : Theme.margin)
        screen: root.screen
        filling: !root.oneRow
        spread: root.wide
        // Beside the play button there is room for long words, or for images.
        withImages: !root.low && root.width >= (root.wide ? 760 : 360)
    }
}
