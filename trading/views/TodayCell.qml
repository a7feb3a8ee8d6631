import QtQuick
import Zorvane.Ui

/// One of today's entrusts or deals.
Tappable {
    id: cell

    required property int index
    required property string stock
    required property string side
    required property bool isSell
    required property string time
    required property string price
    required property string shares
    required property string result
    required property bool dealt
    required property bool waiting
    required property string sentence

    implicitHeight: Theme.scaled(68)
    deep: true
    ringInset: 2
    text: sentence
    ListView.onPooled: letGo()
    background: Rectangle {
        color: cell.pressed ? cell.tones.surfacePressed : cell.tones.surface

        Hairline {
            anchors { left: parent.left; right: parent.right; bottom: parent.bottom; leftMargin: Theme.margin }
            deep: true
        }
    }

    PlainText {
        id: sideText
        anchors { left: parent.left; leftMargin: Theme.margin; top: parent.top; topMargin: Theme.spacing }
        text: cell.side
        font: Theme.bodyBold
        color: cell.isSell ? Theme.fall : Theme.rise
    }
    PlainText {
        anchors { left: sideText.right; leftMargin: Theme.spacingSmall; right: resultText.left }
        anchors.baseline: sideText.baseline
        text: cell.stock
        font: Theme.body
        color: cell.tones.textPrimary
        elide: Text.ElideRight
    }
    PlainText {
        id: resultText
        anchors { right: parent.right; rightMargin: Theme.margin; baseline: sideText.baseline }
        text: cell.result
        font: Theme.body
        color: cell.dealt ? Theme.dealt : cell.waiting ? Theme.pendingEntrust : cell.tones.textPrimary
    }
    PlainText {
        anchors { left: sideText.left; bottom: parent.bottom; bottomMargin: Theme.spacing }
        text: cell.time
        font: Theme.caption
        color: cell.tones.textSecondary
    }
    Row {
        anchors { right: resultText.right; bottom: parent.bottom; bottomMargin: Theme.spacing }
        spacing: Theme.spacingSmall

        PlainText {
            text: cell.price
            font: Theme.label
            color: cell.tones.textPrimary
        }
        PlainText {
            text: "×"
            font: Theme.label
            color: cell.tones.textSecondary
        }
        PlainText {
            text: cell.shares
            font: Theme.label
            color: cell.tones.textPrimary
        }
    }
}
