import QtQuick

/// Covers the window with a trimmer while its stage shows one.
Loader {
    id: overlay

    /// An AudioTrimmerStage or an AudioTrimStage.
    required property QtObject stage
    /// What shows the stage's screen.
    required property url url
    readonly property bool shown: stage.screen !== null

    function follow() {
        // Not bound: the screen outlives what shows it.
        if (stage.screen !== null)
            setSource(url, { screen: stage.screen })
        else
            source = ""
    }

    anchors.fill: parent
    focus: shown
    onLoaded: item.forceActiveFocus(Qt.PopupFocusReason)
    Component.onCompleted: follow()

    Connections {
        target: overlay.stage

        function onScreenChanged() {
            overlay.follow()
        }
    }
}
