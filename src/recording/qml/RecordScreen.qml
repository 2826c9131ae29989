import QtQuick
import Tavi.Recording
import QtQuick.Templates as T
import Tavi.Ui

/// The record tab: clock, level view, and the pair of buttons. Three groups above each other, evenly spaced; on a phone
/// that lies on its side the level view at the left and all else in a column beside it.
FocusScope {
    id: root

    required property AudioRecordVC screen
    property real footRoom: 0
    readonly property int windowHeight: Theme.window.height
    readonly property bool beside: windowHeight < Theme.lowHeight && Theme.window.width > windowHeight && width >= 440
    /// Low windows do without the words below the buttons, and very low ones without the date.
    readonly property bool captioned: windowHeight >= 360
    readonly property bool dated: windowHeight >= 320
    readonly property int diameter: beside ? 72 : width < 320 || windowHeight < 360 ? 64 : 80
    readonly property real boxHeight: Math.max(captioned ? 120 : 64, Math.min(windowHeight * 0.36, 320))
    readonly property real side: beside ? 232 : Math.min(width - 2 * Theme.margin, 960)
    readonly property real parts: clock.height + caption.height + (beside ? 0 : box.height) + pair.height
    /// The room between the groups, and above and below them.
    readonly property real free: height - parts
    /// Below the pair a notice has its place, where there is room for it.
    readonly property int foot: 48 + 20
    readonly property real gap: Math.max(Theme.gap, free < 4 * foot && free > foot + 48 ? (free - foot) / 3 : free / 4)
    /// Where a notice hides no button: at the foot, or else over the level view.
    readonly property rect noticeArea: !beside && height - pair.y - pair.height >= foot ? Qt.rect(0, 0, width, height)
                                     : Qt.rect(box.x, box.y - page.contentY, box.width, box.height)

    Flickable {
        id: page

        anchors.fill: parent
        contentHeight: Math.max(height, pair.y + pair.height + Theme.gap)
        interactive: contentHeight > height
        clip: interactive
        boundsBehavior: Flickable.StopAtBounds

        Item {
            id: clock

            x: root.beside ? caption.x : Math.round((page.width - width) / 2)
            y: root.beside ? Math.round((page.height - height) / 2) - 12 : Math.round(root.gap)
            width: root.side
            // Whole points: what lies between pixels is painted slowly.
            height: Math.ceil(digits.height) + 32

            Text {
                id: digits

                width: parent.width
                objectName: "lblTimer"
                text: root.screen.lblTimer.text
                color: Theme.text
                textFormat: Text.PlainText
                fontSizeMode: Text.HorizontalFit
                minimumPointSize: 12
                horizontalAlignment: Text.AlignHCenter
                font.family: Theme.family
                font.pointSize: 30
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }

            Row {
                anchors.horizontalCenter: parent.horizontalCenter
                y: digits.height
                height: 32
                visible: !root.screen.lblRecording.hidden
                spacing: Theme.gap

                Rectangle {
                    anchors.verticalCenter: parent.verticalCenter
                    width: 10
                    height: 10
                    radius: 5
                    visible: root.screen.isRecordingRunning
                    color: Theme.accent
                }

                Icon {
                    anchors.verticalCenter: parent.verticalCenter
                    width: 18
                    height: 18
                    visible: root.screen.isRecording && !root.screen.isRecordingRunning
                    name: "pause"
                    color: Theme.light
                }

                Label {
                    height: parent.height
                    objectName: "lblRecording"
                    text: root.screen.lblRecording.text
                    color: root.screen.lblRecording.textColor || Theme.text
                    font.pixelSize: Theme.textName
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                }
            }

            Label {
                y: digits.height
                width: parent.width
                height: 32
                visible: root.screen.lblRecording.hidden
                objectName: "hint"
                text: root.screen.hint
                horizontalAlignment: Text.AlignHCenter
                elide: Text.ElideRight
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }

        Item {
            id: caption

            x: root.beside ? (Theme.mirrored ? Theme.margin : page.width - width - Theme.margin) : Math.round((page.width - width) / 2)
            y: root.beside ? 4 : clock.y + clock.height + Math.round(root.gap) - 8
            width: root.side
            height: root.dated ? Theme.touch : 0
            visible: root.dated

            Label {
                id: date

                anchors.left: parent.left
                height: parent.height
                objectName: "lblDate"
                text: root.screen.lblDate.text
                color: root.screen.lblDate.textColor || Theme.light
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }

            TButton {
                /// Between the date and the format, or in a line of its own.
                readonly property real room: caption.width - (root.beside ? 0 : format.width + date.width)
                readonly property real lead: Theme.mirrored ? format.width : date.width
                readonly property string name: root.screen.microphone.name || qsTrId("microphone_unknown")

                x: !root.beside ? Math.round(lead + (room - width) / 2) : Theme.mirrored ? room - width + rightPadding : -leftPadding
                y: root.beside ? caption.height : 0
                width: Math.min(implicitWidth, room)
                objectName: "microphone"
                text: room < 72 ? "" : name
                imageName: "microphone"
                imageFirst: true
                tint: Theme.light
                horizontalPadding: Theme.gap
                font.pixelSize: Theme.textDetail
                Accessible.name: qsTrId("a11y_microphone").arg(name)
                onClicked: root.screen.microphone.choose()
            }

            T.AbstractButton {
                id: format

                anchors.right: parent.right
                width: Math.min(words.implicitWidth + 8, parent.width - date.width - (root.beside ? Theme.gap : Theme.touch))
                height: parent.height
                objectName: "lblFileType"
                text: root.screen.lblFileType.text
                enabled: root.screen.isIdle
                hoverEnabled: true
                focusPolicy: Qt.TabFocus
                Accessible.role: Accessible.Button
                Accessible.name: qsTrId("a11y_format").arg(text)
                Accessible.onPressAction: if (enabled) clicked()
                Keys.onReturnPressed: clicked()
                Keys.onEnterPressed: clicked()
                onClicked: root.screen.showSettings()
                contentItem: Label {
                    id: words

                    text: format.text
                    color: root.screen.lblFileType.textColor || Theme.accent
                    font.pixelSize: Theme.textFormat
                    font.weight: Font.Bold
                    font.underline: format.hovered
                    horizontalAlignment: Text.AlignRight
                    elide: Text.ElideRight
                }
                background: Item {
                    FocusFrame {
                        control: format
                        around: Theme.radiusTile
                        inside: true
                    }
                }
            }
        }

        LevelBox {
            id: box

            x: root.beside ? (Theme.mirrored ? page.width - width - Theme.margin : Theme.margin) : Math.round((page.width - width) / 2)
            y: root.beside ? Theme.margin : caption.y + caption.height
            width: root.beside ? page.width - root.side - 3 * Theme.margin - 4 : root.side
            height: root.beside ? page.height - 2 * Theme.margin : Math.round(root.boxHeight)
            screen: root.screen
        }

        Row {
            id: pair

            x: Math.round((root.beside ? caption.x + (root.side - width) / 2 : (page.width - width) / 2))
            y: root.beside ? page.height - height - Theme.margin : box.y + box.height + Math.round(root.gap)
            spacing: root.beside ? 28 : 48

            RecordButton {
                objectName: "btnRecord"
                focus: true
                diameter: root.diameter
                captioned: root.captioned
                picture: root.screen.btnRecord.image
                tint: down ? Theme.accentPressed : hovered ? Theme.accentHover : Theme.accent
                name: text
                shortcut: qsTrId("key_space")
                text: root.screen.isRecordingRunning ? qsTrId("a11y_pause")
                    : root.screen.isRecording ? qsTrId("a11y_resume") : qsTrId("a11y_record")
                enabled: root.screen.btnRecord.enabled
                onClicked: root.screen.playAndPauseRecording(this)
            }

            RecordButton {
                objectName: "btnStop"
                diameter: root.diameter
                captioned: root.captioned
                picture: root.screen.btnStop.image || "record_stop"
                name: qsTrId("a11y_stop")
                shortcut: qsTrId("key_ctrl").arg("S")
                text: qsTrId("record_stop")
                enabled: root.screen.btnStop.enabled
                onClicked: root.screen.stopAndSaveRecording(this)
            }
        }
    }
}
