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

        // Figures and curves in the colours of trends are read better on it than on the page.
        Rectangle {
            width: parent.width
            height: book.y
            color: Theme.deep.surface
        }
        Column {
            id: sections
            width: parent.width

            QuoteHead {
                width: parent.width
                detail: page.detail
            }
            Grid {
                id: holding
                readonly property real room: sections.width - 2 * Theme.margin + Theme.spacingSmall
                x: Theme.margin
                visible: page.detail.holdingFigures.count > 0
                columns: room / 4 < Theme.scaled(120) ? 2 : 4
                columnSpacing: Theme.spacingSmall
                rowSpacing: Theme.spacingSmall
                bottomPadding: Theme.spacing

                Repeater {
                    model: page.detail.holdingFigures

                    StatTile {
                        required label
                        required value
                        required trend

                        width: holding.room / holding.columns - holding.columnSpacing
                        deep: true
                        stale: page.detail.quoteAge.stale
                    }
                }
            }
            Row {
                id: choices
                x: Theme.margin
                visible: !page.detail.canRetry
                spacing: Theme.spacingSmall
                Accessible.role: Accessible.PageTabList
                Accessible.name: page.detail.title

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
                id: charts
                readonly property real wanted: Math.max(Theme.scaled(260), Math.round(page.height * 0.36))
                readonly property real below: scroll.height - y - wanted
                width: parent.width
                // Where hardly more than the book's heading would be seen under it, nothing of the book is.
                height: below > 0 && below < book.headingHeight + book.rowHeight ? wanted + below : wanted

                StockChartView {
                    anchors { fill: parent; leftMargin: Theme.margin; rightMargin: Theme.margin }
                    visible: !page.detail.canRetry
                    chart: page.detail.chart
                    stale: page.detail.quoteAge.stale
                }
                SpokenText {
                    anchors.centerIn: parent
                    visible: text !== "" && !page.detail.canRetry
                    text: page.detail.notice
                    font: Theme.label
                    color: Theme.deep.textSecondary

                    Rectangle {
                        z: -1
                        anchors { fill: parent; margins: -Theme.spacingTiny }
                        color: Theme.deep.surface
                    }
                }
                MVNoNetView {
                    anchors.fill: parent
                    visible: page.detail.canRetry
                    deep: true
                    small: page.height < 700
                    text: page.detail.notice
                    noNet: page.detail.noNet
                }
            }
            TwoSidedBook {
                id: book
                width: parent.width
                buyView: page.detail.buyHandicapView
                sellView: page.detail.sellHandicapView
                stale: page.detail.quoteAge.stale
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
            available: page.detail.canSell
            onClicked: page.detail.sell()
        }
    }
}
