pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui
import Zorvane.Trading

/// Two pages side by side; the title's buttons and a swipe go from one to the other.
PageFrame {
    id: page

    required controller
    readonly property TZDealAndEntrustController screen: controller as TZDealAndEntrustController

    titleItem: SegmentedTitle {
        titles: page.screen.pageTitles
        currentIndex: page.screen.currentPage
        onSelected: index => page.screen.titleBtnClick(TZDealAndEntrustController.EntrustTag + index)
    }

    ListView {
        id: pages
        anchors.fill: parent
        orientation: ListView.Horizontal
        snapMode: ListView.SnapOneItem
        boundsBehavior: Flickable.StopAtBounds
        highlightRangeMode: ListView.StrictlyEnforceRange
        highlightMoveDuration: 250
        cacheBuffer: width
        clip: true
        focus: true
        keyNavigationEnabled: true
        currentIndex: page.screen.currentPage
        onCurrentIndexChanged: page.screen.currentPage = currentIndex
        model: [page.screen.entrustTableView, page.screen.dealTableView]

        delegate: RefreshableList {
            id: list

            required property int index
            required property TodayList modelData

            width: pages.width
            height: pages.height
            visible: enabled || pages.moving
            enabled: pages.currentIndex === index
            deep: true
            canLoadMore: true
            controller: modelData
            model: modelData.rows
            noDataText: page.screen.pageTitles[index]
            Accessible.name: page.screen.pageTitles[index]

            delegate: TodayCell {
                id: cell
                width: ListView.view.width
                onClicked: list.index === 0 ? page.screen.selectEntrust(cell.index) : page.screen.selectDeal(cell.index)
            }
        }
    }
}
