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
    HoldingLine {
        id: line
        anchors.fill: parent

        Column {
            width: line.columnWidth(0)
            anchors.verticalCenter: parent.verticalCenter
            spacing: Theme.spacingTiny

            PlainText {
                width: parent.width
                text: cell.name
                font: Theme.body
                color: Theme.deep.textPrimary
                elide: Text.ElideRight
            }
            PlainText {
                width: parent.width
                text: cell.code
                font: Theme.caption
                color: Theme.deep.textSecondary
                elide: Text.ElideRight
            }
        }
        Pair {
            width: line.columnWidth(1)
            upper: cell.cost
            lower: cell.price
        }
        Pair {
            width: line.columnWidth(2)
            upper: cell.shares
            lower: cell.available
        }
        Pair {
            width: line.columnWidth(3)
            upper: cell.profit
            lower: cell.rate
            trend: cell.trend
        }
    }

    component Pair: Column {
        id: pair

        required property string upper
        required property string lower
        property int trend: 0

        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.spacingTiny

        AmountText {
            width: parent.width
            leftPadding: Theme.spacingSmall
            deep: true
            text: pair.upper
            font: Theme.body
            trend: pair.trend
            horizontalAlignment: Text.AlignRight
        }
        AmountText {
            width: parent.width
            leftPadding: Theme.spacingSmall
            deep: true
            text: pair.lower
            font: Theme.caption
            color: pair.trend === 0 ? Theme.deep.textSecondary : Theme.trend(pair.trend, true)
            horizontalAlignment: Text.AlignRight
        }
    }
}
