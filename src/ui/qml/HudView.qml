import QtQuick
import Tavi.Ui

/// Covers the window while something is waited for: nothing below takes taps or keys.
FocusScope {
    id: view

    required property JHUD hud
    /// An alert stands before it, and has the keys.
    property bool behind: false

    function takeKeys() {
        if (behind)
            return
        const taker = cancel.visible ? cancel : rest
        taker.forceActiveFocus(Qt.PopupFocusReason)
    }

    focus: true
    Keys.onEscapePressed: hud.cancel()
    // No key reaches what lies below.
    Keys.onPressed: event => event.accepted = true
    onBehindChanged: takeKeys()
    Component.onCompleted: takeKeys()

    Connections {
        target: view.hud

        // The button that has the keys may have gone.
        function onShownChanged() {
            Qt.callLater(view.takeKeys)
        }
    }

    /// Has the keys where there is no button.
    Item {
        id: rest
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.veil
    }

    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
        acceptedButtons: Qt.AllButtons
        onWheel: wheel => wheel.accepted = true
    }

    Rectangle {
        anchors.centerIn: parent
        width: Math.min(parent.width - 2 * Theme.margin, 320)
        height: column.height + 2 * column.y
        radius: Theme.radiusSheet
        color: Theme.panel
        border.color: Theme.control
        Accessible.role: Accessible.AlertMessage
        Accessible.name: view.hud.text

        Column {
            id: column

            x: 20
            y: 20
            width: parent.width - 2 * x
            spacing: Theme.margin

            ProgressRing {
                anchors.horizontalCenter: parent.horizontalCenter
                visible: !view.hud.bar
            }

            Label {
                width: parent.width
                visible: text !== ""
                text: view.hud.text
                color: Theme.text
                font.pixelSize: Theme.textDialog
                wrapMode: Text.Wrap
                maximumLineCount: 3
                elide: Text.ElideRight
                horizontalAlignment: Text.AlignHCenter
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }

            ProgressBar {
                width: parent.width
                visible: view.hud.bar
                name: view.hud.text
                value: view.hud.share
            }

            TButton {
                id: cancel

                anchors.horizontalCenter: parent.horizontalCenter
                width: 140
                objectName: "hudCancel"
                visible: view.hud.cancellable
                text: qsTrId("Cancel")
                kind: TButton.Quiet
                onClicked: view.hud.cancel()
            }
        }
    }
}
