import QtQuick
import Tavi.Library
import Tavi.Ui

/// One recording: its name, and what is known of it; beside each other where there is room.
Item {
    id: root

    required property int index
    required property string nameText
    required property string detailText
    /// The row of the table, which a search may show elsewhere.
    required property int row
    required property VoiceMemoVC screen
    readonly property bool expanded: screen.selectedIndex === row
    readonly property bool wide: width >= 640

    width: ListView.view.width
    height: wide ? 56 : 68
    // A row that waits to be used again is nowhere.
    ListView.onPooled: visible = false
    ListView.onReused: visible = true
    Accessible.role: Accessible.ListItem
    Accessible.name: nameText
    Accessible.description: expanded ? detailText + " | " + (screen.player.isPlayerPlaying ? qsTrId("a11y_row_playing") : qsTrId("a11y_row_paused"))
                                     : detailText
    Accessible.onPressAction: screen.didSelectRowAtIndexPath(0, row)

    Rectangle {
        anchors.fill: parent
        anchors.bottomMargin: 1
        readonly property bool marked: root.ListView.isCurrentItem && root.ListView.view.activeFocus

        visible: marked || root.expanded || tap.pressed
        color: tap.pressed ? Theme.control : Theme.header
        border.color: Theme.focus
        border.width: marked ? 2 : 0
        radius: marked ? 8 : 0
    }

    Rectangle {
        width: 3
        height: root.height - 1
        visible: root.expanded
        color: Theme.accent
    }

    TapHandler {
        id: tap

        onTapped: {
            root.ListView.view.currentIndex = root.index
            root.ListView.view.forceActiveFocus(Qt.MouseFocusReason)
            root.screen.didSelectRowAtIndexPath(0, root.row)
        }
    }

    Icon {
        id: icon

        x: Theme.margin
        anchors.verticalCenter: parent.verticalCenter
        width: 40
        height: 40
        name: "music.png"
        color: root.screen.selectRow === root.row ? Theme.text : Theme.accent
    }

    IconButton {
        id: trim

        anchors.right: parent.right
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        objectName: "trim"
        imageName: "trim.png"
        imageSize: 22
        tint: Theme.label
        name: qsTrId("a11y_trim").arg(root.nameText)
        // The list is one stop of the Tab key; T trims the current row.
        focusPolicy: Qt.NoFocus
        onClicked: root.screen.trimRow(root.row)
    }

    Label {
        id: name

        x: icon.x + icon.width + 12
        y: root.wide ? 0 : 13
        width: (root.wide ? detail.x - 24 : trim.x - 4) - x
        height: root.wide ? root.height : 22
        text: root.nameText
        color: Theme.lightGrey
        font.pixelSize: 15
        elide: Text.ElideMiddle
        maximumLineCount: 1
        horizontalAlignment: Text.AlignLeft
    }

    Label {
        id: detail

        x: root.wide ? trim.x - width - 12 : name.x
        y: root.wide ? 0 : 36
        width: root.wide ? 300 : name.width
        height: root.wide ? root.height : 18
        text: root.detailText
        font.pixelSize: 13
        elide: Text.ElideRight
        maximumLineCount: 1
        horizontalAlignment: root.wide ? Text.AlignRight : Text.AlignLeft
    }

    Rectangle {
        x: name.x
        y: root.height - 1
        width: root.width - x
        height: 1
        color: Theme.hairline
    }
}
