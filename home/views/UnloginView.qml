import QtQuick
import Zorvane.Ui
import Zorvane.Home

/// What a visitor sees: how many trade with borrowed capital, and loans of others going by.
Item {
    id: face

    required property TZHomeViewController home

    HomeHero {
        anchors { left: parent.left; right: parent.right; top: parent.top; bottom: ticker.top }
        picture: "home_hero"
        title: face.home.overviewTitle
        amount: face.home.overviewAmount
    }
    BoardcastTicker {
        id: ticker
        name: face.home.overviewTitle.figure
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: Theme.margin; bottomMargin: 0 }
        height: Math.min(implicitHeight, parent.height - 136)
        model: face.home.boardcastArr
        currentIndex: face.home.selectedBoardcast
    }
}
