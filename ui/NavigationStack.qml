pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui

/// Draws a stack of screens: one slides over the other, the one below follows slowly. Screens that are covered are not
/// rendered.
FocusScope {
    id: stack

    required property KRNavigationController navigation

    function order() {
        for (let row = 0; row < screens.count; ++row) {
            const slot = screens.itemAt(row) as ScreenSlot
            if (slot)
                slot.above = screens.itemAt(row + 1) as ScreenSlot
        }
    }

    clip: true
    onNavigationChanged: navigation.animated = true
    Component.onCompleted: navigation.animated = true

    Repeater {
        id: screens
        model: stack.navigation
        onItemAdded: stack.order()
        onItemRemoved: stack.order()

        ScreenSlot {
            id: slot
            width: stack.width
            height: stack.height
            animated: stack.visible
            focus: !leaving && (!above || above.leaving)
            onGone: stack.navigation.transitionFinished(controller)
        }
    }
}
