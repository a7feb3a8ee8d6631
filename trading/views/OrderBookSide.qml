pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui
import Zorvane.Trading

/// The ten levels of one side of the order book, under each other. One of them is reached with Tab; from there the arrow
/// keys go on to those that have a price.
Column {
    id: side

    required property TZHandicapView handicapView
    required property bool buySide
    required property bool stale
    required property real rowHeight
    required property string name

    function move(step: int) {
        const level = levels.itemAt(handicapView.rowBeyond(handicapView.keyRow, step))
        level?.forceActiveFocus(Qt.TabFocusReason)
    }

    Accessible.role: Accessible.List
    Accessible.name: name
    Keys.onUpPressed: move(-1)
    Keys.onDownPressed: move(1)

    Repeater {
        id: levels
        model: side.handicapView.rows

        OrderBookRow {
            required property int index
            required property bool selectable
            readonly property bool parted: index === side.handicapView.bestRow && index > 0

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
            activeFocusOnTab: index === side.handicapView.keyRow
            onActiveFocusChanged: if (activeFocus) side.handicapView.keyRow = index
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
