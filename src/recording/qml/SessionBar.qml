import QtQuick
import Tavi.Recording
import Tavi.Ui

/// Shown on the other tabs while the tabs are locked: says what goes on, and is the way back to the record screen; after
/// a start that failed, also what ends it.
Rectangle {
    id: bar

    required property AudioRecordVC screen
    required property TabBarController tabBar
    readonly property string clock: screen.lblTimer.text.replace(/^00:/, "")

    implicitHeight: visible ? 48 : 0
    visible: tabBar.selectedIndex !== 0 && !tabBar.userInteractionEnabled
    color: Theme.panel

    Rectangle {
        id: dot

        anchors.left: parent.left
        anchors.leftMargin: Theme.margin
        anchors.verticalCenter: parent.verticalCenter
        width: 10
        height: 10
        radius: 5
        visible: bar.screen.isRecording
        color: bar.screen.isRecordingRunning ? Theme.accent : "transparent"
        border.color: bar.screen.isRecordingRunning ? Theme.accent : Theme.label
        border.width: 2
    }

    Label {
        anchors.left: dot.visible ? dot.right : parent.left
        anchors.leftMargin: dot.visible ? Theme.gap : Theme.margin
        anchors.right: actions.left
        height: parent.height
        objectName: "session"
        text: bar.screen.isRecording ? qsTrId("session_running").arg(bar.screen.lblRecording.text).arg(bar.clock)
            : bar.screen.isDismissable ? qsTrId("session_failed") : bar.screen.hint
        color: Theme.text
        elide: Text.ElideRight
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    Row {
        id: actions

        anchors.right: parent.right
        anchors.rightMargin: 4
        anchors.verticalCenter: parent.verticalCenter

        TButton {
            objectName: "sessionDismiss"
            visible: bar.screen.isDismissable
            text: qsTrId("session_dismiss")
            onClicked: bar.screen.stopAndSaveRecording(this)
        }

        TButton {
            objectName: "sessionReturn"
            kind: TButton.Tint
            text: qsTrId("session_return")
            onClicked: bar.tabBar.goBack()
        }
    }

    Rectangle {
        y: parent.height - 1
        width: parent.width
        height: 1
        color: Theme.lineStrong
    }
}
