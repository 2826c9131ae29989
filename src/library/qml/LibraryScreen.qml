import QtQuick
import Tavi.Library
import Tavi.Ui

/// The library tab: the recordings, and the player below or beside them.
FocusScope {
    id: root

    required property VoiceMemoVC screen
    /// Room for list and player beside each other: large windows, and phones that lie on their side.
    readonly property bool beside: width >= 600 && (Theme.window.width >= Theme.wideWidth || Theme.window.height < Theme.lowHeight)
    /// Too low for list and player at once, which then is one line until it is unfolded.
    readonly property bool low: !beside && Theme.window.height < 640
    property bool unfolded: false
    readonly property bool folded: low && !unfolded
    readonly property PlayerPanel player: screen.player
    /// What a notice takes of the list while it shows.
    property real footRoom: 0
    /// Where a notice hides nothing of the player: over the list.
    readonly property rect noticeArea: Qt.rect(page.x, 0, page.width, page.height)

    /// Opens and closes the player. What disappears with the keyboard inside it first hands that to the list.
    function follow() {
        if (!screen.isPanelShown && (view.activeFocus || mini.activeFocus)) {
            const isByKey = Window.activeFocusItem.visualFocus === true
            list.forceActiveFocus(Qt.OtherFocusReason)
            list.isByKey = isByKey
        }
        panel.open = screen.isPanelShown
        unfolded = unfolded && panel.open
    }

    Keys.onPressed: event => {
        const loaded = root.screen.isPlaying
        event.accepted = true
        if (event.key === Qt.Key_Space && (loaded || list.currentItem))
            root.screen.spacePressed(list.currentItem ? list.currentItem.section : 0, list.currentItem ? list.currentItem.row : -1)
        else if (event.key === Qt.Key_J && loaded)
            root.player.backSkip()
        else if (event.key === Qt.Key_L && loaded)
            root.player.forwardSkip()
        else if (event.key === Qt.Key_Less && loaded)
            root.player.slower()
        else if (event.key === Qt.Key_Greater && loaded)
            root.player.faster()
        else if (event.key === Qt.Key_Escape && root.screen.isPanelShown)
            root.screen.playerClose()
        else
            event.accepted = false
    }
    onActiveFocusChanged: if (!activeFocus) list.isByKey = false
    Component.onCompleted: follow()

    Shortcut {
        sequence: "Ctrl+F"
        enabled: root.visible && root.activeFocus
        onActivated: chrome.search()
    }

    Repeater {
        model: ["F5", "Ctrl+R"]

        Item {
            required property string modelData

            Shortcut {
                sequence: modelData
                enabled: root.visible && root.activeFocus && root.screen.cloud.canRefresh
                onActivated: root.screen.cloud.refresh()
            }
        }
    }

    Connections {
        target: root.screen

        function onSelectionChanged() {
            root.follow()
        }
    }

    Item {
        id: page

        anchors.left: parent.left
        width: root.beside ? Math.min(Math.max(360, Math.min(Math.round(Theme.window.width * 0.34), 480)), Math.round(root.width * 0.52))
                           : parent.width
        height: parent.height - (root.beside ? 0 : panel.shownHeight)
        clip: true

        LibraryChrome {
            id: chrome

            // Before the list for who reads or tabs through, and above it.
            z: 1
            // The title scrolls away; what follows stays.
            y: finding || held ? 0 : -Math.max(0, Math.min(list.scrolled, titleHeight))
            width: parent.width
            height: implicitHeight
            screen: root.screen
            isEmpty: list.count === 0
            sectionText: list.isCloudOnTop ? root.screen.cloudHeaderText : root.screen.headerText
            onLeave: list.forceActiveFocus(Qt.OtherFocusReason)
        }

        RecordingList {
            id: list

            anchors.fill: parent
            screen: root.screen
            footRoom: root.footRoom
            chromeHeight: chrome.implicitHeight
            stayingHeight: chrome.implicitHeight + chrome.y
        }

        ScrollMark {
            flickable: list
            coveredTop: chrome.y + chrome.height
        }

        Rectangle {
            readonly property real shown: root.screen.cloud.isRefreshing ? 1 : Math.min(1, list.pulled / list.pullLength)

            anchors.horizontalCenter: parent.horizontalCenter
            y: chrome.y + chrome.height + 8
            width: 44
            height: 44
            radius: 22
            visible: shown > 0
            opacity: shown
            color: Theme.panel
            border.color: Theme.control
            Accessible.role: Accessible.ProgressBar
            Accessible.name: qsTrId("cloud_refreshing")

            ProgressRing {
                anchors.centerIn: parent
                width: 28
                height: 28
            }
        }

        EmptyState {
            anchors.horizontalCenter: parent.horizontalCenter
            y: Math.max(chrome.height + 8, (parent.height + chrome.height - height) / 2)
            width: Math.min(parent.width - 4 * Theme.margin, 360)
            visible: list.count === 0
            room: parent.height - chrome.height - 16
            imageName: root.screen.table.searchText ? "search.png" : "voicememo.png"
            title: root.screen.table.searchText ? qsTrId("library_search_none") : qsTrId("library_empty_title")
            hint: root.screen.table.searchText ? "" : qsTrId("library_empty")
        }
    }

    Rectangle {
        anchors.left: page.right
        width: 1
        height: parent.height
        visible: root.beside
        color: Theme.line
    }

    Item {
        id: panel

        property bool open: false
        /// How far it has slid in.
        property real shown: open ? 1 : 0
        /// How much of the list it covers.
        readonly property real shownHeight: root.beside ? 0 : Math.round(height * shown)

        anchors.left: root.beside ? page.right : parent.left
        anchors.leftMargin: root.beside ? 1 : 0
        anchors.right: parent.right
        y: root.beside ? 0 : parent.height - shownHeight
        height: root.beside ? parent.height : root.folded ? mini.implicitHeight : Math.min(view.implicitHeight, parent.height)
        visible: root.beside || shownHeight > 0
        clip: !root.beside

        onOpenChanged: if (open && Theme.reducedMotion) fade.restart()

        Behavior on shown {
            enabled: !Theme.reducedMotion

            SequentialAnimation {
                PauseAnimation {
                    duration: 100
                }

                NumberAnimation {
                    duration: 500
                    easing.type: Easing.OutCubic
                }
            }
        }

        NumberAnimation {
            id: fade

            target: panel
            property: "opacity"
            from: 0
            to: 1
            duration: Theme.fade
        }

        Rectangle {
            width: parent.width
            height: parent.height + radius
            visible: !root.beside
            radius: root.folded ? 0 : Theme.radiusSheet
            color: Theme.panel
        }

        PlayerView {
            id: view

            anchors.fill: parent
            screen: root.screen
            beside: root.beside
            foldable: root.low
            visible: !root.folded && (panel.open || !root.beside)
            enabled: panel.open
            onFolded: {
                root.unfolded = false
                mini.forceActiveFocus(Qt.OtherFocusReason)
            }
        }

        MiniPlayer {
            id: mini

            anchors.fill: parent
            screen: root.screen
            visible: root.folded
            enabled: panel.open
            onUnfolded: {
                root.unfolded = true
                view.forceActiveFocus(Qt.OtherFocusReason)
            }
        }

        EmptyState {
            anchors.centerIn: parent
            width: Math.min(parent.width - 4 * Theme.margin, 240)
            visible: root.beside && !panel.open
            imageName: "play_player.png"
            title: qsTrId("player_nothing")
            hint: qsTrId("player_nothing_hint")
        }
    }
}
