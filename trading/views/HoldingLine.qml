import QtQuick
import Zorvane.Ui

/// The four columns of a list of holdings; those for the name and for the profit are wider than those between them.
Row {
    readonly property real wider: 1.3
    readonly property real narrow: (width - 2 * Theme.margin) / (2 + 2 * wider)

    function columnWidth(column: int): real {
        return column === 0 || column === 3 ? narrow * wider : narrow
    }

    leftPadding: Theme.margin
    rightPadding: Theme.margin
}
