import QtQuick
import Tavi.Ui

/// What can be done with the thing at a point of the window: a sheet's choices beside that point, without the cancelling
/// one.
Rectangle {
    id: menu

    required property AlertPresenter presenter
    readonly property alias buttons: buttons
    /// Where the window's point is here.
    readonly property point at: parent ? parent.mapFromItem(null, presenter.anchor.x, presenter.anchor.y) : Qt.point(0, 0)
    readonly property int cancelIndex: presenter.actions.findIndex(action => action.cancel)

    function within(place, room, size) {
        return Math.max(Theme.gap, Math.min(place, room - size - Theme.gap))
    }

    // On the other side of the point where there is no room on the one to which the words run.
    x: within((Theme.mirrored ? at.x >= width + Theme.gap : at.x + width + Theme.gap > parent.width) ? at.x - width : at.x,
              parent.width, width)
    y: within(at.y, parent.height, height)
    width: 232
    height: Math.min(choices.contentHeight + 12, parent.height - 2 * Theme.gap)
    radius: Theme.radiusControl
    color: Theme.panel
    border.color: Theme.edge
    Accessible.role: Accessible.PopupMenu
    Accessible.name: presenter.title

    // A tap between the choices is not one beside the menu.
    MouseArea {
        anchors.fill: parent
    }

    Flickable {
        id: choices

        x: 6
        y: 6
        width: parent.width - 12
        height: parent.height - 12
        contentHeight: column.height
        clip: interactive
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds

        Column {
            id: column

            width: parent.width

            Repeater {
                id: buttons

                // The cancelling choice, which comes last, is a press of Escape or beside the menu.
                model: menu.cancelIndex >= 0 ? menu.presenter.actions.slice(0, menu.cancelIndex) : menu.presenter.actions

                ContextMenuItem {
                    required property int index

                    width: column.width
                    objectName: "action" + index
                    onClicked: menu.presenter.choose(index)
                    onActiveFocusChanged: {
                        if (activeFocus)
                            choices.contentY = Math.max(Math.min(choices.contentY, y), y + height - choices.height)
                    }
                }
            }
        }
    }
}
