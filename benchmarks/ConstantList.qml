import QtQuick
import Zorvane.Ui
import Zorvane.Trading

/// Ten thousand entrusts of constant texts.
Rectangle {
    property alias contentY: list.contentY

    color: Theme.pageBlue

    ListView {
        id: list
        anchors.fill: parent
        reuseItems: true
        model: 10000

        delegate: TodayCell {
            width: ListView.view.width
            stock: "海天传媒(600001)"
            side: "买入"
            isSell: false
            time: "2026-11-21 10:00"
            price: "12.34"
            shares: "100"
            result: "委托中"
            dealt: false
            waiting: true
            sentence: "海天传媒(600001) 买入 2026-11-21 10:00 12.34 100 委托中"
        }
    }
}
