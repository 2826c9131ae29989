import QtQuick
import Tavi.Ui

/// Covers the window while an alert or a sheet stands: nothing below takes taps or keys.
FocusScope {
    id: overlay

    required property AlertPresenter presenter
    readonly property Repeater buttons: view.item?.buttons ?? null

    function focusAction(index, reason) {
        if (buttons !== null && buttons.count > 0)
            buttons.itemAt((index + buttons.count) % buttons.count)?.forceActiveFocus(reason)
    }

    function moveFocus(step) {
        let current = -1
        for (let i = 0; i < buttons.count; ++i) {
            if (buttons.itemAt(i).activeFocus)
                current = i
        }
        focusAction(current < 0 ? 0 : current + step, Qt.TabFocusReason)
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
        color: Theme.scrim
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
        sourceComponent: overlay.presenter.sheet ? sheet : alert
    }

    Component {
        id: alert

        Item {
            readonly property alias buttons: panel.buttons
            readonly property alias words: panel.words

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
}
