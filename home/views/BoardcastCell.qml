import QtQuick
import Zorvane.Ui

/// A loan that some user has taken lately.
Item {
    id: cell

    required property string nick
    required property string deed
    readonly property real above: ListView.view.contentY
    readonly property real below: above + ListView.view.height

    // Rows that are clipped away are not spoken either.
    visible: y + height > above && y < below
    Accessible.role: Accessible.ListItem
    Accessible.name: nick + deed

    Rectangle {
        anchors.fill: parent
        radius: Theme.radius
        color: Theme.deep.surfacePressed
        opacity: cell.ListView.isCurrentItem ? 1 : 0
        Behavior on opacity {
            NumberAnimation { duration: Theme.motion }
        }
    }
    Icon {
        id: avatar
        anchors { left: parent.left; leftMargin: Theme.spacingSmall; verticalCenter: parent.verticalCenter }
        name: "home_user"
        size: 20
    }
    // A long name gives way to the sum.
    PlainText {
        id: nick
        anchors { left: avatar.right; leftMargin: Theme.spacingSmall; verticalCenter: parent.verticalCenter }
        width: Math.min(implicitWidth, cell.width - x - deed.width - Theme.spacingSmall)
        text: cell.nick
        font: Theme.body
        color: Theme.deep.textPrimary
        elide: Text.ElideRight
    }
    PlainText {
        id: deed
        anchors { left: nick.right; verticalCenter: parent.verticalCenter }
        width: Math.min(implicitWidth, (cell.width - nick.x) * 0.8)
        text: cell.deed
        font: Theme.body
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: Theme.smallestText
        color: Theme.deep.textPrimary
        elide: Text.ElideRight
    }
}
