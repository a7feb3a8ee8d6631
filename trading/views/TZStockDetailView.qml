pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui
import Zorvane.Trading

PageFrame {
    id: page

    required controller
    readonly property TZStockDetailController detail: controller as TZStockDetailController

    ContentList {
        anchors { left: parent.left; right: parent.right; top: parent.top; bottom: buttons.top }
        model: page.detail.rows
        Accessible.name: page.detail.stockText

        headerContent: Column {
            topPadding: Theme.spacingHuge
            bottomPadding: Theme.spacingHuge
            leftPadding: Theme.margin
            spacing: Theme.spacingSmall

            Text {
                text: page.detail.stockText
                font: Theme.body
                color: Theme.deep.textSecondary
            }
            AmountText {
                deep: true
                text: page.detail.price
                font: Theme.display
                trend: page.detail.trend
            }
            AmountText {
                visible: text !== ""
                deep: true
                text: page.detail.change
                font: Theme.bodyBold
                trend: page.detail.trend
            }
        }
        delegate: DetailLine {
            width: ListView.view.width
        }
    }
    Row {
        id: buttons
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: Theme.margin }
        spacing: Theme.spacing

        PrimaryButton {
            width: (buttons.width - Theme.spacing) / 2
            fill: Theme.buy
            text: "买入"
            onClicked: page.detail.buy()
        }
        PrimaryButton {
            width: (buttons.width - Theme.spacing) / 2
            fill: Theme.sell
            text: "卖出"
            onClicked: page.detail.sell()
        }
    }
}
