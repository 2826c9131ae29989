import QtQuick
import Tavi.Ui

/// A sheet of choices at the lower edge, or in the middle of a wide window; the cancelling choice stands apart.
Item {
    id: sheet

    required property AlertPresenter presenter
    readonly property alias buttons: buttons
    readonly property bool wide: parent ? parent.width >= Theme.wideWidth : false
    readonly property int rowHeight: 52
    readonly property int cancelIndex: presenter.actions.findIndex(action => action.cancel)
    readonly property int gap: cancelIndex >= 0 ? 8 : 0

    anchors.horizontalCenter: parent.horizontalCenter
    y: wide ? (parent.height - height) / 2 : parent.height - height - 10
    width: Math.min(parent.width - 20, 400)
    height: Math.min(heading.height + buttons.count * rowHeight + gap, parent.height - 20)
    Accessible.role: Accessible.PopupMenu
    Accessible.name: presenter.title

    Rectangle {
        width: parent.width
        height: parent.height - (sheet.cancelIndex >= 0 ? sheet.rowHeight + sheet.gap : 0)
        radius: 14
        color: Theme.panel

        // A tap between the choices is not one beside the sheet.
        MouseArea {
            anchors.fill: parent
        }
    }

    Column {
        id: heading

        width: parent.width
        topPadding: sheet.presenter.title !== "" || sheet.presenter.message !== "" ? 14 : 0
        bottomPadding: topPadding
        spacing: 4

        Label {
            x: Theme.margin
            width: parent.width - 2 * x
            visible: text !== ""
            text: sheet.presenter.title
            font.pixelSize: 13
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }

        Label {
            x: Theme.margin
            width: parent.width - 2 * x
            visible: text !== ""
            text: sheet.presenter.message
            font.pixelSize: 13
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
        }
    }

    Flickable {
        id: choices

        y: heading.height
        width: parent.width
        height: parent.height - y
        contentHeight: buttons.count * sheet.rowHeight + sheet.gap
        clip: true
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds

        Repeater {
            id: buttons

            model: sheet.presenter.actions

            TButton {
                id: button

                required property int index
                required property var modelData
                readonly property int place: modelData.cancel ? buttons.count - 1
                        : sheet.cancelIndex >= 0 && index > sheet.cancelIndex ? index - 1 : index

                y: place * sheet.rowHeight + (modelData.cancel ? sheet.gap : 0)
                width: choices.width
                height: sheet.rowHeight
                objectName: "action" + index
                text: modelData.title
                tint: modelData.destructive ? Theme.warning : Theme.lightGrey
                fill: modelData.cancel ? Theme.panel : "transparent"
                font.pixelSize: 17
                font.weight: modelData.cancel ? Font.Medium : Font.Normal
                onClicked: sheet.presenter.choose(index)
                onActiveFocusChanged: {
                    if (activeFocus) {
                        choices.contentY = Math.max(Math.min(choices.contentY, y), y + height - choices.height)
                    }
                }

                Rectangle {
                    visible: !button.modelData.cancel && (button.place > 0 || heading.height > 0)
                    width: parent.width
                    height: 1
                    color: Theme.control
                }
            }
        }
    }
}
