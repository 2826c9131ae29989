import QtQuick
import Tavi.Ui

/// A sheet of choices that slides in at the lower edge, or stands in the middle of a wide window; the cancelling choice
/// stands apart.
Rectangle {
    id: sheet

    required property AlertPresenter presenter
    readonly property alias buttons: buttons
    readonly property bool wide: parent ? parent.width >= Theme.wideWidth : false
    readonly property int rowHeight: 48
    /// What can be done with one thing, rather than what a setting may be: each choice has its image.
    readonly property bool isMenu: presenter.anchored
    readonly property bool hasTile: isMenu && width >= 360
    /// How far it has slid in.
    property real shown: 0
    /// The choice with which it slides out.
    property int chosen: -1
    readonly property int cancelIndex: presenter.actions.findIndex(action => action.cancel)
    readonly property int foot: cancelIndex >= 0 ? Theme.touch + 2 * Theme.gapWide : Theme.gap

    function choose(index) {
        if (!isMenu)
            presenter.choose(index)
        else if (chosen < 0) {
            chosen = index
            shown = 0
        }
    }

    anchors.horizontalCenter: parent.horizontalCenter
    y: wide ? (parent.height - height) / 2 : parent.height - (height - radius) * shown
    width: Math.min(parent.width, wide ? 400 : 480)
    height: Math.min(heading.height + choices.contentHeight + foot + (wide ? 0 : radius), parent.height - 2 * Theme.gapWide)
    radius: Theme.radiusSheet
    color: Theme.panel
    border.color: Theme.control
    Accessible.role: Accessible.PopupMenu
    Accessible.name: presenter.title
    Component.onCompleted: shown = 1
    onShownChanged: if (shown === 0 && chosen >= 0) presenter.choose(chosen)

    Connections {
        target: sheet.presenter

        // Another sheet that has waited for its turn.
        function onFrontChanged() {
            sheet.chosen = -1
            sheet.shown = 1
        }
    }

    Behavior on shown {
        enabled: !Theme.reducedMotion

        SequentialAnimation {
            PauseAnimation {
                duration: sheet.isMenu && sheet.chosen < 0 ? 100 : 0
            }

            NumberAnimation {
                duration: sheet.isMenu && sheet.chosen < 0 ? 500 : Theme.slide
                easing.type: Easing.OutCubic
            }
        }
    }

    NumberAnimation on opacity {
        running: Theme.reducedMotion
        from: 0
        to: 1
        duration: Theme.fade
    }

    // A tap between the choices is not one beside the sheet.
    MouseArea {
        anchors.fill: parent
    }

    Rectangle {
        id: tile

        anchors.left: parent.left
        anchors.leftMargin: Theme.margin
        y: Theme.margin
        width: Theme.touch
        height: Theme.touch
        visible: sheet.hasTile
        radius: 8
        color: Theme.header

        Repeater {
            // A flat line where the shape is not known.
            model: sheet.presenter.levels.length > 0 ? sheet.presenter.levels : new Array(8).fill(0)

            Rectangle {
                required property real modelData
                required property int index

                x: 7 + 4 * index
                y: (tile.height - height) / 2
                width: 2
                height: Math.max(2, 2 * Math.round(14 * modelData))
                color: Theme.faint
            }
        }
    }

    Column {
        id: heading

        width: parent.width
        height: Math.max(implicitHeight, sheet.hasTile ? tile.y + tile.height + Theme.gap : 0)
        topPadding: Theme.margin
        bottomPadding: Theme.gap
        spacing: 4

        Repeater {
            model: [sheet.presenter.title, sheet.presenter.message]

            Label {
                required property string modelData
                required property int index

                anchors.left: parent.left
                anchors.leftMargin: sheet.hasTile ? Theme.margin + tile.width + Theme.gapWide : Theme.margin
                anchors.right: parent.right
                anchors.rightMargin: Theme.margin
                maximumLineCount: sheet.isMenu ? 1 : 100
                visible: text !== ""
                text: modelData
                color: index === 0 ? Theme.light : Theme.label
                font.weight: index === 0 ? Font.Medium : Font.Normal
                wrapMode: sheet.isMenu ? Text.NoWrap : Text.Wrap
                elide: sheet.isMenu ? Text.ElideMiddle : Text.ElideNone
                horizontalAlignment: sheet.isMenu ? Text.AlignLeft : Text.AlignHCenter
                Accessible.role: index === 0 ? Accessible.Heading : Accessible.StaticText
                Accessible.name: text
            }
        }
    }

    Flickable {
        id: choices

        y: heading.height
        width: parent.width
        height: parent.height - y - sheet.foot - (sheet.wide ? 0 : sheet.radius)
        contentHeight: (buttons.count - (sheet.cancelIndex >= 0 ? 1 : 0)) * sheet.rowHeight
        clip: true
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds

        Repeater {
            id: buttons

            model: sheet.presenter.actions

            SheetAction {
                required property int index

                // The cancelling choice, which comes last, does not scroll with the others.
                parent: modelData.cancel ? sheet : choices.contentItem
                x: modelData.cancel ? Theme.margin : 0
                y: modelData.cancel ? choices.y + choices.height + Theme.gapWide : index * sheet.rowHeight
                width: sheet.width - 2 * x
                height: modelData.cancel ? Theme.touch : sheet.rowHeight
                objectName: "action" + index
                onClicked: sheet.choose(index)
                onActiveFocusChanged: {
                    if (activeFocus && !modelData.cancel)
                        choices.contentY = Math.max(Math.min(choices.contentY, y), y + height - choices.height)
                }
            }
        }
    }
}
