import QtQuick
import Tavi.Ui

/// Which keys do what, and the way to the user guide, over everything else.
FocusScope {
    id: list

    property bool shown: false
    readonly property var entries: [
        [qsTrId("key_space"), qsTrId("shortcut_record")],
        [ctrl("S"), qsTrId("shortcut_stop")],
        [ctrl("1") + " 2 3", qsTrId("shortcut_tabs")],
        [ctrl("F"), qsTrId("shortcut_find")],
        [qsTrId("key_enter"), qsTrId("shortcut_open")],
        [qsTrId("key_ends"), qsTrId("shortcut_ends")],
        [qsTrId("key_space"), qsTrId("shortcut_play")],
        ["J L", qsTrId("shortcut_skip")],
        ["< >", qsTrId("shortcut_speed")],
        ["T", qsTrId("shortcut_trim")],
        ["F2", qsTrId("shortcut_rename")],
        [qsTrId("key_delete"), qsTrId("shortcut_delete")],
        [ctrl("C"), qsTrId("shortcut_copy")],
        [ctrl("E"), qsTrId("shortcut_export")],
        [qsTrId("key_menu"), qsTrId("shortcut_menu")],
        ["F5 " + ctrl("R"), qsTrId("shortcut_refresh")],
        ["+ −", qsTrId("shortcut_zoom")],
        [qsTrId("key_escape"), qsTrId("shortcut_close")],
        ["? F1", qsTrId("shortcut_list")],
        [ctrl("Q"), qsTrId("shortcut_quit")]
    ]

    signal guideAsked()

    function ctrl(key) {
        return qsTrId("key_ctrl").arg(key)
    }

    function open() {
        shown = true
        close.forceActiveFocus(Qt.TabFocusReason)
    }

    anchors.fill: parent
    visible: shown
    Accessible.role: Accessible.Dialog
    Accessible.name: qsTrId("shortcuts_title")
    Keys.onEscapePressed: shown = false
    Keys.onPressed: event => {
        if (event.key === Qt.Key_Down || event.key === Qt.Key_PageDown)
            rows.flick(0, -800)
        else if (event.key === Qt.Key_Up || event.key === Qt.Key_PageUp)
            rows.flick(0, 800)
        // No key reaches what lies below.
        event.accepted = true
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.scrim
    }

    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
        acceptedButtons: Qt.AllButtons
        onWheel: wheel => wheel.accepted = true
        onClicked: list.shown = false
    }

    Rectangle {
        anchors.centerIn: parent
        width: Math.min(parent.width - 2 * Theme.gapWide, 440)
        height: Math.min(parent.height - 2 * Theme.gapWide, rows.y + rows.contentHeight + guide.height + Theme.gapWide)
        radius: Theme.radiusSheet
        color: Theme.panel
        border.color: Theme.control

        MouseArea {
            anchors.fill: parent
        }

        Label {
            anchors.left: parent.left
            anchors.leftMargin: Theme.margin
            anchors.right: close.left
            height: 52
            text: qsTrId("shortcuts_title")
            color: Theme.text
            font.pixelSize: Theme.textDialog
            font.weight: Font.Medium
            elide: Text.ElideRight
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }

        IconButton {
            id: close

            anchors.right: parent.right
            anchors.margins: 4
            y: 4
            objectName: "shortcutsClose"
            imageName: "close.png"
            tint: Theme.light
            name: qsTrId("shortcuts_close")
            onClicked: list.shown = false
            KeyNavigation.tab: guide
            KeyNavigation.backtab: guide
        }

        Flickable {
            id: rows

            y: 52
            width: parent.width
            height: guide.y - y
            contentHeight: column.height
            clip: true
            boundsBehavior: Flickable.StopAtBounds

            Column {
                id: column

                width: parent.width

                Repeater {
                    model: list.shown ? list.entries : []

                    Item {
                        required property var modelData

                        width: column.width
                        height: Math.max(32, keys.implicitHeight + 8, deed.implicitHeight + 8)
                        Accessible.role: Accessible.StaticText
                        Accessible.name: modelData[1] + ": " + modelData[0]

                        Label {
                            id: deed

                            anchors.left: parent.left
                            anchors.leftMargin: Theme.margin
                            anchors.right: keys.left
                            anchors.rightMargin: Theme.gap
                            height: parent.height
                            text: parent.modelData[1]
                            color: Theme.light
                            wrapMode: Text.Wrap
                        }

                        Label {
                            id: keys

                            anchors.right: parent.right
                            anchors.rightMargin: Theme.margin
                            width: parent.width * 0.38
                            height: parent.height
                            text: parent.modelData[0]
                            wrapMode: Text.Wrap
                            horizontalAlignment: Text.AlignRight
                        }
                    }
                }
            }
        }

        ScrollMark {
            flickable: rows
        }

        TButton {
            id: guide

            objectName: "shortcutsGuide"
            kind: TButton.Tint
            anchors.horizontalCenter: parent.horizontalCenter
            y: parent.height - height - Theme.gapWide / 2
            text: qsTrId("user_guide")
            onClicked: {
                list.shown = false
                list.guideAsked()
            }
            KeyNavigation.tab: close
            KeyNavigation.backtab: close
        }
    }
}
