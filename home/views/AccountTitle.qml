import QtQuick
import Zorvane.Ui

/// Who the account belongs to; leads to the personal page.
Tappable {
    id: title

    required property string nick
    required property string cell

    deep: true
    ringInset: 2
    implicitHeight: Theme.scaled(96)
    text: nick === "" ? cell : nick + " " + cell
    background: Rectangle {
        color: title.pressed ? title.tones.surfacePressed : title.tones.page
    }

    Item {
        anchors.fill: parent

        Icon {
            id: avatar
            anchors { left: parent.left; leftMargin: Theme.margin; verticalCenter: parent.verticalCenter }
            name: "account_avatar"
            size: 56
        }
        Column {
            anchors { left: avatar.right; right: arrow.left; verticalCenter: parent.verticalCenter }
            anchors { leftMargin: Theme.spacingLarge; rightMargin: Theme.spacing }
            spacing: Theme.spacingTiny

            PlainText {
                width: parent.width
                visible: text !== ""
                text: title.nick
                font: Theme.heading
                fontSizeMode: Text.HorizontalFit
                minimumPixelSize: Theme.body.pixelSize
                color: title.tones.textPrimary
                elide: Text.ElideRight
            }
            PlainText {
                width: parent.width
                text: title.cell
                font: Theme.body
                color: title.tones.textSecondary
                elide: Text.ElideRight
            }
        }
        Icon {
            id: arrow
            anchors { right: parent.right; rightMargin: Theme.spacing; verticalCenter: parent.verticalCenter }
            size: 16
            name: "chevron_deep"
        }
    }
}
