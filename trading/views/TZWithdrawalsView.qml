pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui
import Zorvane.Trading

PageFrame {
    id: page

    required controller
    readonly property TZWithdrawalsController screen: controller as TZWithdrawalsController

    RefreshableList {
        anchors.fill: parent
        focus: true
        deep: true
        controller: page.screen
        model: page.screen.rows
        noDataText: "暂无可撤委托"
        Accessible.name: page.screen.title
        Accessible.description: page.screen.outcome

        delegate: WithdrawalCell {
            width: ListView.view.width
            onCancelled: page.screen.withdrawalsBtnDidClick(index)
        }
    }
}
