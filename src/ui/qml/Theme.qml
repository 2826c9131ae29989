pragma Singleton

import QtQuick

/// The tokens that every screen is built from: colours, sizes, times. Gaps are multiples of 4.
QtObject {
    // Surfaces, from the lowest up.
    readonly property color ground: "#000000"
    /// Inside views of waves.
    readonly property color well: "#0d0d0e"
    readonly property color rowHover: "#121213"
    /// Section headers, tiles of rows.
    readonly property color header: "#151515"
    /// Player, sheet, menu, selected row.
    readonly property color panel: "#1c1c1e"
    readonly property color control: "#2a2a2d"
    readonly property color controlHover: "#3a3a3d"
    readonly property color controlPressed: "#1c1c1e"
    readonly property color scrim: "#b3000000"
    /// Over the window while something is waited for.
    readonly property color veil: "#99000000"

    // Edges. The first two carry a control's shape; the lines mean nothing.
    readonly property color edge: "#78787d"
    /// Of a slider, where it has not passed yet.
    readonly property color track: "#68686d"
    readonly property color edgeDisabled: "#4a4a4e"
    readonly property color line: "#1f1f21"
    readonly property color lineStrong: "#2a2a2d"
    readonly property color focus: "#ffffff"

    // Levels of text.
    readonly property color text: "#ffffff"
    readonly property color light: "#d3d3d3"
    readonly property color label: "#a1a1a1"
    /// Shapes of tiles, numbers of decibels; never on a control.
    readonly property color faint: "#8a8a8e"

    // The accent: sound, or the one main act.
    readonly property color accent: "#c8252c"
    readonly property color accentHover: "#d6333a"
    readonly property color accentPressed: "#a01d23"
    /// The accent as small text or a small icon.
    readonly property color tint: "#f4727a"
    /// Ground of the selection pill, which has an edge in the accent.
    readonly property color tonal: "#3a1517"
    /// A wave that is not played, or not selected.
    readonly property color dim: "#5a2023"
    /// An earlier pass of the level view.
    readonly property color ghost: "#4a1c1f"
    readonly property color switchOn: "#b91022"
    readonly property color switchPressed: "#8d0c19"
    readonly property color trimEdge: "#d41b28"
    /// A conflict, never without an icon and words.
    readonly property color amber: "#e0b04a"

    // Letters: pixels at scale 1.
    readonly property string family: "Roboto"
    readonly property int textCaption: 12
    readonly property int textDetail: 13
    readonly property int textBody: 14
    readonly property int textControl: 15
    readonly property int textName: 16
    readonly property int textDialog: 17
    readonly property int textFormat: 19
    readonly property int textTitle: 22

    /// Scripts that run from right to left have no light letters in the usual fonts; what would take their place is uneven.
    readonly property int titleWeight: mirrored ? Font.Normal : Font.Light

    // Space.
    readonly property int gap: 8
    readonly property int gapWide: 12
    readonly property int margin: 16
    /// The least height and width of anything that is tapped.
    readonly property int touch: 44
    readonly property int radiusWave: 5
    readonly property int radiusTile: 8
    readonly property int radiusControl: 12
    readonly property int radiusSheet: 16
    /// From this width on there is room for a rail of tabs beside the screen, and for list and player side by side.
    readonly property int wideWidth: 800
    /// Windows lower than this that are wider than high are phones on their side.
    readonly property int lowHeight: 480

    /// From right to left, as the language is written. Sound runs from left to right all the same.
    readonly property bool mirrored: Qt.application.layoutDirection === Qt.RightToLeft
    /// The window as the screens are laid out in it.
    property size window: Qt.size(390, 844)

    // States.
    readonly property real disabledOpacity: 0.42
    readonly property real haloHover: 0.14
    readonly property real haloPressed: 0.22

    // Motion: milliseconds. Whoever wants less of it sees short cross-fades in the place of movements.
    property bool reducedMotion: false
    property int fade: 80
    readonly property int pressIn: reducedMotion ? fade : 60
    readonly property int pressOut: reducedMotion ? fade : 160
    readonly property int select: reducedMotion ? fade : 160
    /// A step of the zoom; without movements it is there at once.
    readonly property int zoom: 160
    readonly property int slide: reducedMotion ? fade : 240
    /// From one dot of the ring to the next; it shows that something goes on, and stays.
    readonly property int ringStep: reducedMotion ? 480 : 120
    readonly property int noticeIn: reducedMotion ? fade : 200
    readonly property int noticeOut: reducedMotion ? fade : 160
}
