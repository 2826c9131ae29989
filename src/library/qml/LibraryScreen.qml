import QtQuick
import Tavi.Library
import Tavi.Ui

/// The library tab: the recordings, and the buttons that sort them.
FocusScope {
    id: root

    required property VoiceMemoVC screen

    Item {
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(parent.width, 1400)
        height: parent.height

        TitleBar {
            id: bar

            width: parent.width
            text: root.screen.title
        }

        Row {
            id: sorting

            x: Theme.margin - 8
            y: bar.height
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
            delegate: RecordingRow {}
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
                text: qsTrId("library_empty_title")
                color: Theme.lightGrey
                font.pixelSize: 18
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignHCenter
            }

            Label {
                width: parent.width
                text: qsTrId("library_empty")
                lineHeight: 1.15
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignHCenter
            }
        }
    }
}
