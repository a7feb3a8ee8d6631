import QtQuick
import Zorvane.Ui

/// A list between two ordinary items that scroll with it, `headerContent` and `footerContent`: the components for this of
/// ListView cannot be made in documents with bound components. The arrow keys go from row to row where rows can be
/// reached with the keyboard, otherwise they scroll; what the keyboard reaches is scrolled into view.
ListView {
    id: list

    property Item headerContent
    property Item footerContent
    readonly property real footerHeight: bottom.height
    readonly property bool scrolls: contentHeight > height
    readonly property Item focused: Window.activeFocusItem

    function scrollBy(distance: real) {
        const end = Math.max(originY, originY + contentHeight - height)
        contentY = Math.max(originY, Math.min(end, contentY + distance))
    }

    function holds(area: Item, item: Item): bool {
        let up = item
        while (up && up !== area)
            up = up.parent
        return up !== null
    }

    /// What the keyboard goes to in a row; null in a row of texts.
    function stopIn(row) {
        if (!row)
            return null
        const first = row instanceof Tappable ? row : row.nextItemInFocusChain(true)
        return first instanceof Tappable && holds(row, first) ? first : null
    }

    function focusedRow(): int {
        let row = focused
        while (row && row.parent !== contentItem)
            row = row.parent
        return row ? indexAt(row.x, row.y + 1) : -1
    }

    function focusRow(row: int): bool {
        if (row < 0 || row >= count)
            return false
        positionViewAtIndex(row, ListView.Contain)
        const stop = stopIn(itemAtIndex(row))
        if (stop)
            stop.forceActiveFocus(Qt.TabFocusReason)
        return stop !== null
    }

    function step(by: int) {
        const from = focusedRow()
        // What has had the keyboard without showing it is shown first.
        if (!focusRow(from < 0 ? Math.max(indexAt(0, contentY), 0) : LastInput.isFirstKey() ? from : from + by))
            scrollBy(by * Theme.rowHeight)
    }

    function leap(row: int, distance: real) {
        if (!focusRow(row))
            scrollBy(distance)
    }

    /// To the first row and what stands above it, or the last and what stands below it.
    function goToEnd(row: int, distance: real) {
        focusRow(row)
        scrollBy(distance)
    }

    clip: true
    activeFocusOnTab: scrolls && !stopIn(currentItem) || activeFocus
    boundsBehavior: Flickable.StopAtBounds
    keyNavigationEnabled: false
    header: ListSlot {
        content: (ListView.view as ContentList)?.headerContent ?? null
    }
    // Room for the footer. It is no child of what scrolls: there it would come before the rows for Tab and for readers.
    footer: Item {
        implicitHeight: (ListView.view as ContentList)?.footerHeight ?? 0
    }
    Accessible.role: Accessible.List
    onFocusedChanged: {
        if (!focused || focused === list || !holds(list, focused))
            return
        const top = focused.mapToItem(contentItem, 0, 0).y
        contentY = Math.max(Math.min(contentY, top), top + focused.height - height)
    }

    Keys.onDownPressed: step(1)
    Keys.onUpPressed: step(-1)
    Keys.onPressed: event => {
        const rows = Math.max(1, Math.floor(height / Theme.rowHeight) - 1)
        event.accepted = true
        if (event.key === Qt.Key_PageDown)
            leap(Math.min(focusedRow() + rows, count - 1), height - Theme.rowHeight)
        else if (event.key === Qt.Key_PageUp)
            leap(Math.max(focusedRow() - rows, 0), Theme.rowHeight - height)
        else if (event.key === Qt.Key_Home)
            goToEnd(0, -contentHeight)
        else if (event.key === Qt.Key_End)
            goToEnd(count - 1, contentHeight)
        else
            event.accepted = false
    }

    ListSlot {
        id: bottom
        parent: list
        y: list.footerItem ? list.footerItem.y - list.contentY : 0
        content: list.footerContent
    }
    Rectangle {
        parent: list
        anchors.fill: parent
        z: 1
        visible: list.focused === list && LastInput.byKeyboard && list.scrolls
        color: Theme.transparent
        border.width: Theme.focusRingWidth
        border.color: Theme.deep.focusRing
    }
}
