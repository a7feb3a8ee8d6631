pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui
import Zorvane.Trading

/// One of the two pages of today.
RefreshableList {
    id: list

    required property string name

    signal picked(int row)

    deep: true
    canLoadMore: true
    reuseItems: true
    model: (controller as TodayList).rows
    Accessible.name: name

    delegate: TodayCell {
        width: ListView.view.width
        onClicked: list.picked(index)
    }
}
