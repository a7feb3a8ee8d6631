pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui
import Zorvane.Trading

/// The ten levels of one side of the order book, under each other.
Column {
    id: side

    required property TZHandicapView handicapView
    required property bool buySide
    required property real rowHeight
    required property string name

    Accessible.role: Accessible.List
    Accessible.name: name

    Repeater {
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
            onClicked: side.handicapView.selectHandicap(index)
        }
    }
}
