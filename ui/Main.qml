import QtQuick
import Zorvane.Ui

/// The window: phone-shaped on a desktop, the whole screen on a phone.
Window {
    id: main

    required property KRWindow window
    required property OverlayHost overlays

    width: 390
    height: 844
    minimumWidth: 360
    minimumHeight: 480
    visible: main.window.visible
    color: Theme.menuBackground
    title: "Zorvane"

    WindowContent {
        anchors.fill: parent
        window: main.window
        overlays: main.overlays
    }
}
