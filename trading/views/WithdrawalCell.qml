import QtQuick
import Zorvane.Ui

/// An entrust that can still be cancelled.
Item {
    id: cell

    required property int index
    required property string stock
    required property string side
    required property bool isSell
    required property string price
    required property string shares
    required property string dealt
    required property string status
    required property bool cancellable
    required property string sentence

    signal cancelled

    implicitHeight: Math.max(Theme.scaled(76), texts.height + 2 * Theme.spacing)
    Accessible.role: Accessible.ListItem
    Accessible.name: sentence

    Rectangle {
        anchors.fill: parent
        color: Theme.deep.surface
    }
    Column {
        id: texts
        anchors { left: parent.left; right: cancel.left; margins: Theme.margin; verticalCenter: parent.verticalCenter }
        spacing: Theme.spacingSmall

        Row {
            width: parent.width
            spacing: Theme.spacingSmall

            PlainText {
                id: sideText
                text: cell.side
                font: Theme.bodyBold
                color: cell.isSell ? Theme.fall : Theme.rise
            }
            PlainText {
                anchors.baseline: sideText.baseline
                width: parent.width - sideText.width - statusText.width - 2 * parent.spacing
                text: cell.stock
                font: Theme.body
                color: Theme.deep.textPrimary
                elide: Text.ElideRight
            }
            PlainText {
                id: statusText
                anchors.baseline: sideText.baseline
                text: cell.status
                font: Theme.caption
                color: Theme.deep.textSecondary
            }
        }
        Flow {
            width: parent.width
            spacing: Theme.spacing

            Figure {
                label: "价格"
                value: cell.price
            }
            Figure {
                label: "委托"
                value: cell.shares
            }
            Figure {
                label: "成交"
                value: cell.dealt
            }
        }
    }
    SecondaryButton {
        id: cancel
        anchors { right: parent.right; rightMargin: Theme.margin; verticalCenter: parent.verticalCenter }
        small: true
        deep: true
        text: "撤单"
        visible: cell.cancellable
        Accessible.description: cell.sentence
        onClicked: cell.cancelled()
    }
    Hairline {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; leftMargin: Theme.margin }
        deep: true
    }

    component Figure: Row {
        id: figure

        required property string label
        required property string value

        spacing: Theme.spacingTiny

        PlainText {
            text: figure.label
            font: Theme.caption
            color: Theme.deep.textSecondary
        }
        PlainText {
            text: figure.value
            font: Theme.caption
            color: Theme.deep.textPrimary
        }
    }
}
