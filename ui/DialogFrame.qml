import QtQuick
import Zorvane.Ui

/// The card of a dialog over the dimmed window; children are laid under each other in it, above its `footer`. When the
/// window is too low for them they scroll, by keyboard too, and the footer stays. Esc cancels.
FocusScope {
    id: frame

    required property KRDialog dialog
    required property string name
    /// What is said besides its name.
    property string description
    property var keyboard: Qt.inputMethod
    readonly property real keyboardTop: height - keyboard.keyboardRectangle.height
    /// How far the card stands above its place in the middle, so that an on-screen keyboard does not cover it.
    property real lift: keyboard.visible ? Math.max(0, (height + card.height) / 2 + Theme.spacing - keyboardTop) : 0
    property bool shown: true
    property int fadeDuration: Theme.motion
    default property alias content: column.data
    property alias footer: footerSlot.data
    readonly property alias scroll: body

    function leave(event: KeyEvent) {
        if (!event.isAutoRepeat)
            dialog.cancel()
    }

    focus: true
    opacity: 0
    onShownChanged: opacity = shown ? 1 : 0
    Component.onCompleted: opacity = shown ? 1 : 0
    Keys.onEscapePressed: event => leave(event)
    Keys.onBackPressed: event => leave(event)
    Keys.onUpPressed: body.scrollBy(-Theme.rowHeight)
    Keys.onDownPressed: body.scrollBy(Theme.rowHeight)

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
        Accessible.role: Accessible.Dialog
        Accessible.name: frame.name
        Accessible.description: frame.description
        width: Math.min(320, parent.width - 2 * Theme.spacingHuge)
        height: body.height + footerSlot.height
        x: Math.round((parent.width - width) / 2)
        y: Math.max(0, Math.round((frame.height - height) / 2 - frame.lift))
        radius: Theme.radiusLarge
        color: Theme.surface

        PageFlickable {
            id: body
            width: parent.width
            height: Math.min(column.height, frame.height - 2 * Theme.spacingHuge - footerSlot.height)
            contentHeight: column.height
            interactive: contentHeight > height

            function scrollBy(distance: real) {
                contentY = Math.max(0, Math.min(contentHeight - height, contentY + distance))
            }

            Column {
                id: column
                width: parent.width
            }
        }
        Rectangle {
            anchors { right: parent.right; rightMargin: 3 }
            y: 3 + (body.height - 6 - height) * body.contentY / Math.max(1, body.contentHeight - body.height)
            visible: body.interactive
            width: 3
            height: Math.max(Theme.spacingHuge, body.height * body.height / Math.max(1, body.contentHeight))
            radius: 1.5
            color: Theme.placeholder
        }
        Column {
            id: footerSlot
            anchors.top: body.bottom
            width: parent.width
        }
    }
}
