import QtQuick
import Tavi.Library
import Tavi.Passcode
import Tavi.Recording
import Tavi.Settings
import Tavi.Trimming
import Tavi.Ui

/// The window: three tabs, notices and alerts above them, and the passcode lock above all.
Window {
    id: window

    required property AudioRecordVC recording
    required property VoiceMemoVC library
    required property ApplicationDelegateGuard opener
    required property SettingVC settings
    required property TabBarController tabBar
    required property AlertPresenter presenter
    required property NoticeLine notices
    required property JHUD hudView
    required property SavePanel savePanel
    required property QtObject appRater
    required property AudioTrimmerStage trimmers
    required property AudioTrimStage audioTrims
    required property PasscodeCoordinator passcode
    /// Fades take the place of movements.
    property bool reducedMotion: false
    /// The passcode lock is before everything: nothing else is drawn, has the keyboard or is told to screen readers.
    readonly property bool locked: lock.shown
    readonly property bool trimming: trimmer.shown || audioTrim.shown
    /// Something covers the screens and takes the keys.
    readonly property bool covered: locked || presenter.active || trimming || shortcuts.shown || savePanel.active || hudView.shown

    /// The least width and height that the screens are laid out for.
    readonly property int leastSide: 280
    readonly property real fit: Math.min(1, width / leastSide, height / leastSide)
    /// A phone on its side.
    readonly property bool low: height < Theme.lowHeight && width > height
    readonly property bool railed: low || width >= Theme.wideWidth
    readonly property var screens: [recordLoader, libraryLoader, settingsLoader]
    property bool started: false
    property bool away: false

    /// Tells the screen of the selected tab that it is about to be seen.
    function appear() {
        if (!started || away)
            return
        screens[tabBar.selectedIndex].appear()
        focusScreen()
    }

    function focusScreen() {
        if (!covered)
            screens[tabBar.selectedIndex].forceActiveFocus()
    }

    /// What had the keyboard may have gone, or been disabled: its keys go to the screen that is seen.
    function keepFocus() {
        const at = activeFocusItem
        if (!covered && (at === null || at === contentItem || at === page || !at.visible || !at.enabled))
            focusScreen()
    }

    LayoutMirroring.enabled: Theme.mirrored
    LayoutMirroring.childrenInherit: true
    width: 390
    height: 844
    minimumWidth: Math.min(leastSide, Screen.width)
    minimumHeight: Math.min(leastSide, Screen.height)
    visible: true
    color: Theme.ground
    title: qsTrId("app_name")
    onVisibilityChanged: visibility => {
        const isHidden = visibility === Window.Hidden || visibility === Window.Minimized
        if (away && !isHidden) {
            away = false
            appear()
        }
        away = isHidden
    }
    onActiveFocusItemChanged: Qt.callLater(keepFocus)
    onCoveredChanged: focusScreen()
    // Whoever has gone on to trim has seen what was said before.
    onTrimmingChanged: if (trimming) notices.dismiss()
    onLockedChanged: if (!locked) appear()
    Component.onCompleted: {
        started = true
        appear()
    }

    HeldKeys {
        target: window
    }

    Binding {
        target: Theme
        property: "reducedMotion"
        value: window.reducedMotion
    }

    Binding {
        target: Theme
        property: "window"
        value: Qt.size(stage.width, stage.height)
    }

    Binding {
        target: window.appRater
        property: "covered"
        value: !window.started || window.away || window.covered
    }

    Connections {
        target: window.tabBar

        function onSelectedIndexChanged() {
            window.appear()
        }
    }

    Connections {
        target: window.recording

        function onPlayRequested(fileName) {
            window.tabBar.select(1)
            window.library.playRecording(fileName)
        }
    }

    Connections {
        target: window.presenter

        // Not at once: whether the screen is covered may be known only after who is told here.
        function onFrontChanged() {
            Qt.callLater(window.focusScreen)
        }
    }

    Repeater {
        model: 3

        Item {
            required property int index

            Shortcut {
                sequence: "Ctrl+" + (index + 1)
                enabled: !window.covered
                onActivated: window.tabBar.select(index)
            }
        }
    }

    Shortcut {
        sequence: "Ctrl+S"
        autoRepeat: false
        // As with the stop button: only while there is something to stop.
        enabled: !window.covered && window.recording.btnStop.enabled
        onActivated: window.recording.stopAndSaveRecording(window)
    }

    Shortcut {
        sequence: "Ctrl+Q"
        onActivated: window.close()
    }

    Shortcut {
        sequence: "F1"
        enabled: !window.covered
        onActivated: shortcuts.open()
    }

    /// All that is seen but for the lock. Where the window is smaller than anything can be laid out in, as with very large
    /// text on a small phone, it is laid out for the least size and shown smaller.
    Item {
        id: stage

        /// To screen readers.
        property bool untold: window.locked

        visible: !window.locked
        width: window.width / window.fit
        height: window.height / window.fit
        scale: window.fit
        transformOrigin: Item.TopLeft

        FocusScope {
            id: page

            property bool covered: window.covered

            anchors.fill: parent
            Accessible.role: Accessible.Grouping
            focus: true
            // What is behind the trimmer is out of the keyboard's reach.
            enabled: !window.trimming && !shortcuts.shown && !window.savePanel.active
            // A focused control takes the space bar first; anywhere else on the record tab it records and pauses.
            Keys.onSpacePressed: {
                if (window.tabBar.selectedIndex === 0)
                    window.recording.playAndPauseRecording(window)
            }
            Keys.onPressed: event => {
                if (event.text === "?") {
                    shortcuts.open()
                    event.accepted = true
                }
            }

            SessionBar {
                id: session

                x: content.x
                width: content.width
                height: implicitHeight
                screen: window.recording
                tabBar: window.tabBar
            }

            Item {
                id: content

                x: window.railed && !Theme.mirrored ? bar.width : 0
                y: session.height
                width: parent.width - (window.railed ? bar.width : 0)
                height: parent.height - y - (window.railed ? 0 : bar.height)

                TabPage {
                    id: recordLoader

                    tab: 0
                    selectedIndex: window.tabBar.selectedIndex
                    url: "qrc:/Tavi/Recording/RecordScreen.qml"
                    controller: window.recording
                    footRoom: notice.room
                }

                TabPage {
                    id: libraryLoader

                    tab: 1
                    selectedIndex: window.tabBar.selectedIndex
                    url: "qrc:/Tavi/Library/LibraryScreen.qml"
                    controller: window.library
                    footRoom: notice.room
                }

                TabPage {
                    id: settingsLoader

                    tab: 2
                    selectedIndex: window.tabBar.selectedIndex
                    url: "qrc:/Tavi/Settings/SettingsScreen.qml"
                    controller: window.settings
                    footRoom: notice.room
                }
            }

            TabBar {
                id: bar

                objectName: "tabBar"
                anchors.left: parent.left
                y: window.railed ? 0 : parent.height - height
                width: window.railed ? implicitWidth : parent.width
                height: window.railed ? parent.height : implicitHeight
                vertical: window.railed
                low: window.low
                controller: window.tabBar
            }
        }

        ImportDrop {
            anchors.fill: parent
            enabled: !window.covered
            onTaken: urls => window.opener.openUrls(urls)
        }

        TrimmerOverlay {
            id: trimmer

            stage: window.trimmers
            url: "qrc:/Tavi/Trimming/TrimmerScreen.qml"
        }

        TrimmerOverlay {
            id: audioTrim

            stage: window.audioTrims
            url: "qrc:/Tavi/Trimming/AudioTrimScreen.qml"
        }

        NoticeBar {
            id: notice

            readonly property rect area: window.screens[window.tabBar.selectedIndex].item?.noticeArea
                                         ?? Qt.rect(0, 0, content.width, content.height)
            readonly property real room: visible ? height + Theme.gapWide : 0

            objectName: "notice"
            x: content.x + area.x + Math.round((area.width - width) / 2)
            y: content.y + area.y + area.height - height - Theme.gapWide
            width: Math.min(area.width - 2 * Theme.gapWide, 480)
            notices: window.notices
            behind: window.covered
        }

        ShortcutList {
            id: shortcuts

            onGuideAsked: window.settings.support.openGuide()
        }

        Loader {
            id: saving

            anchors.fill: parent
            active: window.savePanel.active
            focus: active && !window.hudView.shown && !window.presenter.active
            sourceComponent: SavePanelView {
                panel: window.savePanel
            }
        }

        Loader {
            id: hud

            objectName: "hudView"
            anchors.fill: parent
            active: window.hudView.shown
            focus: active && !window.presenter.active
            sourceComponent: HudView {
                hud: window.hudView
                behind: window.presenter.active
            }
        }

        Loader {
            id: overlay

            anchors.fill: parent
            active: window.presenter.active
            focus: active
            sourceComponent: AlertOverlay {
                presenter: window.presenter
            }
        }
    }

    PasscodeLayer {
        id: lock

        objectName: "lock"
        width: stage.width
        height: stage.height
        scale: stage.scale
        transformOrigin: Item.TopLeft
        coordinator: window.passcode
        front: [overlay, hud, saving].find(layer => layer.active)
               ?? [shortcuts, audioTrim, trimmer].find(layer => layer.shown) ?? null

        // What is dropped here waits until the lock is open.
        ImportDrop {
            anchors.fill: parent
            onTaken: urls => window.opener.openUrls(urls)
        }
    }
}
