import QtQuick
import Tavi.Ui

/// Says in passing what the shell has to say. Takes no focus, and taps beside its button go through.
Rectangle {
    id: root

    required property NoticeLine notices
    readonly property real actionWidth: action.visible ? action.implicitWidth : 0

    implicitWidth: words.implicitWidth + 2 * Theme.margin + actionWidth
    implicitHeight: Math.max(Theme.touch, words.implicitHeight + 16)
    visible: notices.active
    radius: 10
    color: Theme.control
    border.color: Theme.pressed
    Accessible.role: Accessible.AlertMessage
    Accessible.name: notices.text

    Label {
        id: words

        x: Theme.margin
        width: root.width - 2 * x - root.actionWidth
        height: root.height
        text: root.notices.text
        color: Theme.text
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }

    TButton {
        id: action

        anchors.right: parent.right
        anchors.rightMargin: 4
        anchors.verticalCenter: parent.verticalCenter
        objectName: "noticeAction"
        visible: text !== ""
        text: root.notices.actionTitle
        onClicked: root.notices.act()
    }
}
