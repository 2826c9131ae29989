import QtQuick
import Tavi.Ui
import QtQuick.Templates as T

/// The bar of tabs at the lower edge, or a rail at the left of a window that is wide or low.
Rectangle {
    id: bar

    required property TabBarController controller
    property bool vertical: false
    /// A phone on its side: a narrower rail, its items in the middle.
    property bool low: false

    implicitWidth: vertical ? (low ? 76 : 88) : 360
    implicitHeight: 60
    color: Theme.ground
    Accessible.role: Accessible.PageTabList
    Accessible.name: qsTrId("a11y_tabs")

    Rectangle {
        anchors.right: parent.right
        width: bar.vertical ? 1 : parent.width
        height: bar.vertical ? parent.height : 1
        color: Theme.lineStrong
    }

    Grid {
        y: !bar.vertical ? 0 : bar.low ? Math.round((bar.height - height) / 2) : Theme.margin
        width: parent.width
        columns: bar.vertical ? 1 : 3
        spacing: bar.vertical ? Theme.gap : 0

        Repeater {
            model: [
                { image: "record.png", title: qsTrId("Record") },
                { image: "voicememo.png", title: qsTrId("voice_memo") },
                { image: "setting.png", title: qsTrId("Setting") }
            ]

            T.AbstractButton {
                id: tab

                required property int index
                required property var modelData
                readonly property bool selected: bar.controller.selectedIndex === index

                width: bar.vertical ? bar.width : bar.width / 3
                height: bar.vertical ? 64 : 60
                objectName: "tab" + index
                text: modelData.title
                enabled: bar.controller.userInteractionEnabled
                opacity: enabled ? 1.0 : Theme.disabledOpacity
                hoverEnabled: true
                focusPolicy: Qt.TabFocus
                readonly property int spokenRole: Accessible.PageTab

                Accessible.role: Accessible.PageTab
                Accessible.name: text
                Accessible.selectable: true
                Accessible.selected: selected
                Accessible.onPressAction: if (enabled) clicked()
                onClicked: bar.controller.select(index)
                Keys.onReturnPressed: clicked()
                Keys.onEnterPressed: clicked()

                contentItem: Item {
                    Rectangle {
                        id: pill

                        anchors.horizontalCenter: parent.horizontalCenter
                        y: bar.vertical ? 9 : 7
                        width: 60
                        height: 28
                        radius: 14
                        color: tab.selected ? Theme.tonal : tab.down ? Theme.controlPressed : tab.hovered ? Theme.control : "transparent"
                        border.width: tab.selected ? 1 : 0
                        border.color: Theme.accent

                        Behavior on color {
                            ColorAnimation {
                                duration: Theme.select
                            }
                        }

                        Icon {
                            anchors.centerIn: parent
                            width: 22
                            height: 22
                            name: tab.modelData.image
                            color: tab.selected ? Theme.tint : Theme.light
                        }

                        FocusFrame {
                            anchors.margins: -3
                            control: tab
                            around: 13
                        }
                    }

                    Label {
                        y: pill.y + pill.height + 4
                        width: parent.width
                        horizontalAlignment: Text.AlignHCenter
                        text: tab.text
                        color: tab.selected ? Theme.accent : Theme.label
                        elide: Text.ElideRight
                        font.pixelSize: Theme.textCaption
                        font.weight: tab.selected ? Font.Medium : Font.Normal
                    }
                }
            }
        }
    }
}
