pragma ComponentBehavior: Bound

import QtQuick

/// The list of a list screen: pull down to refresh (F5 does it too), pull up or tap the last row to load more, the panel
/// of an empty list. Scrolls with the keyboard.
ListView {
    id: list

    required property TZBaseTableViewController controller
    property bool deep: false
    property bool canLoadMore: false
    property string noDataText: "暂无数据"
    readonly property int pullDistance: 56

    clip: true
    activeFocusOnTab: count > 0
    boundsBehavior: Flickable.DragOverBounds
    topMargin: controller.refreshing ? pullDistance : 0
    onDragStarted: controller.scrollViewWillBeginDragging()
    onDragEnded: {
        if (contentY - originY < -pullDistance)
            controller.beginRefreshing()
        else if (canLoadMore && count > 0 && contentY - originY + height > contentHeight + pullDistance)
            controller.beginLoadingMore()
    }
    Accessible.role: Accessible.List

    Keys.onPressed: event => {
        const page = Math.max(Theme.rowHeight, height - Theme.rowHeight)
        const end = Math.max(0, contentHeight - height)
        const steps = {
            [Qt.Key_Down]: Theme.rowHeight,
            [Qt.Key_Up]: -Theme.rowHeight,
            [Qt.Key_PageDown]: page,
            [Qt.Key_PageUp]: -page,
            [Qt.Key_Home]: -contentHeight,
            [Qt.Key_End]: contentHeight
        }
        if (event.key === Qt.Key_F5)
            controller.beginRefreshing()
        else if (event.key in steps)
            contentY = originY + Math.min(end, Math.max(0, contentY - originY + steps[event.key]))
        else
            return
        event.accepted = true
    }

    footer: LoadMoreRow {
        width: list.width
        visible: list.canLoadMore && list.count > 0
        deep: list.deep
        loading: list.controller.loadingMore
        onClicked: list.controller.beginLoadingMore()
    }

    Item {
        parent: list
        width: list.width
        height: list.pullDistance
        y: Math.min(0, -height - (list.contentY - list.originY))
        visible: list.contentY - list.originY < 0
        Spinner {
            anchors.centerIn: parent
            visible: list.controller.refreshing
        }
        Icon {
            anchors.centerIn: parent
            visible: !list.controller.refreshing
            name: "pull_arrow"
            size: 20
            rotation: list.contentY - list.originY < -list.pullDistance ? 180 : 0
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
}
