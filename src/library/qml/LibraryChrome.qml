import QtQuick
import Tavi.Library
import Tavi.Ui

/// What stands above the recordings: the title, which a search takes the place of, the order, and the section's name.
FocusScope {
    id: root

    required property VoiceMemoVC screen
    required property bool isEmpty
    /// Of the section that is below.
    required property string sectionText
    readonly property PlayerPanel player: screen.player
    readonly property int titleHeight: 44
    /// The search has been unfolded, or still hides recordings.
    readonly property bool finding: field.visible
    /// The keyboard is in the row that scrolls away.
    readonly property bool held: find.activeFocus || speaker.activeFocus

    signal leave()

    function search() {
        field.open = true
        field.forceActiveFocus(Qt.ShortcutFocusReason)
        field.selectAll()
    }

    implicitHeight: titleHeight + 44 + section.implicitHeight

    Rectangle {
        anchors.fill: parent
        color: Theme.ground
    }

    Label {
        anchors.left: parent.left
        anchors.leftMargin: Theme.margin
        anchors.right: parent.right
        anchors.rightMargin: 2 * Theme.touch
        height: root.titleHeight
        visible: !root.finding
        text: root.screen.title
        font.pixelSize: 22
        font.weight: Theme.titleWeight
        elide: Text.ElideRight
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }

    IconButton {
        id: find

        anchors.right: speaker.left
        objectName: "find"
        visible: !root.finding && !root.isEmpty
        imageName: "search.png"
        imageSize: 24
        tint: Theme.light
        name: qsTrId("library_search")
        shortcut: qsTrId("key_ctrl").arg("F")
        onClicked: root.search()
    }

    IconButton {
        id: speaker

        anchors.right: parent.right
        objectName: "speakerButton"
        imageName: root.player.speakerButton.image
        imageSize: 24
        tint: root.player.speakerButton.tintColor || Theme.light
        name: root.player.ishandset ? qsTrId("a11y_to_speaker") : qsTrId("a11y_to_earpiece")
        onClicked: root.player.playerSpeaker()
    }

    SearchField {
        id: field

        property bool open: false

        anchors.left: parent.left
        anchors.leftMargin: 8
        anchors.right: speaker.left
        height: root.titleHeight
        objectName: "search"
        visible: open || root.screen.table.searchText !== ""
        placeholderText: qsTrId("library_search")
        text: root.screen.table.searchText
        onTextEdited: root.screen.table.searchText = text
        onActiveFocusChanged: if (!activeFocus && text === "") open = false
        onLeave: root.leave()
    }

    Row {
        anchors.left: parent.left
        anchors.leftMargin: 8
        y: root.titleHeight

        SortButton {
            objectName: "btnSortName"
            title: root.screen.table.btnSortName.title
            image: root.screen.table.btnSortName.image
            ascending: root.screen.table.btnSortName.selected
            onClicked: root.screen.table.sortByName(this)
        }

        SortButton {
            objectName: "btnSortDate"
            title: root.screen.table.btnSortDate.title
            image: root.screen.table.btnSortDate.image
            ascending: root.screen.table.btnSortDate.selected
            onClicked: root.screen.table.sortByDate(this)
        }

        SortButton {
            objectName: "btnSortSize"
            title: root.screen.table.btnSortSize.title
            image: root.screen.table.btnSortSize.image
            ascending: root.screen.table.btnSortSize.selected
            onClicked: root.screen.table.sortBySize(this)
        }
    }

    SectionHeader {
        id: section

        y: root.titleHeight + 44
        width: parent.width
        text: root.sectionText
        textColor: Theme.light
    }
}
