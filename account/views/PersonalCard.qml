import QtQuick
import Zorvane.Ui

/// Whose page it is.
Rectangle {
    id: card

    required property string name

    width: parent ? parent.width : 0
    height: column.height + 2 * Theme.spacingHuge
    color: Theme.deep.page

    Column {
        id: column
        y: Theme.spacingHuge
        width: parent.width - 2 * Theme.margin
        anchors.horizontalCenter: parent.horizontalCenter
        spacing: Theme.spacingSmall

        Icon {
            anchors.horizontalCenter: parent.horizontalCenter
            name: "account_avatar"
            size: 72
        }
        PlainText {
            width: parent.width
            text: card.name
            font: Theme.heading
            color: Theme.deep.textPrimary
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            maximumLineCount: 2
            elide: Text.ElideRight
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
    }
}
