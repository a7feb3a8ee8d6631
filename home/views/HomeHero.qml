import QtQuick
import Zorvane.Ui

/// The large figure of the home page over a picture; children are laid under the figure.
Item {
    id: hero

    required property string picture
    required property unitText title
    property string amount
    /// Stands beside the title.
    property alias titleButton: buttonSlot.data
    default property alias details: column.data

    implicitHeight: column.height + 2 * Theme.spacingHuge

    Image {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        // Below the figure, where there is room for it.
        readonly property real room: parent.height - column.y - column.height
        height: Math.min(width * 0.56, room)
        visible: room >= 60
        asynchronous: true
        sourceSize.width: width
        fillMode: Image.PreserveAspectCrop
        source: Theme.image(hero.picture)
    }
    Column {
        id: column
        anchors { left: parent.left; right: parent.right; margins: Theme.spacingHuge }
        y: Math.max(Theme.spacingHuge, Math.round((parent.height - height) * 0.38))
        spacing: Theme.spacingSmall

        Item {
            width: parent.width
            height: Math.max(title.height, buttonSlot.childrenRect.height)

            UnitText {
                id: title
                anchors.centerIn: parent
                value: hero.title
                color: Theme.deep.textSecondary
            }
            Item {
                id: buttonSlot
                anchors { left: title.right; top: parent.top }
            }
        }
        AmountText {
            width: parent.width
            deep: true
            text: hero.amount
            font: Theme.display
            horizontalAlignment: Text.AlignHCenter
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
}
