import QtQuick
import Tavi.Ui
import QtQuick.Templates as T

/// What can be done with the thing under the pointer. Its children are ContextMenuItems; popup() opens it inside the
/// window.
T.Menu {
    id: menu

    margins: Theme.gap
    padding: 6
    implicitWidth: 232
    implicitHeight: list.contentHeight + topPadding + bottomPadding
    modal: true
    dim: false
    contentItem: ListView {
        id: list

        model: menu.contentModel
        clip: true
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        currentIndex: menu.currentIndex
    }
    background: Rectangle {
        radius: Theme.radiusControl
        color: Theme.panel
        border.color: Theme.edge
    }
}
