import QtQuick
import Zorvane.Ui

/// What a page scrolls that may be higher than the window. Keeps in sight what the keyboard reaches.
Flickable {
    id: scroll

    readonly property Item focused: Window.activeFocusItem

    function reveal(item: Item) {
        let up = item
        while (up && up !== contentItem)
            up = up.parent
        if (!up)
            return
        const top = item.mapToItem(contentItem, 0, 0).y
        contentY = Math.max(Math.min(contentY, top), top + item.height - height)
    }

    boundsBehavior: Flickable.StopAtBounds
    clip: true
    // What was tapped is in sight, and does not jump away under the finger.
    onFocusedChanged: if (LastInput.byKeyboard) reveal(focused)
}
