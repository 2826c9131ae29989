import QtQuick
import Tavi.Passcode
import Tavi.Ui

/// The entry screen: logo, instruction, dots and keys below each other, or the keys beside the rest on a phone on its
/// side. What is small shrinks: first gaps, then the logo goes, then the keys become smaller.
FocusScope {
    id: root

    required property PasscodeViewController screen

    readonly property bool beside: width > height && height < Theme.lowHeight
    readonly property bool tight: height < 640
    readonly property int columnGap: tight ? 14 : 26
    /// From the instruction's middle to the dots' middle.
    readonly property int drop: 70
    /// What is left below the dots, without the instruction's upper half and the edges.
    readonly property real room: height - (beside ? 8 : drop + 16)
    readonly property int wantedDrop: beside ? 0 : tight ? 30 : 65
    readonly property int leastDrop: beside ? 0 : 11
    readonly property real keySize: {
        const fits = (room - wantedDrop - 3 * (tight ? 10 : 18)) / 4
        return Math.max(Theme.touch, Math.min(screen.passcodeButtonSize, Math.floor(fits)))
    }
    readonly property real rowGap: Math.max(0, Math.min(tight ? 10 : 18, (room - leastDrop - 4 * keySize) / 3))
    readonly property real padWidth: 3 * keySize + 2 * columnGap
    readonly property real padHeight: 4 * keySize + 3 * rowGap
    /// From the dots' middle to the keys.
    readonly property real padDrop: Math.max(leastDrop, Math.min(wantedDrop, room - padHeight))
    /// What the words have beside the keys, or all of it.
    readonly property real wordsWidth: beside ? Math.min(300, width - padWidth - 3 * Theme.margin) : Math.min(300, width - 16)
    readonly property real foot: beside ? 7 : padDrop + padHeight
    readonly property bool logoShown: 36 + screen.logoDistance + drop + foot + 16 <= height
    readonly property real head: logoShown ? 36 + screen.logoDistance : 10
    readonly property real blockY: Math.max(4, (height - head - drop - foot) / 2)
    readonly property real wordsX: beside ? (width - wordsWidth - padWidth - 48) / 2 : (width - wordsWidth) / 2
    readonly property real middle: wordsX + wordsWidth / 2
    readonly property real instructionY: blockY + head

    focus: true
    Accessible.role: Accessible.Dialog
    Accessible.name: screen.lblInstruction.text
    Keys.onPressed: event => {
        if (event.key === Qt.Key_Backspace || event.key === Qt.Key_Delete)
            screen.deletePressed()
        else if (event.key === Qt.Key_Escape)
            screen.cancelPressed()
        else if (!event.isAutoRepeat && !(event.modifiers & (Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier)))
            screen.typed(event.text)
    }

    Binding {
        target: root.screen
        property: "tablet"
        value: root.width >= Theme.wideWidth && !root.beside
    }

    Rectangle {
        anchors.fill: parent
        color: root.screen.backgroundColor
    }

    Icon {
        anchors.fill: parent
        visible: root.screen.backgroundImage !== ""
        name: root.screen.backgroundImage
    }

    Icon {
        objectName: "passcodeLogo"
        x: root.middle - 36
        y: root.instructionY - root.screen.logoDistance - 36
        width: 72
        height: 72
        visible: root.logoShown && root.screen.logo !== ""
        name: root.screen.logo
    }

    Label {
        id: instruction

        objectName: "lblInstruction"
        x: root.wordsX
        y: root.instructionY - 10
        width: root.wordsWidth
        height: 20
        text: root.screen.lblInstruction.text
        color: root.screen.lblInstruction.textColor
        font.pixelSize: root.screen.instructionSize
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: Theme.textCaption
        horizontalAlignment: Text.AlignHCenter
        Accessible.ignored: true
    }

    Label {
        objectName: "passcodeTrouble"
        x: root.wordsX
        y: instruction.y + instruction.height + 2
        width: root.wordsWidth
        // Clear of the dots, also with three lines.
        height: root.drop - 28
        visible: text !== ""
        text: root.screen.trouble
        color: Theme.tint
        font.pixelSize: Theme.textDetail
        fontSizeMode: Text.Fit
        minimumPixelSize: 9
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text
    }

    PasscodeEntryDots {
        objectName: "passcodeEntryViewsContainerView"
        x: root.middle - width / 2
        y: root.instructionY + root.drop - height / 2
        screen: root.screen
    }

    Item {
        id: pad

        x: root.beside ? root.wordsX + root.wordsWidth + 48 : (root.width - width) / 2
        y: root.beside ? (root.height - height) / 2 : root.instructionY + root.drop + root.padDrop
        width: root.padWidth
        height: root.padHeight

        Repeater {
            // From 1 on, and 0 last.
            model: root.screen.passcodeButtons.length

            PasscodeKey {
                required property int index
                readonly property int place: index === 9 ? 10 : index

                objectName: "key" + style.tag
                x: (place % 3) * (root.keySize + root.columnGap)
                y: Math.floor(place / 3) * (root.keySize + root.rowGap)
                width: root.keySize
                style: root.screen.passcodeButtons[(index + 1) % 10]
                onClicked: root.screen.passcodeBtnPressed(style.tag)
            }
        }

        TButton {
            objectName: "btnCancelOrDelete"
            x: pad.width - (root.keySize + width) / 2
            y: pad.height - (root.keySize + height) / 2
            width: Math.max(root.keySize, implicitWidth)
            height: root.keySize
            horizontalPadding: 4
            visible: !root.screen.cancelOrDeleteHidden
            radius: root.keySize / 2
            text: root.screen.btnCancelOrDelete.title
            tint: root.screen.btnCancelOrDelete.tintColor
            font.pixelSize: root.screen.cancelOrDeleteSize
            onClicked: root.screen.cancelOrDeleteBtnPressed()
        }
    }
}
