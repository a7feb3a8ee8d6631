pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui

/// The loans of others, five at a time, moving up so that the one told of stands in the middle.
Rectangle {
    id: ticker

    required property string name
    property alias model: list.model
    property alias currentIndex: list.currentIndex
    readonly property int rowHeight: Theme.scaled(44)

    implicitHeight: 5 * rowHeight + 2 * Theme.spacingSmall
    opacity: list.count > 0 ? 1 : 0
    radius: Theme.radiusLarge
    color: Theme.deep.surface

    ListView {
        id: list
        anchors { fill: parent; margins: Theme.spacingSmall }
        clip: true
        interactive: false
        currentIndex: -1
        preferredHighlightBegin: (height - ticker.rowHeight) / 2
        preferredHighlightEnd: (height + ticker.rowHeight) / 2
        highlightRangeMode: ListView.ApplyRange
        highlightMoveDuration: Theme.motion
        Accessible.role: Accessible.List
        Accessible.name: ticker.name
        delegate: BoardcastCell {
            width: ListView.view.width
            height: ticker.rowHeight
        }
    }
}
