import QtQuick
import Tavi.Library
import Tavi.Ui

/// The library tab: the recordings, and the buttons that sort them.
FocusScope {
    id: root

    required property VoiceMemoVC screen

    /// Room for list and player side by side.
    readonly property bool wide: root.Window.width >= Theme.wideWidth
    readonly property PlayerPanel player: screen.player

    function find() {
        search.forceActiveFocus(Qt.ShortcutFocusReason)
        search.selectAll()
    }

    Keys.onPressed: event => {
        const loaded = root.screen.isPlaying
        event.accepted = true
        if (event.key === Qt.Key_Space && !event.isAutoRepeat && (loaded || list.currentItem))
            root.screen.spacePressed(list.currentItem ? list.currentItem.row : -1)
        else if (event.key === Qt.Key_T && list.activeFocus && list.currentItem)
            root.screen.trimRow(list.currentItem.row)
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

    Shortcut {
        sequence: "Ctrl+F"
        enabled: root.visible && root.activeFocus
        onActivated: root.find()
    }

    Item {
        id: page

        width: root.wide ? Math.round(root.width * 0.48) : parent.width
        height: parent.height - (root.wide ? 0 : panel.shownHeight)
        clip: true

        TitleBar {
            id: bar

            width: parent.width
            text: root.screen.title
        }

        IconButton {
            anchors.right: parent.right
            anchors.rightMargin: 8
            y: 4
            objectName: "speakerButton"
            imageName: root.player.speakerButton.image
            tint: root.player.speakerButton.tintColor || Theme.label
            name: root.player.ishandset ? qsTrId("a11y_to_speaker") : qsTrId("a11y_to_earpiece")
            onClicked: root.player.playerSpeaker()
        }

        SearchField {
            id: search

            x: Theme.margin
            y: bar.height
            width: Math.min(parent.width - 2 * x, 560)
            objectName: "search"
            placeholderText: qsTrId("library_search")
            visible: list.count > 0 || text !== ""
            onTextChanged: root.screen.searchText = text
            onLeave: list.forceActiveFocus(Qt.OtherFocusReason)
        }

        Row {
            id: sorting

            x: Theme.margin - 8
            y: search.y + (search.visible ? search.height : 0)
            width: Math.min(parent.width - 2 * x, 480)
            height: 48

            TButton {
                width: parent.width / 3
                height: 46
                objectName: "btnSortName"
                text: root.screen.btnSortName.title
                tint: root.screen.btnSortName.tintColor || Theme.label
                imageName: root.screen.btnSortName.image
                enabled: root.screen.btnSortName.enabled
                Accessible.description: qsTrId("a11y_sort")
                onClicked: root.screen.sortByName(this)
            }

            TButton {
                width: parent.width / 3
                height: 46
                objectName: "btnSortDate"
                text: root.screen.btnSortDate.title
                tint: root.screen.btnSortDate.tintColor || Theme.label
                imageName: root.screen.btnSortDate.image
                enabled: root.screen.btnSortDate.enabled
                Accessible.description: qsTrId("a11y_sort")
                onClicked: root.screen.sortByDate(this)
            }

            TButton {
                width: parent.width / 3
                height: 46
                objectName: "btnSortSize"
                text: root.screen.btnSortSize.title
                tint: root.screen.btnSortSize.tintColor || Theme.label
                imageName: root.screen.btnSortSize.image
                enabled: root.screen.btnSortSize.enabled
                Accessible.description: qsTrId("a11y_sort")
                onClicked: root.screen.sortBySize(this)
            }
        }

        SectionHeader {
            id: section

            y: sorting.y + sorting.height
            width: parent.width
            text: root.screen.headerText
        }

        ListView {
            id: list

            objectName: "tableView"
            y: section.y + section.height
            width: parent.width
            height: parent.height - y
            clip: true
            focus: true
            activeFocusOnTab: true
            reuseItems: true
            boundsBehavior: Flickable.StopAtBounds
            // The mark of the current row jumps: nothing here moves by itself.
            highlightMoveDuration: 0
            highlightResizeDuration: 0
            keyNavigationEnabled: true
            model: root.screen.tableView
            footer: SectionHeader {
                width: list.width
                height: visible ? implicitHeight : 0
                visible: text !== ""
                text: root.screen.cloudHeaderText
            }
            delegate: RecordingRow {
                screen: root.screen
            }
            // What has just been opened stays in sight as the player comes in.
            onHeightChanged: if (root.screen.isPanelShown) positionViewAtIndex(currentIndex, ListView.Contain)
            Keys.onReturnPressed: if (currentItem) root.screen.didSelectRowAtIndexPath(0, currentItem.row)
            Keys.onEnterPressed: if (currentItem) root.screen.didSelectRowAtIndexPath(0, currentItem.row)
            Accessible.role: Accessible.List
            Accessible.name: root.screen.headerText
        }

        ScrollMark {
            flickable: list
        }

        Column {
            anchors.centerIn: list
            width: Math.min(list.width - 4 * Theme.margin, 360)
            visible: list.count === 0
            spacing: 12

            Icon {
                anchors.horizontalCenter: parent.horizontalCenter
                width: 64
                height: 64
                name: "voicememo.png"
                color: "#4a4a4c"
            }

            Label {
                width: parent.width
                text: search.text ? qsTrId("library_search_none") : qsTrId("library_empty_title")
                color: Theme.lightGrey
                font.pixelSize: 18
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignHCenter
            }

            Label {
                width: parent.width
                visible: search.text === ""
                text: qsTrId("library_empty")
                lineHeight: 1.15
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignHCenter
            }
        }
    }

    Rectangle {
        x: page.width
        width: 1
        height: parent.height
        visible: root.wide
        color: Theme.hairline
    }

    Rectangle {
        id: panel

        /// How far it has slid in.
        property real shown: root.screen.isPanelShown ? 1 : 0
        /// How much of the list it covers.
        readonly property real shownHeight: root.wide ? 0 : Math.round(height * shown)

        x: root.wide ? page.width + 1 : 0
        y: root.wide ? 0 : parent.height - shownHeight
        width: parent.width - x
        height: root.wide ? parent.height : view.implicitHeight
        color: root.wide ? Theme.ground : Theme.panel
        visible: root.wide || shownHeight > 0

        Behavior on shown {
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

        PlayerView {
            id: view

            anchors.fill: parent
            screen: root.screen
            tall: root.wide
            visible: root.screen.isPanelShown || !root.wide
            enabled: root.screen.isPanelShown
        }

        Column {
            anchors.centerIn: parent
            width: Math.min(parent.width - 4 * Theme.margin, 320)
            visible: root.wide && !root.screen.isPanelShown
            spacing: 12

            Icon {
                anchors.horizontalCenter: parent.horizontalCenter
                width: 64
                height: 64
                name: "play_player.png"
                color: "#3a3a3c"
            }

            Label {
                width: parent.width
                text: qsTrId("player_nothing")
                color: Theme.lightGrey
                font.pixelSize: 18
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignHCenter
            }

            Label {
                width: parent.width
                text: qsTrId("player_nothing_hint")
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignHCenter
            }
        }
    }
}
