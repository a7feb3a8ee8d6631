import QtQuick
import Zorvane.Ui

/// What fills the window, from the back to the front: its root, what is presented over it, the dialogs, the waiting
/// indicator, the banners.
Item {
    id: main

    required property KRWindow window
    required property OverlayHost overlays
    /// How many presented stacks have slid into place and cover what is under them.
    property int settled: 0

    function endEditing(field) {
        if (field)
            field.focus = false
    }

    Connections {
        target: main.window
        function onEditingEnded() {
            main.endEditing(main.Window.activeFocusItem as TextInput)
        }
    }
    FocusScope {
        anchors.fill: parent
        focus: !main.overlays.waiting

        RootLoader {
            anchors.fill: parent
            visible: main.settled === 0
            focus: presented.count === 0 && dialogs.count === 0
            root: main.window.root
        }
        Repeater {
            id: presented
            model: main.window.presented

            PresentedStack {
                required property int index
                required property KRNavigationController item

                width: main.width
                height: main.height
                focus: index === presented.count - 1 && dialogs.count === 0
                navigation: item
                visible: index >= main.settled - 1
                onSettled: main.settled += 1
                onGone: main.settled -= 1
            }
        }
        Repeater {
            id: dialogs
            model: main.window.dialogs

            DialogLoader {
                required property int index
                required property KRDialog item

                width: main.width
                height: main.height
                focus: index === dialogs.count - 1
                dialog: item
            }
        }
    }
    WaitingIndicator {
        anchors.fill: parent
        visible: main.overlays.waiting
        focus: main.overlays.waiting
        status: main.overlays.waitingStatus
    }
    Repeater {
        model: main.overlays.banners
        Banner {}
    }
}
