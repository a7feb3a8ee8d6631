pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui

FocusScope {
    id: menu

    required property TZLeftMenuController controller

    focus: true

    Column {
        anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter }
        spacing: Theme.spacingSmall
        Accessible.role: Accessible.Pane
        Accessible.name: "菜单"

        Repeater {
            model: menu.controller.rows

            LeftMenuRow {
                id: row

                required property int index

                width: parent.width
                focus: index === 0
                current: index === menu.controller.currentRow
                Keys.onDownPressed: row.nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
                Keys.onUpPressed: row.nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
                onClicked: menu.controller.didSelectRow(index)
            }
        }
    }
}
