import QtQuick

/// Keeps Tab inside while something modal is shown.
FocusScope {
    id: trap

    function holds(item: Item): bool {
        for (let up = item; up; up = up.parent) {
            if (up === trap)
                return true
        }
        return false
    }

    function move(forward: bool) {
        const from = trap.Window.activeFocusItem ?? trap
        let to = from
        do {
            to = to.nextItemInFocusChain(forward)
        } while (to && to !== from && !holds(to))
        if (to && holds(to))
            to.forceActiveFocus(forward ? Qt.TabFocusReason : Qt.BacktabFocusReason)
    }

    Keys.onTabPressed: trap.move(true)
    Keys.onBacktabPressed: trap.move(false)
}
