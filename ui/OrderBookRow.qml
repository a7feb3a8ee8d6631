import QtQuick

/// A level of the order book: its name, price and volume; the bar is the volume's share of the deepest level.
Tappable {
    id: row

    property string title
    property string price
    property string volume
    property real share: 0
    /// Of the price against yesterday's close: 1 rise, 0 flat, -1 fall.
    property int trend: 0
    property bool buySide: true
    property bool stale: false
    readonly property real priceEnd: width * 0.64

    implicitWidth: parent ? parent.width : 0
    implicitHeight: Theme.scaled(32)
    ringInset: 1
    deep: true
    text: title + " " + price + " " + volume
    background: Rectangle {
        color: row.tones.surface

        // Beside the price, which would not be read as well on it.
        Rectangle {
            anchors { right: parent.right; top: parent.top; bottom: parent.bottom; margins: 2 }
            width: (row.width - row.priceEnd - 4) * Math.min(1, Math.max(0, row.share))
            color: row.stale ? row.tones.textSecondary : row.buySide ? Theme.buy : Theme.sell
            opacity: 0.2
        }
        Rectangle {
            anchors.fill: parent
            visible: row.pressed
            color: Theme.pressedOverlay
        }
    }
    Item {
        anchors.fill: parent

        PlainText {
            anchors { left: parent.left; leftMargin: Theme.spacingSmall; verticalCenter: parent.verticalCenter }
            text: row.title
            font: Theme.caption
            color: row.tones.textSecondary
        }
        AmountText {
            anchors { left: parent.left; leftMargin: Theme.scaled(40); verticalCenter: parent.verticalCenter }
            width: row.priceEnd - x
            text: row.price
            font: Theme.bodyBold
            deep: row.deep
            trend: row.trend
            stale: row.stale
            horizontalAlignment: Text.AlignRight
        }
        AmountText {
            anchors { right: parent.right; rightMargin: Theme.spacingSmall; verticalCenter: parent.verticalCenter }
            width: parent.width - row.priceEnd - 2 * Theme.spacingSmall
            text: row.volume
            stale: row.stale
            font: Theme.label
            deep: row.deep
            horizontalAlignment: Text.AlignRight
        }
    }
}
