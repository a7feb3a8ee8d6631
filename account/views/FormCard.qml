import QtQuick
import Zorvane.Ui

/// The fields of a step on one rounded surface, whose corners they keep clear of.
Rectangle {
    default property alias rows: column.data

    width: parent ? parent.width : 0
    height: column.height + 2 * Theme.spacingTiny
    radius: Theme.radiusLarge
    color: Theme.deep.surface

    Column {
        id: column
        x: Theme.spacingTiny
        y: Theme.spacingTiny
        width: parent.width - 2 * x
    }
}
