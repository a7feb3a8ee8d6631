pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui
import Zorvane.Trading

/// The ten levels of one side of the order book, under each other. One of them is reached with Tab, first the best one;
/// from there the arrow keys go on.
Column {
    id: side

    required property TZHandicapView handicapView
    required property bool buySide
    required property bool stale
    required property real rowHeight
    required property string name
    /// The row of the best level. Below one that is not the first the next block begins, with the worst.
    property int best: 0
    /// The row that Tab reaches.
    property int current: best

    function moveTo(row: int) {
        const level = levels.itemAt(row) as OrderBookRow
        if (level && level.available)
            level.forceActiveFocus(Qt.TabFocusReason)
    }

    Accessible.role: Accessible.List
    Accessible.name: name
    Keys.onUpPressed: moveTo(current - 1)
    Keys.onDownPressed: moveTo(current + 1)

    Repeater {
        id: levels
        model: side.handicapView.rows

        OrderBookRow {
            required property int index
            required property bool selectable
            readonly property bool parted: index === side.best && index > 0

            required title
            required price
            required volume
            required share
            required trend
            width: side.width
            height: side.rowHeight + (parted ? partition.height : 0)
            buySide: side.buySide
            stale: side.stale
            available: selectable
            Accessible.ignored: !selectable
            activeFocusOnTab: index === side.current
            onActiveFocusChanged: if (activeFocus) side.current = index
            onClicked: side.handicapView.selectHandicap(index)

            Rectangle {
                id: partition
                anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
                height: Theme.spacingTiny
                visible: parent.parted
                color: Theme.deep.hairline
            }
        }
    }
}
