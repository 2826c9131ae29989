pragma Singleton

import QtQuick

/// Colours and sizes of the shell, in one place.
QtObject {
    readonly property color ground: "#000000"
    readonly property color well: "#0a0a0a"
    readonly property color header: "#151515"
    readonly property color panel: "#1b1b1c"
    readonly property color control: "#2c2c2e"
    readonly property color pressed: "#3a3a3c"
    readonly property color hairline: "#262626"
    readonly property color accent: "#c8252c"
    readonly property color switchTint: "#b91022"
    readonly property color warning: "#ff6961"
    readonly property color text: "#ffffff"
    readonly property color label: "#a1a1a1"
    readonly property color lightGrey: "#d3d3d3"
    readonly property color light: "#d3d3d3"
    readonly property color edge: "#78787d"
    readonly property color track: "#68686d"
    readonly property color faint: "#8a8a8e"
    readonly property color tint: "#f4727a"
    readonly property color dim: "#5a2023"
    readonly property color hoveredRow: "#121213"
    readonly property color line: "#1f1f21"
    readonly property color focus: "#ffffff"
    readonly property color scrim: "#b3000000"

    readonly property string family: "Roboto"
    readonly property int textSize: 14
    readonly property int margin: 16
    /// The least height of anything that is tapped.
    readonly property int touch: 44
    /// From this width on there is room for a rail of tabs beside the screen.
    readonly property int wideWidth: 800
    readonly property real disabledOpacity: 0.35
}
