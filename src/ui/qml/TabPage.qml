import QtQuick
import Tavi.Ui

/// The screen of one tab. It is built when first selected and then kept; its controller hears of it as it appears.
Loader {
    id: page

    required property int tab
    required property int selectedIndex
    required property url url
    required property QtObject controller
    /// How much of the screen's foot a notice covers. Lists get that much more to scroll.
    property real footRoom: 0
    property bool told: false
    readonly property bool selected: tab === selectedIndex

    /// Builds the screen; at once, as it takes less than a frame.
    function build() {
        if (status === Loader.Null)
            setSource(url, { screen: controller })
    }

    /// The screen is about to be seen.
    function appear() {
        build()
        if (!told) {
            told = true
            controller.viewDidLoad()
        }
        controller.viewWillAppear()
    }

    anchors.fill: parent
    visible: selected
    focus: selected
    onLoaded: {
        item.focus = true
        if (item.footRoom !== undefined)
            item.footRoom = Qt.binding(() => page.footRoom)
    }
}
