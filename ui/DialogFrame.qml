import QtQuick
import Zorvane.Ui

/// The card of a dialog over the dimmed window; children are laid under each other in it. Esc cancels.
FocusScope {
    id: frame

    required property KRDialog dialog
    required property string name
    property var keyboard: Qt.inputMethod
    readonly property real keyboardTop: height - keyboard.keyboardRectangle.height
    /// How far the card stands above its place in the middle, so that an on-screen keyboard does not cover it.
    property real lift: keyboard.visible ? Math.max(0, (height + card.height) / 2 + Theme.spacing - keyboardTop) : 0
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

    Behavior on lift {
        NumberAnimation { duration: Theme.motionKeyboard; easing.type: Easing.OutCubic }
    }
    Behavior on opacity {
        NumberAnimation { duration: frame.fadeDuration }
    }
    Rectangle {
        anchors.fill: parent
        color: Theme.scrim
        PointerShield {
            anchors.fill: parent
        }
    }
    Rectangle {
        id: card
        width: Math.min(320, parent.width - 2 * Theme.spacingHuge)
        height: column.height
        x: Math.round((parent.width - width) / 2)
        y: Math.max(0, Math.round((frame.height - height) / 2 - frame.lift))
        radius: Theme.radiusLarge
        color: Theme.surface

        Column {
            id: column
            width: parent.width
        }
    }
}
