pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui
import Zorvane.Trading

PageFrame {
    id: page

    required controller
    readonly property TZChooseSellStockController screen: controller as TZChooseSellStockController

    HoldingColumns {
        id: columns
    }
    RefreshableList {
        anchors { left: parent.left; right: parent.right; top: columns.bottom; bottom: parent.bottom }
        focus: true
        deep: true
        controller: page.screen
        model: page.screen.holdings
        noDataText: "暂无持仓"
        Accessible.name: page.screen.title

        delegate: HoldingCell {
            width: ListView.view.width
            onClicked: page.screen.selectHolding(index)
        }
    }
}
