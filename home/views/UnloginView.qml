pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui
import Zorvane.Home

/// What a visitor sees: how many trade with borrowed capital, and loans of others going by.
Item {
    id: face

    required property TZHomeViewController home
    readonly property int rowHeight: 40

    Column {
        id: head
        anchors { left: parent.left; right: parent.right; top: parent.top; margins: Theme.spacingHuge }
        spacing: Theme.spacingSmall

        Text {
            width: parent.width
            text: face.home.overviewTitle
            font: Theme.body
            color: Theme.deep.textSecondary
            horizontalAlignment: Text.AlignHCenter
            elide: Text.ElideRight
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        AmountText {
            width: parent.width
            deep: true
            text: face.home.overviewAmount
            font: Theme.display
            horizontalAlignment: Text.AlignHCenter
        }
    }
    Rectangle {
        id: panel
        anchors { left: parent.left; right: parent.right; top: head.bottom; bottom: parent.bottom }
        anchors { margins: Theme.margin; topMargin: Theme.spacingHuge; bottomMargin: 0 }
        visible: ticker.count > 0
        radius: Theme.radiusLarge
        color: Theme.deep.surface

        ListView {
            id: ticker
            anchors { fill: parent; margins: Theme.spacing }
            clip: true
            interactive: false
            model: face.home.boardcastArr
            currentIndex: face.home.selectedBoardcast
            preferredHighlightBegin: (height - face.rowHeight) / 2
            preferredHighlightEnd: (height + face.rowHeight) / 2
            highlightRangeMode: ListView.ApplyRange
            highlightMoveDuration: Theme.motion
            highlightFollowsCurrentItem: true
            highlight: Rectangle {
                radius: Theme.radius
                color: Theme.deep.surfacePressed
            }
            Accessible.role: Accessible.List
            delegate: BoardcastCell {
                width: ListView.view.width
                height: face.rowHeight
            }
        }
    }
}
