pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui
import Zorvane.Home

/// What a visitor sees: how many trade with borrowed capital, and loans of others going by.
Item {
    id: face

    required property TZHomeViewController home

    Image {
        anchors { left: parent.left; right: parent.right; bottom: ticker.top; bottomMargin: Theme.spacingLarge }
        height: Math.min(width * 0.56, ticker.y - Theme.spacingLarge)
        sourceSize.width: width
        fillMode: Image.PreserveAspectCrop
        source: Theme.image("home_hero")
        Accessible.ignored: true
    }
    Column {
        anchors { left: parent.left; right: parent.right; margins: Theme.spacingHuge }
        y: Math.max(Theme.spacingHuge, Math.round((ticker.y - height) * 0.38))
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
    BoardcastTicker {
        id: ticker
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: Theme.margin; bottomMargin: 0 }
        height: Math.min(implicitHeight, parent.height - 136)
        model: face.home.boardcastArr
        currentIndex: face.home.selectedBoardcast
    }
}
