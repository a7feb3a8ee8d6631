pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui

/// A name with a few choices at the right end, one of which holds.
Rectangle {
    id: row

    required property string title
    required property var choices
    required property int chosen
    property bool line: true

    signal picked(int index)

    implicitWidth: parent ? parent.width : 0
    implicitHeight: Theme.rowHeight
    color: Theme.surface
    Accessible.role: Accessible.Grouping
    Accessible.name: title

    PlainText {
        anchors { left: parent.left; leftMargin: Theme.margin; verticalCenter: parent.verticalCenter }
        text: row.title
        font: Theme.body
        color: Theme.textPrimary
    }
    Row {
        anchors { right: parent.right; rightMargin: Theme.spacing; verticalCenter: parent.verticalCenter }
        spacing: Theme.spacingSmall

        Repeater {
            model: row.choices

            ChoiceChip {
                required property int index
                required property string modelData

                text: modelData
                selected: row.chosen === index
                Accessible.role: Accessible.RadioButton
                onClicked: row.picked(index)
            }
        }
    }
    Hairline {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; leftMargin: Theme.margin }
        visible: row.line
    }
}
