import QtQuick
import Tavi.Settings
import Tavi.Ui

/// The settings tab: a grouped table.
FocusScope {
    id: root

    required property SettingVC screen
    property real footRoom: 0

    readonly property Item focused: root.Window.activeFocusItem

    // What has the keyboard comes into view.
    onFocusedChanged: {
        if (focused === null || !activeFocus || focused === root)
            return
        const top = focused.mapToItem(rows, 0, 0).y
        const least = top + focused.height + footRoom - table.height
        table.contentY = Math.max(0, least, Math.min(table.contentY, top - Theme.touch))
    }

    Flickable {
        id: table

        anchors.fill: parent
        visible: !account.active
        contentHeight: rows.height + root.footRoom
        clip: true
        boundsBehavior: Flickable.StopAtBounds

        Column {
            id: rows

            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(table.width, 680)

            TitleBar {
                width: parent.width
                text: root.screen.title
                endWidth: dismiss.width

                TButton {
                    id: dismiss

                    anchors.right: parent.right
                    anchors.rightMargin: Theme.margin - horizontalPadding
                    objectName: "dismiss"
                    text: qsTrId("settings_done")
                    kind: TButton.Tint
                    onClicked: root.screen.dismissView()
                }
            }

            SectionHeader {
                width: parent.width
                text: root.screen.headerTexts[0] ?? ""
            }

            SettingsRow {
                objectName: "extention"
                imageName: "8.png"
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
                imageName: "9.png"
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
                imageName: "10.png"
                width: parent.width
                text: root.screen.rewindText
                seconds: root.screen.rewindValue
                onSlid: value => root.screen.rewindSliderChange(value)
            }

            RowLine {
                width: parent.width
            }

            SkipRow {
                objectName: "forward"
                imageName: "11.png"
                width: parent.width
                text: root.screen.forwardText
                seconds: root.screen.forwardValue
                onSlid: value => root.screen.forwardSliderChange(value)
            }

            // In English there is nothing to explain.
            Label {
                objectName: "englishWords"
                x: Theme.margin
                width: parent.width - 2 * x
                topPadding: 8
                bottomPadding: Theme.margin
                visible: root.screen.qualityText !== "Quality"
                text: qsTrId("settings_english")
                wrapMode: Text.Wrap
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }

            SectionHeader {
                width: parent.width
                text: root.screen.headerTexts[3] ?? ""
            }

            Item {
                width: parent.width
                height: cloudRow.height

                TSwitch {
                    id: cloudRow

                    anchors.left: parent.left
                    objectName: "icloud"
                    imageName: "12.png"
                    width: parent.width - cloudDetails.width
                    tail: 0
                    text: root.screen.iCloundText
                    on: root.screen.isCloudSyncOn
                    onTurned: on => root.screen.hideShowiClound(on)
                }

                IconButton {
                    id: cloudDetails

                    anchors.right: parent.right
                    height: parent.height
                    objectName: "cloudDetails"
                    imageName: "chevron-right.png"
                    imageSize: 16
                    tint: Theme.light
                    name: qsTrId("cloud_details")
                    onClicked: root.screen.cloud.open()
                }
            }

            SectionHeader {
                width: parent.width
                text: root.screen.headerTexts[4] ?? ""
            }

            TSwitch {
                objectName: "quickMail"
                imageName: "13.png"
                width: parent.width
                text: root.screen.quickMailText
                on: root.screen.isQuickMailOn
                onTurned: on => root.screen.autoQuickMail(on)
            }

            SectionHeader {
                width: parent.width
                text: root.screen.headerTexts[5] ?? ""
            }

            TSwitch {
                objectName: "passcodeLock"
                imageName: "14.png"
                width: parent.width
                text: root.screen.passcode.passcodeText
                on: root.screen.passcode.isPasscodeSwitchOn
                onTurned: on => root.screen.passcode.updateSwitch(on)
            }

            RowLine {
                width: parent.width
                visible: root.screen.passcode.passcodeEnabled
            }

            SettingsRow {
                objectName: "changePass"
                imageName: "passcode.png"
                width: parent.width
                visible: root.screen.passcode.passcodeEnabled
                text: root.screen.passcode.changePassText
                onClicked: root.screen.passcode.changePasscode()
            }

            SectionHeader {
                width: parent.width
                text: root.screen.headerTexts[6] ?? ""
            }

            SettingsRow {
                objectName: "rate"
                imageName: "15.png"
                width: parent.width
                text: root.screen.support.rateText
                onClicked: root.screen.support.rate()
            }

            RowLine {
                width: parent.width
            }

            SettingsRow {
                objectName: "moreApps"
                imageName: "16.png"
                width: parent.width
                text: root.screen.support.moreAppsText
                onClicked: root.screen.support.moreApps()
            }

            RowLine {
                width: parent.width
            }

            SettingsRow {
                objectName: "reportBug"
                imageName: "17.png"
                width: parent.width
                text: root.screen.support.reportBugText
                onClicked: root.screen.support.reportBug()
            }
        }
    }

    ScrollMark {
        flickable: table
        visible: table.visible
    }

    Loader {
        id: account

        property bool wasOpen: false

        anchors.fill: parent
        active: root.screen.cloud.isOpen
        focus: active
        sourceComponent: AccountPage {
            page: root.screen.cloud
            footRoom: root.footRoom
            focus: true
        }
        onLoaded: {
            wasOpen = true
            forceActiveFocus(Qt.OtherFocusReason)
        }
        // Back to where it was asked for.
        onActiveChanged: if (!active && wasOpen) cloudRow.forceActiveFocus(Qt.OtherFocusReason)
    }
}
