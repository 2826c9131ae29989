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
    readonly property bool told: notices.active
    // What it says and offers, or said last while it fades out.
    property string text
    property string actionTitle
    readonly property real actionWidth: action.visible ? action.implicitWidth : 0

    function adopt() {
        if (!told)
            return
        text = notices.text
        actionTitle = notices.actionTitle
    }

    function fade(from, to, duration) {
        fading.from = from
        fading.to = to
        fading.duration = duration
        fading.restart()
    }

    implicitWidth: words.implicitWidth + 2 * Theme.gapWide + actionWidth
    implicitHeight: Math.max(48, words.implicitHeight + 20)
    visible: told || fading.running
    radius: Theme.radiusControl
    color: Theme.control
    border.color: Theme.edge
    // Not from nothing: what cannot be seen at all is not read aloud.
    onToldChanged: told ? fade(0.1, 1, Theme.noticeIn) : fade(opacity, 0, Theme.noticeOut)
    Component.onCompleted: adopt()

    Connections {
        target: root.notices

        function onNoticeChanged() {
            root.adopt()
        }
    }

    NumberAnimation {
        id: fading

        target: root
        property: "opacity"
    }

    HoverHandler {
        id: pointer

        enabled: root.told
    }

    Binding {
        target: root.notices
        property: "held"
        value: pointer.hovered || action.activeFocus || root.behind
    }

    // For who cannot see it, gone as soon as the notice is.
    Item {
        objectName: "noticeTold"
        anchors.fill: parent
        visible: root.told
        Accessible.role: Accessible.AlertMessage
        Accessible.name: root.notices.text
    }

    Rectangle {
        objectName: "noticeProgress"
        anchors.left: parent.left
        anchors.leftMargin: root.radius
        y: root.height - height
        width: (root.width - 2 * root.radius) * Math.max(0, root.notices.progress)
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

        anchors.left: parent.left
        anchors.leftMargin: Theme.gapWide
        width: root.width - 2 * Theme.gapWide - root.actionWidth
        height: root.height
        text: root.text
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
        text: root.actionTitle
        onClicked: root.notices.act()
    }
}
