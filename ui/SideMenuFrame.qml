import QtQuick
import Zorvane.Ui

/// The content over the menu: opened, it shrinks and moves to the right, and a tap on it closes the menu.
FocusScope {
    id: frame

    required property KRSideMenu sideMenu
    readonly property real openScale: 0.82
    readonly property real openShift: width * 0.6
    /// 0 closed, 1 open.
    property real progress: sideMenu.open ? 1 : 0

    /// Lets go of the screens' views before the frame itself goes.
    function close() {
        content.close()
    }

    function leave(event: KeyEvent) {
        if (!event.isAutoRepeat)
            sideMenu.hideMenu()
    }

    focus: true

    Behavior on progress {
        enabled: !drag.active
        NumberAnimation { duration: Theme.motion; easing.type: Easing.OutCubic }
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.menuBackground
    }
    Connections {
        target: frame.sideMenu
        function onOpenChanged() {
            const front = frame.sideMenu.open ? menu : content
            front.focus = true
        }
    }
    FocusScope {
        id: menu
        anchors.fill: parent
        visible: frame.progress > 0
        enabled: frame.sideMenu.open
        Keys.onEscapePressed: event => frame.leave(event)
        Keys.onBackPressed: event => frame.leave(event)
        ScreenLoader {
            width: frame.openShift
            height: parent.height
            controller: frame.sideMenu.leftMenu
            wanted: menu.visible
        }
        PointerShield {
            anchors.fill: parent
            visible: frame.progress < 1
        }
    }
    Item {
        width: parent.width
        height: parent.height
        x: frame.progress * frame.openShift
        scale: 1 - frame.progress * (1 - frame.openScale)
        transformOrigin: Item.Left

        Shadow {
            visible: frame.progress > 0
        }
        NavigationStack {
            id: content
            anchors.fill: parent
            focus: true
            enabled: !frame.sideMenu.open
            navigation: frame.sideMenu.content
        }
        Item {
            width: frame.progress > 0 ? parent.width : Theme.spacingLarge
            height: parent.height

            MouseArea {
                anchors.fill: parent
                enabled: frame.progress > 0
                onClicked: if (frame.progress === 1) frame.sideMenu.hideMenu()
            }
            DragHandler {
                id: drag
                target: null
                enabled: frame.sideMenu.open || frame.sideMenu.content.depth === 1
                yAxis.enabled: false
                onActiveTranslationChanged: {
                    if (!active)
                        return
                    const start = frame.sideMenu.open ? 1 : 0
                    frame.progress = Math.max(0, Math.min(1, start + activeTranslation.x / frame.openShift))
                }
                onActiveChanged: {
                    if (active)
                        return
                    if (frame.progress > 0.5)
                        frame.sideMenu.presentLeftMenu()
                    else
                        frame.sideMenu.hideMenu()
                    frame.progress = Qt.binding(() => frame.sideMenu.open ? 1 : 0)
                }
            }
        }
    }
}
