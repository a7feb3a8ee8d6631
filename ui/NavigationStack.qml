pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui

/// Draws a stack of screens: one slides over the other, the one below follows slowly. Screens that are covered are not
/// rendered.
FocusScope {
    id: stack

    required property KRNavigationController navigation
    /// Whether its screen takes the keyboard; before, keys do nothing.
    property bool ready: true
    property bool closed: false

    /// Lets go of the screens' views before the stack itself goes.
    function close() {
        closed = true
    }

    function order() {
        let top = null
        for (let row = 0; row < screens.count; ++row) {
            const slot = screens.itemAt(row) as ScreenSlot
            if (!slot)
                continue
            slot.above = screens.itemAt(row + 1) as ScreenSlot
            if (!slot.leaving)
                top = slot
        }
        if (top && ready)
            top.focus = true
    }

    clip: true
    onNavigationChanged: navigation.animated = true
    onReadyChanged: order()
    Component.onCompleted: navigation.animated = true

    Repeater {
        id: screens
        model: stack.closed ? null : stack.navigation
        onItemAdded: stack.order()
        onItemRemoved: stack.order()

        ScreenSlot {
            id: slot
            width: stack.width
            height: stack.height
            animated: stack.visible
            onLeavingChanged: stack.order()
            onGone: stack.navigation.transitionFinished(controller)
        }
    }
}
