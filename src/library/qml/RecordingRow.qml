import QtQuick
import Tavi.Library
import Tavi.Ui
import Tavi.Waves

/// One recording: the shape of its sound, its name, and what is known of it.
Item {
    id: root

    required property int index
    required property string nameText
    required property string detailText
    required property var shape
    /// The row of its section of the table, which a search may show elsewhere.
    required property int row
    required property int section
    /// Whether its file is here, where it is in the cloud, and how much of it has been sent or has arrived.
    required property bool isHere
    required property string cloudState
    required property real progress
    required property VoiceMemoVC screen
    readonly property bool expanded: screen.selectedIndex === row && screen.selectedSection === section
    /// In the player, or made just now.
    readonly property bool chosen: expanded || section === 0 && screen.newRow === row
    readonly property bool narrow: width < 360
    readonly property string stateImage: ({
            waiting: "cloud-wait",
            sending: "cloud-send",
            there: "cloud-there",
            only: "cloud-only",
            arriving: "cloud-only",
            conflict: "cloud-conflict"
        })[cloudState] ?? ""
    readonly property string stateText: {
        if (cloudState === "sending")
            return qsTrId("cloud_row_sending").arg(Math.round(progress * 100))
        return ({
                waiting: qsTrId("cloud_row_waiting"),
                only: qsTrId("cloud_row_only"),
                arriving: qsTrId("cloud_row_arriving"),
                conflict: qsTrId("cloud_row_conflict")
            })[cloudState] ?? ""
    }
    readonly property color stateColor: cloudState === "conflict" ? Theme.amber : ["waiting", "there"].includes(cloudState) ? Theme.label : Theme.light
    readonly property string said: expanded ? detailText + " | " + (screen.player.isPlayerPlaying ? qsTrId("a11y_row_playing") : qsTrId("a11y_row_paused"))
                                     : detailText
    /// What is going on or wanted has a line of its own.
    readonly property bool hasStateLine: isHere && stateText !== ""

    /// The recording that the next action is about.
    function aim() {
        ListView.view.currentIndex = index
        screen.actions.aim(String(section), row, mapToItem(null, 0, 0, width, height))
    }

    /// The second way to the actions, at a point of the row.
    function ask(at) {
        aim()
        screen.actions.accessoryButtonTapped(mapToItem(null, at.x, at.y))
    }

    /// Hands the recording to whatever program it is let go over. The list holds it: a row may go meanwhile.
    function drag() {
        const carried = ListView.view.carried
        aim()
        carried.Drag.mimeData = screen.actions.dragged()
        if (Object.keys(carried.Drag.mimeData).length === 0)
            return
        const begin = picture => {
            if (pull.active) {
                carried.Drag.imageSource = picture
                carried.Drag.active = true
                // It has been let go, and this row may be no more.
                carried.Drag.active = false
            }
        }
        if (!tile.grabToImage(result => begin(result.url)))
            begin("")
    }

    width: ListView.view.width
    height: (narrow ? 60 : 64) + (hasStateLine ? 16 : 0)
    // A row that waits to be used again is nowhere.
    ListView.onPooled: visible = false
    ListView.onReused: visible = true
    Accessible.role: Accessible.ListItem
    Accessible.name: nameText
    Accessible.description: [said, stateText || (cloudState === "there" ? qsTrId("cloud_row_there") : "")].filter(text => text !== "").join(" | ")
    Accessible.selectable: true
    Accessible.selected: chosen
    Accessible.onPressAction: screen.didSelectRowAtIndexPath(section, row)

    Rectangle {
        anchors.fill: parent
        anchors.bottomMargin: 1
        visible: root.chosen || tap.pressed || hover.hovered
        color: root.chosen ? Theme.panel : tap.pressed ? Theme.panel : Theme.rowHover
    }

    Rectangle {
        anchors.left: parent.left
        width: 3
        height: root.height - 1
        visible: root.chosen
        color: Theme.accent
    }

    HoverHandler {
        id: hover
    }

    TapHandler {
        id: tap

        onTapped: {
            if (root.ListView.view.take(root.index))
                root.screen.didSelectRowAtIndexPath(root.section, root.row)
        }
        // Who drags a row holds it for long, too.
        onLongPressed: if (!pull.active) root.ask(point.position)
    }

    /// With the mouse a row goes to other programs, as in file managers; touch scrolls.
    DragHandler {
        id: pull

        target: null
        acceptedDevices: PointerDevice.Mouse
        grabPermissions: PointerHandler.CanTakeOverFromAnything
        onActiveChanged: {
            if (active)
                root.drag()
            else if (root.ListView.view)
                root.ListView.view.carried.Drag.active = false
        }
    }

    TapHandler {
        acceptedButtons: Qt.RightButton
        acceptedDevices: PointerDevice.Mouse
        onTapped: root.ask(point.position)
    }

    Rectangle {
        id: tile

        anchors.left: parent.left
        anchors.leftMargin: Theme.margin
        y: (root.height - height) / 2
        width: 44
        height: 44
        visible: !root.narrow
        radius: 8
        color: Theme.header

        BarsItem {
            anchors.centerIn: parent
            width: 30
            height: 28
            barWidth: 2
            gap: 2
            levels: root.narrow ? [] : root.shape
            color: root.chosen ? Theme.tint : Theme.faint
        }
    }

    Label {
        id: name

        anchors.left: parent.left
        anchors.leftMargin: root.narrow ? Theme.margin : Theme.margin + tile.width + 12
        anchors.right: cloud.visible ? cloud.left : more.left
        anchors.rightMargin: cloud.visible ? Theme.gap : 0
        y: root.narrow ? 8 : 10
        height: 23
        text: root.nameText
        font.pixelSize: 16
        font.weight: Font.Medium
        elide: Text.ElideMiddle
        maximumLineCount: 1
    }

    Label {
        anchors.left: name.left
        y: name.y + name.height
        width: name.width
        height: 19
        text: root.isHere ? root.detailText : root.stateText
        color: root.isHere ? Theme.label : root.stateColor
        font.pixelSize: 13
        // The times stay, the size goes first.
        elide: Text.ElideLeft
        maximumLineCount: 1
    }

    Row {
        anchors.left: name.left
        y: name.y + name.height + 19
        height: 16
        spacing: Theme.gap
        visible: root.hasStateLine

        Label {
            height: parent.height
            width: Math.min(implicitWidth, name.width - (bar.visible ? bar.width + parent.spacing : 0))
            text: root.stateText
            color: root.stateColor
            font.pixelSize: Theme.textCaption
            elide: Text.ElideRight
        }

        ProgressBar {
            id: bar

            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(88, name.width / 3)
            implicitHeight: 4
            visible: root.cloudState === "sending"
            name: root.stateText
            value: root.progress
        }
    }

    Icon {
        id: cloud

        anchors.right: more.left
        anchors.verticalCenter: parent.verticalCenter
        width: 22
        height: 22
        visible: root.stateImage !== ""
        name: root.stateImage
        color: root.stateColor
    }

    IconButton {
        id: more

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        objectName: "more"
        visible: root.isHere
        imageName: "more.png"
        tint: Theme.light
        name: qsTrId("a11y_more").arg(root.nameText)
        // The list is one stop of the Tab key; the Menu key asks for the same.
        focusPolicy: Qt.NoFocus
        onClicked: {
            root.aim()
            root.screen.actions.btnAccessoryViewClick(mapToItem(null, width / 2, height / 2))
        }
    }

    Rectangle {
        anchors.left: name.left
        anchors.right: parent.right
        y: root.height - 1
        height: 1
        color: Theme.line
    }

    Rectangle {
        anchors.fill: parent
        anchors.margins: 1
        visible: root.ListView.isCurrentItem && root.ListView.view.isFrameShown
        color: "transparent"
        border.color: Theme.focus
        border.width: 2
        radius: 8
    }
}
