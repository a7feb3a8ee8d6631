pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui

/// What the cross-hair stands on: its time and, under each other, its figures.
Rectangle {
    id: panel

    required property string title
    required property GadgetListModel model

    implicitWidth: Theme.scaled(116)
    implicitHeight: lines.implicitHeight
    radius: Theme.radius
    color: Theme.deep.surface
    opacity: 0.92

    Column {
        id: lines
        anchors { left: parent.left; right: parent.right }
        padding: Theme.spacingSmall
        spacing: 2

        PlainText {
            text: panel.title
            font: Theme.unit
            color: Theme.deep.textSecondary
        }
        Repeater {
            model: panel.model

            Item {
                id: line

                required property string label
                required property string value
                required property int trend

                width: lines.width - 2 * lines.padding
                height: name.implicitHeight

                PlainText {
                    id: name
                    text: line.label
                    font: Theme.unit
                    color: Theme.deep.textSecondary
                }
                AmountText {
                    anchors { left: name.right; right: parent.right; leftMargin: Theme.spacingTiny }
                    deep: true
                    text: line.value
                    font: Theme.unit
                    trend: line.trend
                    horizontalAlignment: Text.AlignRight
                }
            }
        }
    }
}
