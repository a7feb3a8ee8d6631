pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui
import Zorvane.Trading

/// The order book with its sides beside each other, the best levels on top.
Item {
    id: book

    required property TZHandicapView buyView
    required property TZHandicapView sellView
    property bool stale: false
    property real rowHeight: Theme.scaled(30)
    readonly property real headingHeight: title.height

    implicitHeight: title.height + levels.height

    SectionHeader {
        id: title
        width: parent.width
        deep: true
        text: "level2 盘口"
    }
    Row {
        id: levels
        anchors.top: title.bottom

        OrderBookSide {
            width: book.width / 2
            handicapView: book.buyView
            buySide: true
            stale: book.stale
            name: "买盘"
            rowHeight: book.rowHeight
        }
        OrderBookSide {
            width: book.width / 2
            handicapView: book.sellView
            buySide: false
            stale: book.stale
            name: "卖盘"
            rowHeight: book.rowHeight
        }
    }
}
