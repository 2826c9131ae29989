import QtQuick
import Tavi.Library
import Tavi.Ui

/// Ends playing. Stands apart from the speeds, and says what it is.
TButton {
    required property VoiceMemoVC screen

    objectName: "stopAudio"
    text: qsTrId("player_stop")
    kind: TButton.Quiet
    imageName: "stop_Play.png"
    imageFirst: true
    radius: height / 2
    Accessible.name: qsTrId("a11y_stop_playing")
    onClicked: screen.stopAudio()
}
