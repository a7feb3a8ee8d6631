pragma ComponentBehavior: Bound

import QtQuick
import QtQml.Models
import Zorvane.Ui
import Zorvane.Trading

/// Two pages side by side; the title's buttons and a swipe go from one to the other.
PageFrame {
    id: page

    required controller
    readonly property TZDealAndEntrustController screen: controller as TZDealAndEntrustController

    refreshed: screen.currentPage === 0 ? screen.entrustTableView : screen.dealTableView
    titleItem: SegmentedTitle {
        titles: page.screen.pageTitles
        name: page.screen.title
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
        currentIndex: page.screen.currentPage
        onCurrentIndexChanged: page.screen.currentPage = currentIndex

        model: ObjectModel {
            TodayPage {
                width: pages.width
                height: pages.height
                visible: pages.contentX < pages.width
                enabled: pages.currentIndex === 0
                name: page.screen.pageTitles[0]
                noDataText: "暂无委托"
                controller: page.screen.entrustTableView
                onPicked: row => page.screen.selectEntrust(row)
            }
            TodayPage {
                width: pages.width
                height: pages.height
                visible: pages.contentX > 0
                enabled: pages.currentIndex === 1
                name: page.screen.pageTitles[1]
                noDataText: "暂无成交"
                controller: page.screen.dealTableView
                onPicked: row => page.screen.selectDeal(row)
            }
        }
    }
}
