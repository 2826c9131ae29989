import QtQuick
import Tavi.Settings
import Tavi.Ui

/// The settings tab: a grouped table.
FocusScope {
    id: root

    required property SettingVC screen

    TitleBar {
        id: bar

        width: parent.width
        text: root.screen.title
    }

    Flickable {
        id: table

        anchors.horizontalCenter: parent.horizontalCenter
        y: bar.height
        width: Math.min(parent.width, 680)
        height: parent.height - y
        contentHeight: rows.height
        clip: true
        boundsBehavior: Flickable.StopAtBounds

        Column {
            id: rows

            width: parent.width

            SectionHeader {
                width: parent.width
                text: root.screen.headerTexts[0] ?? ""
            }

            SettingsRow {
                objectName: "extention"
                width: parent.width
                focus: true
                text: root.screen.extentionText
                detail: root.screen.fileType
                enabled: !root.screen.isFormatHeld
                onClicked: root.screen.showExtentionActionsheet()
            }

            SectionHeader {
                width: parent.width
                text: root.screen.headerTexts[1] ?? ""
            }

            SettingsRow {
                objectName: "quality"
                width: parent.width
                text: root.screen.qualityText
                detail: root.screen.quality
                enabled: !root.screen.isFormatHeld
                onClicked: root.screen.showQualityActionsheet()
            }

            SectionHeader {
                width: parent.width
                text: root.screen.headerTexts[2] ?? ""
            }

            SkipRow {
                objectName: "rewind"
                width: parent.width
                text: root.screen.rewindText
                seconds: root.screen.rewindValue
                onSlid: value => root.screen.rewindSliderChange(value)
            }

            Rectangle {
                x: Theme.margin
                width: parent.width - x
                height: 1
                color: Theme.line
            }

            SkipRow {
                objectName: "forward"
                width: parent.width
                text: root.screen.forwardText
                seconds: root.screen.forwardValue
                onSlid: value => root.screen.forwardSliderChange(value)
            }

            SectionHeader {
                width: parent.width
                text: root.screen.headerTexts[3] ?? ""
            }

            TSwitch {
                objectName: "icloud"
                width: parent.width
                text: root.screen.iCloundText
                on: root.screen.isCloudSyncOn
                onTurned: on => root.screen.hideShowiClound(on)
            }

            SectionHeader {
                width: parent.width
                text: root.screen.headerTexts[4] ?? ""
            }

            TSwitch {
                objectName: "quickMail"
                width: parent.width
                text: root.screen.quickMailText
                on: root.screen.isQuickMailOn
                onTurned: on => root.screen.autoQuickMail(on)
            }
        }
    }

    ScrollMark {
        flickable: table
    }
}
