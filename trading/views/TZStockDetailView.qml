pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui
import Zorvane.Trading

/// The quote on top, the charts and the book under it, buying and selling always at hand.
PageFrame {
    id: page

    required controller
    readonly property TZStockDetailController detail: controller as TZStockDetailController

    PageFlickable {
        id: scroll
        anchors { left: parent.left; right: parent.right; top: parent.top; bottom: buttons.top }
        anchors.bottomMargin: Theme.spacing
        contentHeight: sections.height

        Column {
            id: sections
            width: parent.width

            QuoteHead {
                width: parent.width
                detail: page.detail
            }
            Row {
                id: holding
                x: Theme.margin
                visible: page.detail.holdingFigures.count > 0
                spacing: Theme.spacingSmall
                bottomPadding: Theme.spacing

                Repeater {
                    model: page.detail.holdingFigures

                    StatTile {
                        required label
                        required value
                        required trend

                        width: (sections.width - 2 * Theme.margin - 3 * holding.spacing) / 4
                        deep: true
                    }
                }
            }
            Row {
                id: choices
                x: Theme.margin
                spacing: Theme.spacingSmall
                Accessible.role: Accessible.PageTabList

                Repeater {
                    model: page.detail.chartTitles

                    ChoiceChip {
                        required property int index
                        required property string modelData

                        width: Theme.scaled(72)
                        deep: true
                        text: modelData
                        selected: page.detail.chartIndex === index
                        Accessible.role: Accessible.PageTab
                        Accessible.selected: selected
                        onClicked: page.detail.selectChart(index)
                    }
                }
            }
            Item {
                width: parent.width
                height: Math.max(260, Math.round(page.height * 0.36))

                StockChartView {
                    anchors { fill: parent; leftMargin: Theme.margin; rightMargin: Theme.margin }
                    visible: !page.detail.canRetry
                    chart: page.detail.chart
                }
                PlainText {
                    anchors.centerIn: parent
                    visible: text !== "" && !page.detail.canRetry
                    text: page.detail.notice
                    font: Theme.label
                    color: Theme.deep.textSecondary
                }
                MVNoNetView {
                    anchors.fill: parent
                    visible: page.detail.canRetry
                    deep: true
                    text: page.detail.notice
                    noNet: page.detail.noNet
                }
            }
            TwoSidedBook {
                width: parent.width
                buyView: page.detail.buyHandicapView
                sellView: page.detail.sellHandicapView
                opacity: page.detail.quoteAge.stale ? Theme.disabledOpacity : 1
            }
        }
    }
    Hairline {
        anchors { left: parent.left; right: parent.right; bottom: scroll.bottom }
        deep: true
    }
    Row {
        id: buttons
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: Theme.margin }
        spacing: Theme.spacing

        PrimaryButton {
            width: (buttons.width - Theme.spacing) / 2
            deep: true
            fill: Theme.buy
            text: "买入"
            onClicked: page.detail.buy()
        }
        PrimaryButton {
            width: (buttons.width - Theme.spacing) / 2
            deep: true
            fill: Theme.sell
            text: "卖出"
            enabled: page.detail.canSell
            onClicked: page.detail.sell()
        }
    }
}
