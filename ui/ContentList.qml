import QtQuick

/// A list between two ordinary items that scroll with it, `headerContent` and `footerContent`: the components for this of
/// ListView cannot be made in documents with bound components. Scrolls with the keyboard.
ListView {
    id: list

    property Item headerContent
    property Item footerContent

    function scrollBy(distance: real) {
        const end = Math.max(originY, originY + contentHeight - height)
        contentY = Math.max(originY, Math.min(end, contentY + distance))
    }

    clip: true
    activeFocusOnTab: contentHeight > height || activeFocus
    boundsBehavior: Flickable.StopAtBounds
    keyNavigationEnabled: false
    header: ListSlot {
        content: (ListView.view as ContentList)?.headerContent ?? null
    }
    footer: ListSlot {
        content: (ListView.view as ContentList)?.footerContent ?? null
    }
    Accessible.role: Accessible.List

    Keys.onDownPressed: scrollBy(Theme.rowHeight)
    Keys.onUpPressed: scrollBy(-Theme.rowHeight)
    Keys.onPressed: event => {
        event.accepted = true
        if (event.key === Qt.Key_PageDown)
            scrollBy(height - Theme.rowHeight)
        else if (event.key === Qt.Key_PageUp)
            scrollBy(Theme.rowHeight - height)
        else if (event.key === Qt.Key_Home)
            scrollBy(-contentHeight)
        else if (event.key === Qt.Key_End)
            scrollBy(contentHeight)
        else
            event.accepted = false
    }
}
