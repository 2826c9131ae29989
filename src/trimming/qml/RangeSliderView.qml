import QtQuick
import Tavi.Trimming
import Tavi.Ui

/// Draws a range slider, and hands it touches.
Item {
    id: root

    required property RangeSlider slider

    function adoptFrame() {
        if (width > 0 && height > 0)
            slider.frame = Qt.rect(0, 0, width, height)
    }

    onWidthChanged: adoptFrame()
    onHeightChanged: adoptFrame()
    Component.onCompleted: adoptFrame()

    RangeHandle {
        slider: root.slider
        isMinimum: true
        z: 1
    }

    RangeHandle {
        slider: root.slider
        isMinimum: false
    }

    Repeater {
        model: [
            { centre: root.slider.minLabelCentre, text: root.slider.lblMinValue },
            { centre: root.slider.maxLabelCentre, text: root.slider.lblMaxVal }
        ]

        Label {
            required property var modelData

            x: modelData.centre.x - width / 2
            y: modelData.centre.y - height / 2
            z: 2
            width: 50
            height: 30
            visible: text !== ""
            text: modelData.text
            color: Theme.text
            font.pixelSize: 12
            horizontalAlignment: Text.AlignHCenter

            Rectangle {
                z: -1
                anchors.centerIn: parent
                width: 44
                height: 22
                radius: 6
                color: "#cc000000"
            }
        }
    }

    MouseArea {
        anchors.fill: parent
        z: 3
        preventStealing: true
        onPressed: mouse => root.slider.press(mouse.x, mouse.y)
        onPositionChanged: mouse => root.slider.drag(mouse.x, mouse.y)
        onReleased: root.slider.release()
        onCanceled: root.slider.release()
    }
}
