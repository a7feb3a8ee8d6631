import QtQuick
import Zorvane.Ui

/// One of the two large ways in from the home page.
Tappable {
    id: card

    required property string image
    required property string caption

    deep: true
    ringRadius: Theme.radiusLarge
    // A low window has more need of the room above.
    implicitHeight: Theme.scaled(Window.height < 700 ? 108 : 132)
    Accessible.name: text + " " + caption
    background: Rectangle {
        radius: Theme.radiusLarge
        color: card.pressed ? card.tones.surfacePressed : card.tones.surface
    }
    contentItem: Item {
        Column {
            anchors.centerIn: parent
            width: parent.width
            spacing: Theme.spacingTiny

            Icon {
                anchors.horizontalCenter: parent.horizontalCenter
                name: card.image
                size: 48
            }
            PlainText {
                width: parent.width
                text: card.text
                font: Theme.title
                color: card.tones.textPrimary
                horizontalAlignment: Text.AlignHCenter
            }
            PlainText {
                width: parent.width
                text: card.caption
                font: Theme.label
                color: card.tones.textSecondary
                horizontalAlignment: Text.AlignHCenter
                elide: Text.ElideRight
            }
        }
    }
}
