import QtQuick
import Tavi.Ui

/// Says in passing what the shell has to say. Takes no focus, and taps beside its button go through. It stays while it is
/// pointed at, or its button has the keyboard. What does not fit in a line is told in up to three. Below what is said about
/// work that goes on, a line grows with it.
Rectangle {
    id: root

    required property NoticeLine notices
    /// Something stands before it: its time begins when that is gone.
    property bool behind: false
    readonly property real actionWidth: action.visible ? action.implicitWidth : 0

    implicitWidth: words.implicitWidth + 2 * Theme.gapWide + actionWidth
    implicitHeight: Math.max(48, words.implicitHeight + 20)
    visible: notices.active
    radius: Theme.radiusControl
    color: Theme.control
    border.color: Theme.edge
    Accessible.role: Accessible.AlertMessage
    Accessible.name: notices.text
    onVisibleChanged: if (visible) entrance.restart()

    NumberAnimation {
        id: entrance

        target: root
        property: "opacity"
        // Not from nothing: what cannot be seen at all is not read aloud.
        from: 0.1
        to: 1
        duration: Theme.noticeIn
    }

    HoverHandler {
        id: pointer
    }

    Binding {
        target: root.notices
        property: "held"
        value: pointer.hovered || action.activeFocus || root.behind
    }

    Rectangle {
        objectName: "noticeProgress"
        x: root.radius
        y: root.height - height
        width: (root.width - 2 * x) * Math.max(0, root.notices.progress)
        height: 3
        radius: height / 2
        visible: root.notices.progress >= 0
        color: Theme.accent
        Accessible.role: Accessible.ProgressBar
        Accessible.name: root.notices.text
        Accessible.description: Math.round(root.notices.progress * 100) + " %"
    }

    Label {
        id: words

        x: Theme.gapWide
        width: root.width - 2 * x - root.actionWidth
        height: root.height
        text: root.notices.text
        color: Theme.text
        wrapMode: Text.Wrap
        maximumLineCount: 3
        elide: Text.ElideRight
        Accessible.ignored: true
    }

    TButton {
        id: action

        anchors.right: parent.right
        anchors.rightMargin: 2
        anchors.verticalCenter: parent.verticalCenter
        objectName: "noticeAction"
        visible: text !== ""
        kind: TButton.Tint
        text: root.notices.actionTitle
        onClicked: root.notices.act()
    }
}
