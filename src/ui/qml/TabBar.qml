import QtQuick
import Tavi.Ui
import QtQuick.Templates as T

/// The bar of tabs at the lower edge, or a rail at the left of a wide window.
Rectangle {
    id: bar

    required property TabBarController controller
    property bool vertical: false

    implicitWidth: vertical ? 96 : 360
    implicitHeight: 56
    color: Theme.ground
    Accessible.role: Accessible.PageTabList
    Accessible.name: qsTrId("a11y_tabs")

    Rectangle {
        anchors.right: parent.right
        width: bar.vertical ? 1 : parent.width
        height: bar.vertical ? parent.height : 1
        color: Theme.hairline
    }

    Grid {
        anchors.fill: parent
        anchors.topMargin: bar.vertical ? Theme.margin : 1
        anchors.rightMargin: bar.vertical ? 1 : 0
        columns: bar.vertical ? 1 : 3

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
                readonly property color tint: selected ? Theme.accent : Theme.label

                width: bar.vertical ? parent.width : parent.width / 3
                height: bar.vertical ? 72 : 55
                objectName: "tab" + index
                text: modelData.title
                enabled: bar.controller.userInteractionEnabled
                opacity: enabled ? 1.0 : Theme.disabledOpacity
                focusPolicy: Qt.TabFocus
                Accessible.role: Accessible.PageTab
                Accessible.name: text
                Accessible.selectable: true
                Accessible.selected: selected
                Accessible.onPressAction: if (enabled) clicked()
                onClicked: bar.controller.select(index)
                Keys.onReturnPressed: clicked()
                Keys.onEnterPressed: clicked()

                contentItem: Item {
                    Column {
                        anchors.centerIn: parent
                        width: parent.width
                        spacing: 3

                        Icon {
                            anchors.horizontalCenter: parent.horizontalCenter
                            width: 24
                            height: 24
                            name: tab.modelData.image
                            color: tab.tint
                        }

                        Label {
                            width: parent.width
                            horizontalAlignment: Text.AlignHCenter
                            text: tab.text
                            color: tab.tint
                            elide: Text.ElideRight
                            font.pixelSize: 12
                            font.weight: tab.selected ? Font.Bold : Font.Normal
                        }
                    }
                }

                background: Item {
                    FocusFrame {
                        anchors.fill: parent
                        anchors.margins: 2
                        control: tab
                    }
                }
            }
        }
    }
}
