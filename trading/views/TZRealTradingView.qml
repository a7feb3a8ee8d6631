pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui
import Zorvane.Trading

PageFrame {
    id: page

    required controller
    readonly property TZRealTradingController trading: controller as TZRealTradingController

    RefreshableList {
        anchors.fill: parent
        focus: true
        deep: true
        controller: page.trading
        model: page.trading.holdings
        noDataText: "暂无持仓"
        Accessible.name: page.trading.holdingsTitle

        headerContent: Column {
            Row {
                id: figures
                readonly property real tileWidth: (width - 2 * Theme.margin - 2 * Theme.spacing) / 3
                width: parent.width
                topPadding: Theme.spacingLarge
                bottomPadding: Theme.spacingLarge
                leftPadding: Theme.margin
                spacing: Theme.spacing

                StatTile {
                    width: figures.tileWidth
                    deep: true
                    label: "可用资金"
                    value: page.trading.availableMoney
                }
                StatTile {
                    width: figures.tileWidth
                    deep: true
                    label: "股票市值"
                    value: page.trading.stockValue
                }
                StatTile {
                    width: figures.tileWidth
                    deep: true
                    label: "冻结资金"
                    value: page.trading.frozenMoney
                }
            }
            ActionBar {
                actions: page.trading.actions
                onClicked: tag => page.trading.actionBarClick(tag)
            }
            SectionHeader {
                implicitHeight: Theme.touchTarget
                deep: true
                text: page.trading.holdingsTitle
                trailing: page.trading.profitText
                trailingTrend: page.trading.profitTrend
            }
            HoldingColumns {
                visible: page.trading.holdings.count > 0
            }
        }
        delegate: HoldingCell {
            width: ListView.view.width
            onClicked: page.trading.selectHolding(index)
        }
    }
}
