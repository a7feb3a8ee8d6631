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
    required property real rowHeight
    required property string name
    /// The row that Tab reaches. The best of the sell levels is the last of the upper block of five.
    property int current: buySide ? 0 : 4

    function moveTo(row: int) {
        const level = levels.itemAt(row) as OrderBookRow
        if (level && level.enabled)
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

            required title
            required price
            required volume
            required share
            required trend
            width: side.width
            height: side.rowHeight
            buySide: side.buySide
            enabled: selectable
            activeFocusOnTab: index === side.current
            onActiveFocusChanged: if (activeFocus) side.current = index
            onClicked: side.handicapView.selectHandicap(index)
        }
    }
}
