pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui

/// The titles over the columns of a list of holdings.
HoldingLine {
    id: columns

    readonly property list<string> titles: ["名称", "成本/现价", "持仓/可用", "盈亏"]

    width: parent ? parent.width : 0
    height: Theme.scaled(32)

    Repeater {
        model: columns.titles

        PlainText {
            required property int index
            required property string modelData

            width: columns.columnWidth(index)
            height: columns.height
            text: modelData
            leftPadding: index === 0 ? 0 : Theme.spacingSmall
            font: Theme.caption
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: Theme.smallestFigure
            elide: Text.ElideRight
            color: Theme.deep.textSecondary
            horizontalAlignment: index === 0 ? Text.AlignLeft : Text.AlignRight
            verticalAlignment: Text.AlignVCenter
            Accessible.role: Accessible.ColumnHeader
            Accessible.name: text
        }
    }
}
