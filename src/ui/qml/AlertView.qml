import QtQuick
import Tavi.Ui

/// An alert: a text and its buttons on a panel in the middle of the window.
Rectangle {
    id: view

    required property AlertPresenter presenter
    readonly property alias buttons: buttons
    readonly property alias words: words
    /// The text field, where there is one; null where there is none.
    readonly property Item field: typed.visible ? typed : null
    readonly property real available: parent ? parent.height - 2 * Theme.margin : 0
    readonly property int count: presenter.actions.length
    readonly property int fieldRoom: presenter.hasField ? typed.height + Theme.margin : 0
    /// Two short titles fit beside each other.
    readonly property bool beside: {
        let widest = 0
        for (let i = 0; i < buttons.count; ++i)
            widest = Math.max(widest, buttons.itemAt(i)?.implicitWidth ?? 0)
        return count === 2 && widest <= (grid.width - grid.spacing) / 2
    }

    function choose(action) {
        // What an input method still holds belongs to the text.
        Qt.inputMethod.commit()
        presenter.choose(action, typed.text)
    }

    function fill() {
        typed.text = presenter.fieldText
        typed.selectAll()
    }

    anchors.centerIn: parent
    width: Math.min(parent.width - 2 * Theme.margin, 340)
    height: words.height + grid.height + 2 * 20 + (words.height > 0 ? 20 : 0) + fieldRoom
    radius: Theme.radiusSheet
    color: Theme.panel
    border.color: Theme.control
    border.width: 1
    Accessible.role: Accessible.AlertMessage
    Accessible.name: presenter.title
    Accessible.description: presenter.message

    Component.onCompleted: fill()

    Connections {
        target: view.presenter

        function onFrontChanged() {
            view.fill()
        }
    }

    Flickable {
        id: words

        readonly property string shown: view.presenter.title + view.presenter.message

        onShownChanged: contentY = 0
        x: 20
        y: 20
        width: parent.width - 2 * x
        height: Math.min(contentHeight, view.available - grid.height - 60 - view.fieldRoom)
        contentHeight: column.height
        clip: true
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds

        Column {
            id: column

            width: parent.width
            spacing: 8

            Label {
                width: parent.width
                visible: text !== ""
                text: view.presenter.title
                color: Theme.text
                font.pixelSize: Theme.textDialog
                font.weight: Font.Medium
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignHCenter
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }

            Label {
                width: parent.width
                visible: text !== ""
                text: view.presenter.message
                color: Theme.light
                lineHeight: 1.1
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignHCenter
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }
    }

    ScrollMark {
        flickable: words
        inset: -8 - width
    }

    TField {
        id: typed

        x: 20
        y: grid.y - height - Theme.margin
        width: parent.width - 2 * x
        objectName: "field"
        visible: view.presenter.hasField
        Accessible.name: view.presenter.message
        Keys.onReturnPressed: view.choose(view.presenter.defaultAction)
        Keys.onEnterPressed: view.choose(view.presenter.defaultAction)
    }

    Grid {
        id: grid

        x: 20
        y: parent.height - height - 20
        width: parent.width - 2 * x
        columns: view.beside ? 2 : 1
        spacing: Theme.gapWide

        Repeater {
            id: buttons

            model: view.presenter.actions

            TButton {
                required property int index
                required property var modelData
                readonly property bool isDefault: index === view.presenter.defaultAction

                width: view.beside ? (grid.width - grid.spacing) / 2 : grid.width
                height: Theme.touch
                objectName: "action" + index
                text: modelData.title
                kind: isDefault && !modelData.cancel ? TButton.Filled : TButton.Quiet
                tint: modelData.destructive ? Theme.tint : Theme.text
                onClicked: view.choose(index)
            }
        }
    }
}
