import QtQuick
import Zorvane.Ui

/// The list of a list screen: pull down to refresh (F5 on its page does it too), pull up or tap the last row to load more, the panel
/// of an empty list.
ContentList {
    id: list

    required property TZBaseTableViewController controller
    property bool deep: false
    property bool canLoadMore: false
    property string noDataText: "暂无数据"
    readonly property int pullDistance: 56
    // How far the content is pulled below its upper, above its lower end.
    readonly property real pulledDown: originY - contentY
    readonly property real pulledUp: contentY + height - originY - Math.max(contentHeight, height)

    boundsBehavior: Flickable.DragOverBounds
    topMargin: controller.refreshing ? pullDistance : 0
    onDragStarted: controller.scrollViewWillBeginDragging()
    onDragEnded: {
        if (pulledDown > pullDistance)
            controller.beginRefreshing()
        else if (canLoadMore && count > 0 && pulledUp > pullDistance)
            controller.beginLoadingMore()
    }
    footerContent: LoadMoreRow {
        visible: list.canLoadMore && list.count > 0
        deep: list.deep
        loading: list.controller.loadingMore
        onClicked: list.controller.beginLoadingMore()
    }

    Item {
        parent: list
        width: list.width
        height: list.pullDistance
        y: list.pulledDown - height
        visible: list.pulledDown > 0

        Spinner {
            anchors.centerIn: parent
            visible: list.controller.refreshing
        }
        Icon {
            anchors.centerIn: parent
            visible: !list.controller.refreshing
            name: "pull_arrow"
            size: 20
            rotation: list.pulledDown > list.pullDistance ? 180 : 0
        }
    }
    MVNoDataView {
        parent: list
        anchors.fill: parent
        anchors.topMargin: list.headerItem ? list.headerItem.height : 0
        visible: list.controller.noData
        deep: list.deep
        text: list.noDataText
    }
    MVNoNetView {
        parent: list
        anchors.fill: parent
        anchors.topMargin: list.headerItem ? list.headerItem.height : 0
        visible: list.controller.failed
        deep: list.deep
        text: "加载失败"
        noNet: list.controller.noNet
    }
}
