import QtQuick
import Tavi.Library
import Tavi.Ui

/// The recordings that a search leaves, below a chrome that the list leaves room for.
ListView {
    id: list

    required property VoiceMemoVC screen
    /// How much of the top is for the chrome, and how much of that always stays.
    required property real chromeHeight
    required property real stayingHeight
    /// What a notice covers of the foot.
    required property real footRoom
    /// How far the list has been scrolled from its top.
    readonly property real scrolled: contentY - originY
    /// The last thing that chose a row was a key.
    property bool isByKey: false
    readonly property bool isFrameShown: activeFocus && isByKey
    /// What is dragged to other programs.
    readonly property alias carried: carried
    /// What is below the chrome are the cloud's rows.
    readonly property bool isCloudOnTop: {
        const item = count > 0 ? itemAt(width / 2, contentY + stayingHeight) : null
        return item !== null && item.section === 1
    }
    /// How far the list has to be pulled for a refresh, and is.
    readonly property real pullLength: 64
    readonly property real pulled: Math.max(0, -scrolled)

    /// When a tap has last opened a row, in milliseconds.
    property real opened: 0

    /// A tap chooses a row. False for the second of a double one: it means the same as the first, wherever the player that
    /// comes in has moved the rows meanwhile.
    function take(index) {
        const now = Date.now()
        if (screen.isPanelShown && now - opened < Qt.styleHints.mouseDoubleClickInterval)
            return false
        opened = now
        isByKey = false
        currentIndex = index
        forceActiveFocus(Qt.MouseFocusReason)
        return true
    }

    /// Goes by that many rows, as far as there are some.
    function go(rows) {
        currentIndex = Math.max(0, Math.min(currentIndex + rows, count - 1))
    }

    function play() {
        if (currentItem)
            screen.didSelectRowAtIndexPath(currentItem.section, currentItem.row)
    }

    /// What a key does with the current row; false where it is none of these.
    function act(key, modifiers) {
        const actions = screen.actions
        const withControl = modifiers & Qt.ControlModifier
        const isKnown = withControl ? [Qt.Key_C, Qt.Key_E].includes(key)
                                    : [Qt.Key_F2, Qt.Key_Delete, Qt.Key_T, Qt.Key_Menu].includes(key)
                                      || key === Qt.Key_F10 && (modifiers & Qt.ShiftModifier)
        if (!currentItem || !isKnown)
            return false
        positionViewAtIndex(currentIndex, ListView.Contain)
        currentItem.aim()
        if (key === Qt.Key_C)
            actions.copyToClipboard()
        else if (key === Qt.Key_E)
            actions.uploadToIcloudDocuments()
        else if (key === Qt.Key_F2)
            actions.kReNameAudio()
        else if (key === Qt.Key_Delete)
            actions.showDeletealert()
        else if (key === Qt.Key_T)
            actions.trimAudio()
        else
            currentItem.ask(Qt.point(currentItem.width / 2, currentItem.height / 2))
        return true
    }

    objectName: "tableView"
    focus: true
    activeFocusOnTab: true
    reuseItems: true
    boundsBehavior: screen.cloud.canRefresh ? Flickable.DragOverBounds : Flickable.StopAtBounds
    onDragEnded: if (pulled >= pullLength) screen.cloud.refresh()
    // The mark of the current row jumps: nothing here moves by itself.
    highlightMoveDuration: 0
    highlightResizeDuration: 0
    highlightRangeMode: ListView.ApplyRange
    preferredHighlightBegin: stayingHeight
    preferredHighlightEnd: height - footRoom
    bottomMargin: footRoom
    keyNavigationEnabled: true
    model: screen.table.tableView
    header: Item {
        width: list.width
        height: list.chromeHeight
    }
    footer: SectionHeader {
        width: list.width
        height: visible ? implicitHeight : 0
        visible: text !== "" && !list.screen.table.showsCloudRows
        text: list.screen.cloudHeaderText
        textColor: Theme.light
    }
    section.property: "section"
    // The list itself hides and shows the outer item.
    section.delegate: Item {
        // That of the first section stays above the list. The list hands the section over by its context: it has a property of
        // that name itself.
        readonly property bool isShown: section === "1"

        width: list.width
        height: isShown ? header.implicitHeight : 0

        SectionHeader {
            id: header

            width: parent.width
            visible: parent.isShown
            text: list.screen.cloudHeaderText
            textColor: Theme.light
        }
    }
    delegate: RecordingRow {
        screen: list.screen
    }
    onActiveFocusChanged: if (!activeFocus) isByKey = true
    // What has just been opened stays in sight as the player comes in.
    onHeightChanged: if (screen.isPanelShown) positionViewAtIndex(currentIndex, ListView.Contain)
    Keys.onReturnPressed: play()
    Keys.onEnterPressed: play()
    Keys.onPressed: event => {
        const page = Math.max(1, Math.floor((height - stayingHeight) / 64) - 1)
        isByKey = true
        event.accepted = true
        if (event.key === Qt.Key_Home)
            go(-count)
        else if (event.key === Qt.Key_End)
            go(count)
        else if (event.key === Qt.Key_PageUp)
            go(-page)
        else if (event.key === Qt.Key_PageDown)
            go(page)
        else
            event.accepted = act(event.key, event.modifiers)
    }
    Accessible.role: Accessible.List
    Accessible.name: screen.headerText

    Item {
        id: carried

        Drag.dragType: Drag.Automatic
        // The recording stays: nothing that is dropped is moved away.
        Drag.supportedActions: Qt.CopyAction
    }

    Connections {
        target: list.screen

        function onRowRevealed(row) {
            const index = list.screen.table.shownIndex(row)
            if (index < 0)
                return
            list.currentIndex = index
            const y = list.currentItem ? list.currentItem.y - list.contentY : -1
            // What is in sight stays where it is.
            if (y < list.stayingHeight || y + list.currentItem.height > list.height - list.footRoom)
                list.positionViewAtIndex(index, ListView.Center)
        }
    }
}
