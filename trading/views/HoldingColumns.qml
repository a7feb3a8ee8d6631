pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui

/// The titles over the columns of a list of holdings.
Row {
    id: columns

    readonly property list<string> titles: ["名称", "成本/现价", "持仓/可用", "盈亏"]

    width: parent ? parent.width : 0
    height: Theme.scaled(32)
    leftPadding: Theme.margin
    rightPadding: Theme.margin

    Repeater {
        model: columns.titles

        PlainText {
            required property int index
            required property string modelData

            width: (columns.width - 2 * Theme.margin) / columns.titles.length
            height: columns.height
            text: modelData
            font: Theme.caption
            color: Theme.deep.textSecondary
            horizontalAlignment: index === 0 ? Text.AlignLeft : Text.AlignRight
            verticalAlignment: Text.AlignVCenter
            Accessible.role: Accessible.ColumnHeader
            Accessible.name: text
        }
    }
}
