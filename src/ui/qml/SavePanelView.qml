import QtQuick
import Tavi.Ui

/// Asks for a folder and a name over everything else: nothing below takes taps or keys.
FocusScope {
    id: view

    required property SavePanel panel
    readonly property bool low: height < 420

    function save() {
        if (panel.choosesFolder)
            panel.choose()
        else if (panel.isName(name.text))
            panel.save(name.text)
    }

    focus: true
    Accessible.role: Accessible.Dialog
    Accessible.name: panel.title
    Keys.onEscapePressed: panel.cancel()
    // No key reaches what lies below.
    Keys.onPressed: event => event.accepted = true
    Component.onCompleted: {
        name.text = panel.name
        if (panel.choosesFolder) {
            list.forceActiveFocus(Qt.TabFocusReason)
            return
        }
        name.forceActiveFocus(Qt.PopupFocusReason)
        // What is before the extension is what is changed.
        name.select(0, name.text.lastIndexOf(".") > 0 ? name.text.lastIndexOf(".") : name.text.length)
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
    }

    Rectangle {
        id: box

        anchors.centerIn: parent
        width: Math.min(parent.width - 2 * Theme.gapWide, 480)
        height: Math.min(parent.height - 2 * Theme.gapWide, 600)
        radius: Theme.radiusSheet
        color: Theme.panel
        border.color: Theme.control

        MouseArea {
            anchors.fill: parent
        }

        Label {
            id: title

            x: Theme.margin
            width: parent.width - 2 * x
            height: view.low ? 0 : 52
            visible: !view.low
            text: view.panel.title
            color: Theme.text
            font.pixelSize: Theme.textDialog
            font.weight: Font.Medium
            elide: Text.ElideRight
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }

        ListView {
            id: places

            x: Theme.gap
            y: title.height
            width: parent.width - 2 * x
            height: visible ? Theme.touch : 0
            visible: !view.low
            orientation: ListView.Horizontal
            boundsBehavior: Flickable.StopAtBounds
            clip: true
            model: view.panel.places
            delegate: TButton {
                required property int index
                required property string modelData

                text: modelData
                kind: TButton.Tint
                onActiveFocusChanged: if (activeFocus) places.positionViewAtIndex(index, ListView.Contain)
                onClicked: view.panel.goTo(index)
            }
        }

        IconButton {
            id: up

            anchors.left: parent.left
            anchors.leftMargin: Theme.gap
            y: places.y + places.height
            objectName: "saveUp"
            imageName: "arrow-up.png"
            imageSize: 20
            tint: Theme.light
            name: qsTrId("save_up")
            enabled: view.panel.folder !== "/"
            onClicked: view.panel.goUp()
        }

        Label {
            anchors.left: up.right
            anchors.leftMargin: Theme.gap
            anchors.right: parent.right
            anchors.rightMargin: Theme.margin
            y: up.y
            height: up.height
            text: view.panel.folder
            elide: Text.ElideLeft
            maximumLineCount: 1
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }

        Rectangle {
            y: up.y + up.height
            width: parent.width
            height: 1
            color: Theme.lineStrong
        }

        ListView {
            id: list

            y: up.y + up.height + 1
            width: parent.width
            height: Math.max(0, name.y - y - 1)
            objectName: "saveFolders"
            activeFocusOnTab: true
            clip: true
            boundsBehavior: Flickable.StopAtBounds
            highlightMoveDuration: 0
            keyNavigationEnabled: true
            model: view.panel.folders
            Accessible.role: Accessible.List
            Accessible.name: qsTrId("save_folders")
            Keys.onReturnPressed: view.panel.enter(currentIndex)
            Keys.onEnterPressed: view.panel.enter(currentIndex)
            Keys.onRightPressed: Theme.mirrored ? view.panel.goUp() : view.panel.enter(currentIndex)
            Keys.onLeftPressed: Theme.mirrored ? view.panel.enter(currentIndex) : view.panel.goUp()
            delegate: Item {
                id: row

                required property int index
                required property string modelData

                width: list.width
                height: Theme.touch
                Accessible.role: Accessible.ListItem
                Accessible.name: modelData
                Accessible.onPressAction: view.panel.enter(index)

                RowGround {
                    anchors.fill: parent
                    hovered: pointer.hovered
                    pressed: tap.pressed
                    focused: list.activeFocus && row.ListView.isCurrentItem
                }

                HoverHandler {
                    id: pointer
                }

                TapHandler {
                    id: tap

                    onTapped: view.panel.enter(row.index)
                }

                Label {
                    anchors.left: parent.left
                    anchors.leftMargin: Theme.margin
                    anchors.right: next.left
                    anchors.rightMargin: Theme.gap
                    height: parent.height
                    text: row.modelData
                    color: Theme.text
                    font.pixelSize: Theme.textControl
                    elide: Text.ElideMiddle
                    maximumLineCount: 1
                }

                Icon {
                    id: next

                    anchors.verticalCenter: parent.verticalCenter
                    anchors.right: parent.right
                    anchors.rightMargin: Theme.margin
                    width: 16
                    height: 16
                    name: "chevron-right.png"
                    color: Theme.faint
                }
            }
        }

        ScrollMark {
            flickable: list
        }

        Rectangle {
            y: name.y - 1
            width: parent.width
            height: 1
            color: Theme.lineStrong
        }

        TField {
            id: name

            x: Theme.margin
            y: buttons.y - height - (view.low ? 0 : Theme.gap)
            width: parent.width - 2 * x
            height: visible ? implicitHeight : Theme.gap
            visible: !view.panel.choosesFolder
            objectName: "saveName"
            placeholderText: qsTrId("save_name")
            Accessible.name: qsTrId("save_name")
            onAccepted: view.save()
        }

        Row {
            id: buttons

            anchors.right: parent.right
            anchors.rightMargin: Theme.margin
            y: parent.height - height - (view.low ? Theme.gap : Theme.gapWide)
            spacing: Theme.gap

            TButton {
                objectName: "saveCancel"
                text: qsTrId("Cancel")
                kind: TButton.Quiet
                onClicked: view.panel.cancel()
            }

            TButton {
                objectName: "saveAccept"
                text: view.panel.choosesFolder ? qsTrId("save_choose") : qsTrId("save_accept")
                kind: TButton.Filled
                enabled: view.panel.choosesFolder || view.panel.isName(name.text)
                onClicked: view.save()
            }
        }
    }
}
