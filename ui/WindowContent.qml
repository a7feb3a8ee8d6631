pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui

/// What fills the window, from the back to the front: its root, what is presented over it, the dialogs, the waiting
/// indicator, the banners. The keyboard belongs to the frontmost. While root or stacks come and go none can be tapped.
FocusScope {
    id: main

    required property KRWindow window
    required property OverlayHost overlays
    /// The row of the presented stack that covers what is under it, -1 while the root is seen.
    property int cover: -1
    property bool sliding: false
    /// All that can be used; what it covers can be neither pressed nor reached.
    property Item front
    /// Known from the start, so that the first key counts.
    readonly property bool byKeyboard: LastInput.byKeyboard

    function endEditing(field: Item) {
        if (field instanceof TextInput || field instanceof DigitField)
            field.focus = false
    }

    function shown(repeater: Repeater): list<Item> {
        return Array.from({ length: repeater.count }, (_, row) => repeater.itemAt(row)).filter(item => item)
    }

    /// What the waiting indicator covers.
    function covered(): Item {
        return [...shown(presented), ...shown(dialogs)].reverse().find(item => !item.leaving) ?? rootView
    }

    /// The dialog or page that has the keyboard when `area` has it; null when it has neither.
    function answering(area: Item): Item {
        if (area instanceof DialogLoader || area instanceof PageFrame)
            return area
        for (const child of Array.from(area.children)) {
            const found = child.focus || !(child instanceof FocusScope) ? answering(child) : null
            if (found)
                return found
        }
        return null
    }

    /// Whether Esc would lead out of what the waiting indicator covers.
    function canGoBack(): bool {
        const area = answering(covered())
        return area instanceof DialogLoader || ((area as PageFrame)?.canGoBack ?? false)
    }

    function goBack() {
        const area = answering(covered())
        const dialog = area as DialogLoader
        if (dialog)
            dialog.dialog.cancel()
        else
            (area as PageFrame)?.goBack()
    }

    function lookAtStacks() {
        const stacks = shown(presented)
        cover = stacks.reduce((highest, stack) => stack.covers ? stack.index : highest, -1)
        sliding = stacks.some(stack => stack.travelling)
    }

    function focusTop() {
        front = indicator.visible ? indicator : covered()
        front.focus = true
    }

    focus: true
    Component.onCompleted: {
        window.animated = true
        focusTop()
    }

    Connections {
        target: main.window
        function onEditingEnded() {
            main.endEditing(main.Window.activeFocusItem)
        }
    }
    RootLoader {
        id: rootView
        anchors.fill: parent
        visible: main.cover < 0
        enabled: main.front === rootView
        root: main.window.root
    }
    Repeater {
        id: presented
        model: main.window.presented
        onItemAdded: main.focusTop()
        onItemRemoved: (index, item) => (item as PresentedStack).close()
        onCountChanged: {
            main.lookAtStacks()
            main.focusTop()
        }

        PresentedStack {
            id: stack

            required property int index
            required property KRNavigationController item

            width: main.width
            height: main.height
            navigation: item
            visible: index >= main.cover
            enabled: main.front === stack
            onCoversChanged: main.lookAtStacks()
            onTravellingChanged: main.lookAtStacks()
            onLeavingChanged: main.focusTop()
            onGone: main.window.transitionFinished(item)
        }
    }
    PointerShield {
        anchors.fill: parent
        visible: main.sliding || rootView.fading
    }
    Repeater {
        id: dialogs
        model: main.window.dialogs
        onItemAdded: main.focusTop()
        onCountChanged: main.focusTop()

        DialogLoader {
            id: dialogView

            required property KRDialog item

            width: main.width
            height: main.height
            dialog: item
            inFront: main.front === dialogView
            onLeavingChanged: main.focusTop()
            onGone: main.window.transitionFinished(item)
        }
    }
    WaitingIndicator {
        id: indicator
        anchors.fill: parent
        // The status first: it is read when the focus comes.
        visible: main.overlays.waiting && status === main.overlays.waitingStatus
        status: main.overlays.waitingStatus
        onVisibleChanged: main.focusTop()
        wayOut: main.overlays.waitingLong && main.canGoBack()
        onBack: main.goBack()
    }
    Repeater {
        model: main.overlays.banners
        Banner {}
    }
}
