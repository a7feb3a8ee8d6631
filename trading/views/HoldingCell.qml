pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui

/// A holding, under the titles of `HoldingColumns`.
Tappable {
    id: cell

    required property int index
    required property string name
    required property string code
    required property string cost
    required property string price
    required property string shares
    required property string available
    required property string profit
    required property string rate
    required property int trend
    required property string sentence
    readonly property real columnWidth: (width - 2 * Theme.margin) / 4

    implicitHeight: Theme.scaled(64)
    deep: true
    ringInset: 2
    text: sentence
    background: Rectangle {
        color: cell.pressed ? cell.tones.surfacePressed : cell.tones.surface

        Hairline {
            anchors { left: parent.left; right: parent.right; bottom: parent.bottom; leftMargin: Theme.margin }
            deep: true
        }
    }
    contentItem: Row {
        leftPadding: Theme.margin

        Pair {
            width: cell.columnWidth
            upper: cell.name
            lower: cell.code
            alignment: Text.AlignLeft
        }
        Pair {
            width: cell.columnWidth
            upper: cell.cost
            lower: cell.price
        }
        Pair {
            width: cell.columnWidth
            upper: cell.shares
            lower: cell.available
        }
        Pair {
            width: cell.columnWidth
            upper: cell.profit
            lower: cell.rate
            trend: cell.trend
        }
    }

    component Pair: Column {
        id: pair

        required property string upper
        required property string lower
        property int alignment: Text.AlignRight
        property int trend: 0

        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.spacingTiny

        AmountText {
            width: parent.width
            leftPadding: pair.alignment === Text.AlignRight ? Theme.spacingSmall : 0
            deep: true
            text: pair.upper
            font: Theme.body
            trend: pair.trend
            horizontalAlignment: pair.alignment
            Accessible.ignored: true
        }
        AmountText {
            width: parent.width
            deep: true
            text: pair.lower
            font: Theme.caption
            color: pair.trend === 0 ? Theme.deep.textSecondary : Theme.trend(pair.trend, true)
            horizontalAlignment: pair.alignment
            Accessible.ignored: true
        }
    }
}
