import QtQuick
import Tavi.Ui

/// Covers the window while an alert or a sheet stands: nothing below takes taps or keys.
FocusScope {
    id: overlay

    required property AlertPresenter presenter
    readonly property Repeater buttons: view.item?.buttons ?? null
    /// A sheet has been asked for at a point, and there is room for it there.
    readonly property bool besidePoint: presenter.sheet && presenter.anchored && width >= Theme.wideWidth

    function focusAction(index, reason) {
        if (buttons !== null && buttons.count > 0)
            buttons.itemAt((index + buttons.count) % buttons.count)?.forceActiveFocus(reason)
    }

    function moveFocus(step) {
        // The text field, if there is one, stands before the buttons.
        const field = view.item?.field ?? null
        let current = -1
        for (let i = 0; i < buttons.count; ++i) {
            if (buttons.itemAt(i).activeFocus)
                current = i
        }
        const next = current < 0 ? (step > 0 ? 0 : buttons.count - 1) : current + step
        if (field !== null && current >= 0 && (next < 0 || next === buttons.count))
            field.forceActiveFocus(Qt.TabFocusReason)
        else
            focusAction(next, Qt.TabFocusReason)
    }

    /// Brings the next or the last page of a long text.
    function scroll(pages) {
        const words = view.item?.words ?? null
        if (words !== null)
            words.contentY = Math.max(0, Math.min(words.contentY + pages * words.height, words.contentHeight - words.height))
    }

    function focusDefault() {
        // No choice of a sheet is likelier than the others: Enter does nothing before an arrow key has marked one.
        if (presenter.sheet)
            forceActiveFocus(Qt.PopupFocusReason)
        else if (view.item?.field)
            view.item.field.forceActiveFocus(Qt.PopupFocusReason)
        else if (presenter.active)
            focusAction(Math.max(presenter.defaultAction, 0), Qt.PopupFocusReason)
    }

    focus: true
    Keys.onEscapePressed: presenter.dismiss()
    Keys.onTabPressed: moveFocus(1)
    Keys.onBacktabPressed: moveFocus(-1)
    Keys.onDownPressed: moveFocus(1)
    Keys.onUpPressed: moveFocus(-1)
    Keys.onRightPressed: moveFocus(1)
    Keys.onLeftPressed: moveFocus(-1)
    Keys.onPressed: event => {
        if (event.key === Qt.Key_PageDown)
            scroll(1)
        else if (event.key === Qt.Key_PageUp)
            scroll(-1)
        // No key reaches what lies below.
        event.accepted = true
    }
    Component.onCompleted: focusDefault()

    Connections {
        target: overlay.presenter

        function onFrontChanged() {
            Qt.callLater(overlay.focusDefault)
        }
    }

    Rectangle {
        anchors.fill: parent
        // Beside a menu the rest stays in sight.
        color: overlay.besidePoint ? "transparent" : Theme.scrim
    }

    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
        acceptedButtons: Qt.AllButtons
        onWheel: wheel => wheel.accepted = true
        onClicked: {
            if (overlay.presenter.sheet)
                overlay.presenter.dismiss()
        }
    }

    Loader {
        id: view

        anchors.fill: parent
        sourceComponent: overlay.besidePoint ? menu : overlay.presenter.sheet ? sheet : alert
    }

    Component {
        id: alert

        Item {
            readonly property alias buttons: panel.buttons
            readonly property alias words: panel.words
            readonly property alias field: panel.field

            AlertView {
                id: panel

                presenter: overlay.presenter
            }
        }
    }

    Component {
        id: sheet

        Item {
            readonly property alias buttons: panel.buttons

            ActionSheet {
                id: panel

                presenter: overlay.presenter
            }
        }
    }

    Component {
        id: menu

        Item {
            readonly property alias buttons: panel.buttons

            ContextMenu {
                id: panel

                presenter: overlay.presenter
            }
        }
    }
}
