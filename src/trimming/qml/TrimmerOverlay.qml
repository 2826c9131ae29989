import QtQuick
import Tavi.Trimming

/// Covers the window with the trimmer while its stage shows one.
Loader {
    id: overlay

    required property AudioTrimmerStage stage
    readonly property bool shown: stage.screen !== null

    function follow() {
        // Not bound: the screen outlives what shows it.
        if (stage.screen !== null)
            setSource("qrc:/Tavi/Trimming/TrimmerScreen.qml", { screen: stage.screen })
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
