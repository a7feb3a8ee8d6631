pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui
import Zorvane.Trading

/// The price of a stock with its change, the figures of its day, and how old they are.
Column {
    id: head

    required property TZStockDetailController detail

    leftPadding: Theme.margin
    rightPadding: Theme.margin
    topPadding: Theme.spacing
    bottomPadding: Theme.spacing
    spacing: Theme.spacingSmall

    Item {
        width: head.width - 2 * Theme.margin
        height: Math.max(price.implicitHeight, beside.implicitHeight)

        AmountText {
            id: price
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, parent.width * 0.5)
            deep: true
            text: head.detail.price
            font: Theme.display
            trend: head.detail.trend
            stale: head.detail.quoteAge.stale
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        Column {
            id: beside
            anchors { left: price.right; right: chip.left; leftMargin: Theme.spacing; rightMargin: Theme.spacingSmall }
            anchors.verticalCenter: parent.verticalCenter

            AmountText {
                width: parent.width
                visible: text !== ""
                deep: true
                text: head.detail.change
                font: Theme.bodyBold
                trend: head.detail.trend
                stale: head.detail.quoteAge.stale
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
            SpokenText {
                text: head.detail.stockCode
                visible: !age.visible
                font: Theme.caption
                color: Theme.deep.textSecondary
            }
            QuoteAgeText {
                id: age
                width: parent.width
                age: head.detail.quoteAge
            }
        }
        Rectangle {
            id: chip
            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            visible: head.detail.tag !== ""
            width: visible ? tag.implicitWidth + 2 * Theme.spacingSmall : 0
            height: tag.implicitHeight + Theme.spacingSmall
            radius: Theme.radius
            color: Theme.transparent
            border.width: Theme.hairlineWidth
            border.color: tag.color

            SpokenText {
                id: tag
                anchors.centerIn: parent
                text: head.detail.tag
                font: Theme.label
                color: head.detail.tagTrend === 0 || head.detail.quoteAge.stale ? Theme.deep.textSecondary : Theme.trend(head.detail.tagTrend, true)
            }
        }
    }
    Grid {
        id: figures
        readonly property real room: head.width - 2 * Theme.margin + columnSpacing
        columns: room / 3 < Theme.scaled(110) ? 2 : 3
        columnSpacing: Theme.spacing
        rowSpacing: Theme.spacingTiny

        Repeater {
            model: head.detail.figures

            Item {
                id: cell

                required property string label
                required property string value
                required property int trend

                width: figures.room / figures.columns - figures.columnSpacing
                height: figure.implicitHeight
                Accessible.role: Accessible.StaticText
                Accessible.name: label + " " + value

                PlainText {
                    id: name
                    text: cell.label
                    font: Theme.label
                    color: Theme.deep.textSecondary
                }
                AmountText {
                    id: figure
                    anchors { left: name.right; right: parent.right; leftMargin: Theme.spacingTiny }
                    deep: true
                    text: cell.value
                    font: Theme.label
                    trend: cell.trend
                    stale: head.detail.quoteAge.stale
                    horizontalAlignment: Text.AlignRight
                }
            }
        }
    }
}
