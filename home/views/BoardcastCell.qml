import QtQuick
import Zorvane.Ui

/// A loan that some user has taken lately.
Item {
    id: cell

    required property string text
    readonly property real above: ListView.view.contentY
    readonly property real below: above + ListView.view.height

    // Rows that are clipped away are not spoken either.
    visible: y + height > above && y < below
    Accessible.role: Accessible.ListItem
    Accessible.name: text

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
    PlainText {
        anchors { left: avatar.right; right: parent.right; verticalCenter: parent.verticalCenter }
        anchors { leftMargin: Theme.spacingSmall; rightMargin: Theme.spacingSmall }
        text: cell.text
        font: Theme.body
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: Theme.smallestText
        color: Theme.deep.textPrimary
        elide: Text.ElideRight
        Accessible.ignored: true
    }
}
