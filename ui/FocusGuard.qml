import QtQuick

/// Keeps Tab inside `front`, what is frontmost within `scope`: when the focus gets beside it, it goes on to the next item
/// of the front in the same direction.
Item {
    id: guard

    required property Item scope
    property Item front

    function inside(area: Item, item: Item): bool {
        for (let up = item; up; up = up.parent) {
            if (up === area)
                return true
        }
        return false
    }

    function bringBack(item: Item) {
        const forward = inside(front, item.nextItemInFocusChain(false)) || !inside(front, item.nextItemInFocusChain(true))
        let to = item
        do {
            to = to.nextItemInFocusChain(forward)
        } while (to && to !== item && !inside(front, to))
        if (!to || to === item)
            to = front
        to.forceActiveFocus(forward ? Qt.TabFocusReason : Qt.BacktabFocusReason)
    }

    Connections {
        target: guard.Window.window
        function onActiveFocusItemChanged() {
            const item = guard.Window.activeFocusItem
            if (guard.front && item && item !== guard.scope && guard.inside(guard.scope, item)
                    && !guard.inside(guard.front, item))
                guard.bringBack(item)
        }
    }
}
