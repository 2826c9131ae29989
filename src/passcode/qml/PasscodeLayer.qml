import QtQuick
import Tavi.Passcode
import Tavi.Ui

/// Above everything else of the window: the entry screen, or the plain cover. While it is shown it has the keyboard, and
/// neither keys nor taps reach what lies below; afterwards the keyboard goes back to where it was.
FocusScope {
    id: layer

    required property PasscodeCoordinator coordinator
    readonly property PasscodeWindow surface: coordinator.passcodeWindow
    readonly property bool entering: surface !== null && !surface.hidden
    readonly property bool shown: entering || coordinator.covered
    /// What stands before everything else below; null for the screens.
    property Item front: null
    /// What had the keyboard before, or has asked for it since.
    property Item waiting: null

    function isWithin(item, outer) {
        for (let one = item; one !== null; one = one.parent) {
            if (one === outer)
                return true
        }
        return false
    }

    function follow() {
        if (shown)
            forceActiveFocus(Qt.PopupFocusReason)
        else if (front !== null && !isWithin(waiting, front))
            front.forceActiveFocus(Qt.PopupFocusReason)
        else if (waiting !== null && waiting.visible && waiting.enabled)
            waiting.forceActiveFocus(Qt.OtherFocusReason)
    }

    visible: shown
    // Above the toolkit's own layer, too, which has tips.
    z: 2000000
    // Tab goes from key to key.
    Keys.onPressed: event => event.accepted = event.key !== Qt.Key_Tab && event.key !== Qt.Key_Backtab
    // Nothing but the end of the program is asked for by a shortcut.
    Keys.onShortcutOverride: event => event.accepted = event.key !== Qt.Key_Q || event.modifiers !== Qt.ControlModifier
    onShownChanged: {
        if (shown)
            follow()
        else
            Qt.callLater(follow)
    }
    Component.onCompleted: if (shown) follow()

    Connections {
        target: layer.Window.window

        function onActiveFocusItemChanged() {
            const item = layer.Window.activeFocusItem
            if (layer.activeFocus)
                return
            if (item !== null && item !== layer.Window.contentItem)
                layer.waiting = item
            // What comes up below takes no keys.
            if (layer.shown)
                layer.forceActiveFocus(Qt.OtherFocusReason)
        }
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.ground
        Accessible.role: Accessible.StaticText
        Accessible.name: qsTrId("passcode_cover")
        Accessible.ignored: layer.entering

        Icon {
            anchors.centerIn: parent
            width: 72
            height: 72
            name: "wp_white.png"
        }
    }

    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
        acceptedButtons: Qt.AllButtons
        onWheel: wheel => wheel.accepted = true
    }

    Loader {
        // Not bound: the screen outlives what shows it.
        readonly property PasscodeViewController screen: layer.entering ? layer.surface.rootViewController : null

        anchors.fill: parent
        focus: true
        onScreenChanged: {
            source = ""
            if (screen !== null)
                setSource("qrc:/Tavi/Passcode/PasscodeScreen.qml", { screen: screen })
        }
    }
}
