import QtQuick
import Tavi.Trimming
import Tavi.Ui

/// Steps of the zoom about the middle, each a short movement unless whoever looks wants less of it.
NumberAnimation {
    id: motion

    required property TrimZoom zoom
    property real shown: 1

    /// Makes everything that many times as wide; also while the step before goes on.
    function step(times) {
        const wanted = (running ? to : zoom.factor) * times
        from = zoom.factor
        to = Math.max(1, Math.min(wanted, zoom.mostFactor))
        restart()
        if (Theme.reducedMotion)
            complete()
    }

    target: motion
    property: "shown"
    duration: Theme.zoom
    easing.type: Easing.OutCubic
    onShownChanged: zoom.zoomTo(shown)
}
