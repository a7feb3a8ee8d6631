pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui

/// Draws a stack of screens: one slides over the other, the one below follows slowly. Screens that are covered are not
/// rendered. While one slides nothing of the stack can be tapped: a second tap would hit what comes under the finger.
FocusScope {
    id: stack

    required property KRNavigationController navigation
    /// Whether its screen takes the keyboard; before, keys do nothing.
    property bool ready: true
    property bool closed: false
    property bool sliding: false
    /// The screen that can be used: none while the stack is not ready.
    property ScreenSlot front

    /// Lets go of the screens' views before the stack itself goes.
    function close() {
        closed = true
    }

    function order() {
        let top = null
        let moving = false
        for (let row = 0; row < screens.count; ++row) {
            const slot = screens.itemAt(row) as ScreenSlot
            if (!slot)
                continue
            slot.above = screens.itemAt(row + 1) as ScreenSlot
            if (!slot.leaving)
                top = slot
            moving = moving || slot.sliding
        }
        sliding = moving
        front = ready ? top : null
        if (front)
            front.focus = true
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
            enabled: stack.front === slot
            onLeavingChanged: stack.order()
            onSlidingChanged: stack.order()
            onGone: stack.navigation.transitionFinished(controller)
        }
    }
    PointerShield {
        anchors.fill: parent
        visible: stack.sliding
    }
}
