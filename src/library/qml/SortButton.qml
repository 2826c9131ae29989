import QtQuick
import Tavi.Ui

/// One of the columns that the recordings can be sorted by; the one chosen shows its direction.
TButton {
    required property string title
    required property string image
    /// A tap on it, or on none so far, sorts from the first to the last.
    required property bool ascending
    readonly property bool chosen: image !== ""

    height: Theme.touch
    text: title
    tint: Theme.label
    font.weight: chosen ? Font.Medium : Font.Normal
    imageName: image
    Accessible.name: !chosen ? qsTrId("a11y_sort").arg(title) : ascending ? qsTrId("a11y_sort_ascending").arg(title)
                                                                          : qsTrId("a11y_sort_descending").arg(title)
}
