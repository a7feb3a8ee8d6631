import QtQuick

/// A destination of the left menu: its name over the small second name.
Tappable {
    id: row

    required property string topLabel
    required property string bottomLabel
    required property string iconView
    /// The page that the menu lies behind.
    property bool current: false

    implicitHeight: Theme.scaled(72)
    deep: true
    ringInset: 4
    text: topLabel
    Accessible.description: bottomLabel
    Accessible.selected: current
    background: Rectangle {
        color: row.pressed ? Theme.pressedOverlay : Theme.transparent
    }

    Rectangle {
        anchors { left: parent.left; verticalCenter: parent.verticalCenter }
        width: Theme.spacingTiny
        height: parent.height / 2
        visible: row.current
        color: row.tones.accent
    }
    Icon {
        id: icon
        anchors { left: parent.left; leftMargin: Theme.spacingHuge; verticalCenter: parent.verticalCenter }
        name: row.iconView
        size: 28
    }
    Column {
        anchors { left: icon.right; right: parent.right; leftMargin: Theme.spacingLarge }
        anchors.verticalCenter: parent.verticalCenter

        PlainText {
            width: parent.width
            text: row.topLabel
            font: Theme.title
            color: row.current ? row.tones.accent : Theme.navigationText
            elide: Text.ElideRight
        }
        PlainText {
            width: parent.width
            text: row.bottomLabel
            font: Theme.caption
            color: row.tones.textSecondary
            elide: Text.ElideRight
        }
    }
}
