import QtQuick
import Tavi.Library
import Tavi.Ui

/// One recording: its name, and what is known of it; beside each other where there is room.
Item {
    id: row

    required property int index
    required property string nameText
    required property string detailText
    readonly property bool wide: width >= 640

    width: ListView.view.width
    height: wide ? 56 : 68
    Accessible.role: Accessible.ListItem
    Accessible.name: nameText
    Accessible.description: detailText

    Rectangle {
        anchors.fill: parent
        anchors.bottomMargin: 1
        visible: row.ListView.isCurrentItem && row.ListView.view.activeFocus
        color: Theme.header
        border.color: Theme.focus
        border.width: 2
        radius: 8
    }

    Icon {
        id: icon

        x: Theme.margin
        anchors.verticalCenter: parent.verticalCenter
        width: 40
        height: 40
        name: "music.png"
        color: Theme.accent
    }

    Label {
        id: name

        x: icon.x + icon.width + 12
        y: row.wide ? 0 : 13
        width: (row.wide ? detail.x - 24 : row.width - Theme.margin) - x
        height: row.wide ? row.height : 22
        text: row.nameText
        color: Theme.lightGrey
        font.pixelSize: 15
        elide: Text.ElideMiddle
        maximumLineCount: 1
        horizontalAlignment: Text.AlignLeft
    }

    Label {
        id: detail

        x: row.wide ? row.width - width - Theme.margin : name.x
        y: row.wide ? 0 : 36
        width: row.wide ? 300 : name.width
        height: row.wide ? row.height : 18
        text: row.detailText
        font.pixelSize: 13
        elide: Text.ElideRight
        maximumLineCount: 1
        horizontalAlignment: row.wide ? Text.AlignRight : Text.AlignLeft
    }

    Rectangle {
        x: name.x
        y: row.height - 1
        width: row.width - x
        height: 1
        color: Theme.hairline
    }
}
