import QtQuick
import Tavi.Settings
import Tavi.Ui

/// Where the user's cloud is, and how it is. Over the settings, as long as it is open.
FocusScope {
    id: root

    required property CloudPage page
    property real footRoom: 0
    readonly property Item focused: root.Window.activeFocusItem

    function reveal(item) {
        const top = item.mapToItem(rows, 0, 0).y
        table.contentY = Math.max(0, top + item.height + footRoom - table.height, Math.min(table.contentY, top - Theme.touch))
    }

    // What has the keyboard comes into view, and what went wrong.
    onFocusedChanged: if (focused !== null && activeFocus && focused !== root) reveal(focused)

    /// What is known of the cloud: what it is, and the words for it.
    component Fact: Item {
        id: fact

        required property string name
        required property string text
        property color textColor: Theme.light

        width: parent.width
        height: visible ? Math.max(45, value.implicitHeight + 20) : 0
        visible: text !== ""
        Accessible.role: Accessible.StaticText
        Accessible.name: name + ": " + text

        Label {
            anchors.left: parent.left
            anchors.leftMargin: Theme.margin
            width: 96
            height: 45
            text: fact.name
            wrapMode: Text.Wrap
            maximumLineCount: 2
            elide: Text.ElideRight
            Accessible.ignored: true
        }

        Label {
            id: value

            anchors.left: parent.left
            anchors.leftMargin: 120
            anchors.right: parent.right
            anchors.rightMargin: Theme.margin
            anchors.verticalCenter: parent.verticalCenter
            text: fact.text
            color: fact.textColor
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
    }

    /// A line for one part of the server's account.
    component Entry: TField {
        x: Theme.margin
        width: parent.width - 2 * x
        enabled: !root.page.isConnecting
        Accessible.name: placeholderText
        onAccepted: form.connect()
    }

    Accessible.role: Accessible.Grouping
    Accessible.name: title.text
    Keys.onEscapePressed: root.page.close()
    Component.onCompleted: back.forceActiveFocus(Qt.OtherFocusReason)

    Flickable {
        id: table

        anchors.fill: parent
        contentHeight: rows.height + root.footRoom + Theme.margin
        clip: true
        boundsBehavior: Flickable.StopAtBounds

        Column {
            id: rows

            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(table.width, 680)

            TitleBar {
                id: title

                width: parent.width
                text: qsTrId("cloud_title")
                endWidth: back.width

                TButton {
                    id: back

                    anchors.right: parent.right
                    anchors.rightMargin: Theme.margin - horizontalPadding
                    objectName: "cloudBack"
                    text: qsTrId("cloud_back")
                    kind: TButton.Tint
                    focus: true
                    onClicked: root.page.close()
                }
            }

            SectionHeader {
                width: parent.width
                text: root.page.hasAccount ? qsTrId("cloud_account") : qsTrId("cloud_ask")
            }

            Column {
                width: parent.width
                visible: root.page.hasAccount

                Fact {
                    objectName: "cloudPlace"
                    name: qsTrId("cloud_place")
                    text: root.page.placeText
                }

                RowLine {
                    inset: Theme.margin
                    width: parent.width
                }

                Fact {
                    objectName: "cloudState"
                    name: qsTrId("cloud_state")
                    text: root.page.stateText
                }

                RowLine {
                    inset: Theme.margin
                    width: parent.width
                    visible: root.page.isServer
                }

                Fact {
                    name: qsTrId("cloud_last_sync")
                    text: !root.page.isServer ? "" : root.page.lastSyncText !== "" ? root.page.lastSyncText : qsTrId("cloud_never")
                }
            }

            Column {
                width: parent.width
                visible: !root.page.hasAccount

                SettingsRow {
                    width: parent.width
                    objectName: "cloudFolder"
                    imageName: "folder.png"
                    text: qsTrId("cloud_folder")
                    enabled: !root.page.isConnecting
                    onClicked: root.page.askForFolder()
                }

                RowLine {
                    width: parent.width
                }

                SettingsRow {
                    width: parent.width
                    objectName: "cloudServer"
                    imageName: "cloud.png"
                    text: qsTrId("cloud_server")
                    enabled: !root.page.isConnecting
                    onClicked: {
                        root.page.askForServer(!root.page.isServerAsked)
                        if (root.page.isServerAsked)
                            address.forceActiveFocus(Qt.TabFocusReason)
                    }
                }
            }

            Column {
                id: form

                function connect() {
                    if (connectButton.enabled)
                        root.page.connectToServer(address.text, user.text, password.text)
                }

                width: parent.width
                topPadding: Theme.gap
                spacing: Theme.gap
                visible: !root.page.hasAccount && root.page.isServerAsked

                Entry {
                    id: address

                    objectName: "cloudAddress"
                    placeholderText: qsTrId("cloud_address")
                    inputMethodHints: Qt.ImhUrlCharactersOnly | Qt.ImhNoAutoUppercase
                    text: "https://"
                }

                Entry {
                    id: user

                    objectName: "cloudUser"
                    placeholderText: qsTrId("cloud_user")
                    inputMethodHints: Qt.ImhNoPredictiveText | Qt.ImhNoAutoUppercase
                }

                Entry {
                    id: password

                    objectName: "cloudPassword"
                    placeholderText: qsTrId("cloud_password")
                    echoMode: TextInput.Password
                    inputMethodHints: Qt.ImhSensitiveData | Qt.ImhNoPredictiveText | Qt.ImhNoAutoUppercase
                    Accessible.passwordEdit: true
                    // Nothing keeps it once it has been handed over.
                    onVisibleChanged: if (!visible) clear()
                }

                TButton {
                    id: connectButton

                    anchors.left: parent.left
                    anchors.leftMargin: Theme.margin
                    objectName: "cloudConnect"
                    text: qsTrId("cloud_connect")
                    kind: TButton.Filled
                    enabled: !root.page.isConnecting && /^https?:\/\/[^\/]/.test(address.text.trim())
                    onClicked: form.connect()
                }
            }

            Row {
                anchors.left: parent.left
                anchors.leftMargin: Theme.margin
                height: visible ? 60 : 0
                spacing: Theme.gapWide
                visible: root.page.isConnecting

                ProgressRing {
                    anchors.verticalCenter: parent.verticalCenter
                    width: 28
                    height: 28
                }

                Label {
                    height: parent.height
                    text: qsTrId("cloud_connecting")
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                }
            }

            Item {
                width: parent.width
                height: visible ? problem.implicitHeight + 2 * Theme.gapWide : 0
                visible: problem.text !== ""
                onVisibleChanged: if (visible) Qt.callLater(root.reveal, this)

                Icon {
                    anchors.left: parent.left
                    anchors.leftMargin: Theme.margin
                    y: Theme.gapWide
                    width: 20
                    height: 20
                    name: "warning.png"
                    color: Theme.tint
                }

                Label {
                    id: problem

                    anchors.left: parent.left
                    anchors.leftMargin: 48
                    anchors.right: parent.right
                    anchors.rightMargin: Theme.margin
                    y: Theme.gapWide
                    objectName: "cloudError"
                    text: root.page.errorText
                    color: Theme.tint
                    wrapMode: Text.Wrap
                    Accessible.role: Accessible.AlertMessage
                    Accessible.name: text
                }
            }

            Flow {
                x: Theme.margin
                width: parent.width - 2 * x
                topPadding: Theme.gapWide
                spacing: Theme.gapWide
                visible: root.page.hasAccount

                TButton {
                    objectName: "cloudVanished"
                    visible: root.page.isAsking
                    text: qsTrId("cloud_decide")
                    kind: TButton.Filled
                    onClicked: root.page.askAboutVanished()
                }

                TButton {
                    objectName: "cloudSync"
                    visible: root.page.isServer
                    text: qsTrId("cloud_sync")
                    kind: TButton.Quiet
                    onClicked: root.page.syncNow()
                }

                TButton {
                    objectName: "cloudDisconnect"
                    text: qsTrId("cloud_disconnect")
                    kind: TButton.Tint
                    onClicked: root.page.disconnectAccount()
                }
            }

            Label {
                x: Theme.margin
                width: parent.width - 2 * x
                topPadding: Theme.margin
                text: root.page.hasAccount ? qsTrId("cloud_hint") : qsTrId("cloud_ask_hint")
                lineHeight: 1.15
                wrapMode: Text.Wrap
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }
    }

    ScrollMark {
        flickable: table
    }
}
