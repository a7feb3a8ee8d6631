pragma ComponentBehavior: Bound

import QtQuick

/// What fills the window, from the back to the front: its root, what is presented over it, the dialogs, the waiting
/// indicator, the banners.
Item {
    id: main

    required property KRWindow window
    required property OverlayHost overlays
    readonly property KRSideMenu sideMenu: window.root as KRSideMenu
    readonly property KRBaseController guide: window.root as KRBaseController
    readonly property bool blocked: overlays.waiting
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
        focus: !main.blocked

        Loader {
            anchors.fill: parent
            visible: main.settled === 0
            focus: presented.count === 0 && dialogs.count === 0
            sourceComponent: main.sideMenu ? sideMenuFrame : main.guide ? guideScreen : null
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
    Loader {
        anchors.fill: parent
        active: main.overlays.waiting
        focus: main.blocked
        sourceComponent: waitingIndicator
    }
    Repeater {
        model: main.overlays.banners
        Banner {}
    }
    Component {
        id: sideMenuFrame
        SideMenuFrame {
            sideMenu: main.sideMenu
        }
    }
    Component {
        id: guideScreen
        ScreenLoader {
            controller: main.guide
        }
    }
    Component {
        id: waitingIndicator
        WaitingIndicator {
            focus: true
            status: main.overlays.waitingStatus
        }
    }
}
