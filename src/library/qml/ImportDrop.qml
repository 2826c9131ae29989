import QtQuick
import Tavi.Ui

/// Takes the files that are dropped on the window. It offers to copy and nothing else, so that nobody takes a file away
/// after the drop. What is dragged out of the window itself stays a recording.
DropArea {
    id: root

    /// Files have been dropped.
    signal taken(var urls)

    keys: ["text/uri-list"]
    onEntered: drag => {
        const isWelcome = drag.source === null && (drag.supportedActions & Qt.CopyAction)
        drag.accepted = isWelcome
        if (isWelcome)
            drag.accept(Qt.CopyAction)
    }
    onDropped: drop => {
        drop.accept(Qt.CopyAction)
        taken(drop.urls)
    }

    Rectangle {
        objectName: "importDrop"
        anchors.fill: parent
        visible: root.containsDrag
        color: Theme.scrim
        border.color: Theme.accent
        border.width: 2
        Accessible.role: Accessible.StaticText
        Accessible.name: words.title

        // What lies behind is no part of the words.
        Rectangle {
            anchors.centerIn: words
            width: words.width + 2 * Theme.margin
            height: words.height + 2 * Theme.margin
            radius: Theme.radiusSheet
            color: Theme.panel
        }

        EmptyState {
            id: words

            anchors.centerIn: parent
            width: Math.min(parent.width - 4 * Theme.margin, 320)
            room: parent.height
            imageName: "voicememo.png"
            title: qsTrId("import_drop")
        }
    }
}
