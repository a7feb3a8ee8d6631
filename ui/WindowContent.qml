pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui

/// What fills the window, from the back to the front: its root, what is presented over it, the dialogs, the waiting
/// indicator, the banners. The keyboard belongs to the frontmost.
FocusScope {
    id: main

    required property KRWindow window
    required property OverlayHost overlays
    /// How many presented stacks have slid into place and cover what is under them.
    property int settled: 0

    function endEditing(field) {
        if (field)
            field.focus = false
    }

    /// What the waiting indicator covers.
    function covered(): Item {
        return dialogs.count > 0 ? dialogs.itemAt(dialogs.count - 1)
             : presented.count > 0 ? presented.itemAt(presented.count - 1) : rootView
    }

    /// Goes back as Esc would if the keyboard were in `area`.
    function goBack(area: Item): bool {
        const dialog = area as DialogLoader
        if (dialog) {
            dialog.dialog.cancel()
            return true
        }
        const page = area as PageFrame
        if (page)
            return page.goBack()
        return Array.from(area.children).some(
            child => (child.focus || !(child instanceof FocusScope)) && goBack(child))
    }

    function focusTop() {
        const front = indicator.visible ? indicator : covered()
        guard.front = front
        front.focus = true
    }

    focus: true
    Component.onCompleted: focusTop()

    FocusGuard {
        id: guard
        scope: main
    }
    Connections {
        target: main.window
        function onEditingEnded() {
            main.endEditing(main.Window.activeFocusItem as TextInput)
        }
    }
    RootLoader {
        id: rootView
        anchors.fill: parent
        visible: main.settled === 0
        root: main.window.root
    }
    Repeater {
        id: presented
        model: main.window.presented
        onItemAdded: main.focusTop()
        onItemRemoved: (index, item) => (item as PresentedStack).close()
        onCountChanged: main.focusTop()

        PresentedStack {
            required property int index
            required property KRNavigationController item

            width: main.width
            height: main.height
            navigation: item
            visible: index >= main.settled - 1
            onSettled: main.settled += 1
            onGone: main.settled -= 1
        }
    }
    Repeater {
        id: dialogs
        model: main.window.dialogs
        onItemAdded: main.focusTop()
        onCountChanged: main.focusTop()

        DialogLoader {
            required property KRDialog item

            width: main.width
            height: main.height
            dialog: item
        }
    }
    WaitingIndicator {
        id: indicator
        anchors.fill: parent
        visible: main.overlays.waiting
        status: main.overlays.waitingStatus
        onVisibleChanged: main.focusTop()
        onBack: main.goBack(main.covered())
    }
    Repeater {
        model: main.overlays.banners
        Banner {}
    }
}
