import QtQuick
import Zorvane.Ui

/// The card of a dialog over the dimmed window; children are laid under each other in it. Esc cancels.
FocusScope {
    id: frame

    required property KRDialog dialog
    required property string name
    // The card stands in the middle of what an on-screen keyboard leaves free.
    readonly property var keyboard: Qt.inputMethod
    readonly property real availableHeight: height - (keyboard.visible ? keyboard.keyboardRectangle.height : 0)
    property bool shown: true
    property int fadeDuration: Theme.motion
    default property alias content: column.data

    focus: true
    opacity: 0
    onShownChanged: opacity = shown ? 1 : 0
    Component.onCompleted: opacity = shown ? 1 : 0
    Accessible.role: Accessible.Dialog
    Accessible.name: name
    Keys.onEscapePressed: frame.dialog.cancel()
    Keys.onBackPressed: frame.dialog.cancel()

    Behavior on opacity {
        NumberAnimation { duration: frame.fadeDuration }
    }
    Rectangle {
        anchors.fill: parent
        color: Theme.scrim
        MouseArea {
            anchors.fill: parent
            hoverEnabled: true
            onWheel: wheel => wheel.accepted = true
        }
    }
    Rectangle {
        width: Math.min(320, parent.width - 2 * Theme.spacingHuge)
        height: column.height
        x: Math.round((parent.width - width) / 2)
        y: Math.round((frame.availableHeight - height) / 2)
        radius: Theme.radiusLarge
        color: Theme.surface

        Column {
            id: column
            width: parent.width
        }
    }
}
