import QtQuick
import Tavi.Trimming
import Tavi.Ui
import QtQuick.Templates as T

/// One thumb of a range slider, for the keyboard and for assistive technology; touches go to the whole slider.
T.Slider {
    id: control

    required property RangeSlider slider
    required property bool isMinimum

    x: (isMinimum ? slider.minThumbX : slider.maxThumbX) - width / 2
    y: slider.frame.height / 2 - height / 2
    width: Theme.touch
    height: slider.thumbHeight
    objectName: isMinimum ? "minThumb" : "maxThumb"
    from: 0
    to: 1
    focusPolicy: Qt.TabFocus
    Accessible.role: Accessible.Slider
    Accessible.name: isMinimum ? qsTrId("a11y_trim_start") : qsTrId("a11y_trim_end")
    Accessible.description: isMinimum ? slider.lblMinValue : slider.lblMaxVal
    Accessible.onIncreaseAction: slider.nudge(isMinimum, 1)
    Accessible.onDecreaseAction: slider.nudge(isMinimum, -1)
    Keys.onPressed: event => {
        const step = event.modifiers & Qt.ShiftModifier ? 1 : 0.01
        if (event.key === Qt.Key_Left || event.key === Qt.Key_Down)
            slider.nudge(isMinimum, -step)
        else if (event.key === Qt.Key_Right || event.key === Qt.Key_Up)
            slider.nudge(isMinimum, step)
        else
            return
        event.accepted = true
    }

    Icon {
        anchors.centerIn: parent
        width: control.slider.thumbWidth
        height: control.slider.thumbHeight
        name: control.isMinimum ? control.slider.minThumbImage : control.slider.maxThumbImage
        color: Theme.accent
    }

    FocusFrame {
        around: 8
        inside: true
        control: control
    }
}
