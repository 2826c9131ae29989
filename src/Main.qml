import QtQuick
import Tavi.Library
import Tavi.Recording
import Tavi.Settings
import Tavi.Trimming
import Tavi.Ui

/// The window: three tabs, and notices and alerts above them.
Window {
    id: window

    required property AudioRecordVC recording
    required property VoiceMemoVC library
    required property SettingVC settings
    required property TabBarController tabBar
    required property AlertPresenter presenter
    required property NoticeLine notices
    required property AudioTrimmerStage trimmers
    /// Something covers the screens and takes the keys.
    readonly property bool covered: presenter.active || trimmer.shown

    readonly property bool wide: width >= Theme.wideWidth
    readonly property var screens: [recordLoader, libraryLoader, settingsLoader]
    property bool started: false
    property bool away: false

    /// Tells the screen of the selected tab that it is about to be seen.
    function appear() {
        if (!started || away)
            return
        screens[tabBar.selectedIndex].appear()
        if (!covered)
            screens[tabBar.selectedIndex].forceActiveFocus()
    }

    width: 390
    height: 844
    minimumWidth: 360
    minimumHeight: 640
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
    Component.onCompleted: {
        started = true
        appear()
    }

    Connections {
        target: window.tabBar

        function onSelectedIndexChanged() {
            window.appear()
        }
    }

    onCoveredChanged: if (!covered) screens[tabBar.selectedIndex].forceActiveFocus()

    Connections {
        target: window.presenter

        function onFrontChanged() {
            if (!window.covered)
                window.screens[window.tabBar.selectedIndex].forceActiveFocus()
        }
    }

    Shortcut {
        sequence: "Ctrl+1"
        enabled: !window.covered
        onActivated: window.tabBar.select(0)
    }

    Shortcut {
        sequence: "Ctrl+2"
        enabled: !window.covered
        onActivated: window.tabBar.select(1)
    }

    Shortcut {
        sequence: "Ctrl+3"
        enabled: !window.covered
        onActivated: window.tabBar.select(2)
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

    FocusScope {
        id: page

        property bool covered: window.covered

        anchors.fill: parent
        Accessible.role: Accessible.Grouping
        focus: true
        // What is behind the trimmer is out of the keyboard's reach.
        enabled: !trimmer.shown
        // A focused control takes the space bar first; anywhere else on the record tab it records and pauses.
        Keys.onSpacePressed: event => {
            if (window.tabBar.selectedIndex === 0 && !event.isAutoRepeat)
                window.recording.playAndPauseRecording(window)
        }

        Item {
            id: content

            x: window.wide ? bar.width : 0
            width: parent.width - x
            height: parent.height - (window.wide ? 0 : bar.height)

            TabPage {
                id: recordLoader

                tab: 0
                selectedIndex: window.tabBar.selectedIndex
                url: "qrc:/Tavi/Recording/RecordScreen.qml"
                controller: window.recording
            }

            TabPage {
                id: libraryLoader

                tab: 1
                selectedIndex: window.tabBar.selectedIndex
                url: "qrc:/Tavi/Library/LibraryScreen.qml"
                controller: window.library
            }

            TabPage {
                id: settingsLoader

                tab: 2
                selectedIndex: window.tabBar.selectedIndex
                url: "qrc:/Tavi/Settings/SettingsScreen.qml"
                controller: window.settings
            }
        }

        TabBar {
            id: bar

            objectName: "tabBar"
            y: window.wide ? 0 : parent.height - height
            width: window.wide ? implicitWidth : parent.width
            height: window.wide ? parent.height : implicitHeight
            vertical: window.wide
            controller: window.tabBar
        }
    }

    TrimmerOverlay {
        id: trimmer

        stage: window.trimmers
    }

    NoticeBar {
        objectName: "notice"
        x: content.x + Math.round((content.width - width) / 2)
        y: content.height - height - 12
        width: Math.min(implicitWidth, content.width - 24, 480)
        notices: window.notices
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
