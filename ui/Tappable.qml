import QtQuick
import Zorvane.Ui

/// What every tappable block is made of: a name, a focus ring, and the press action of assistive technology.
TapArea {
    id: control

    property string text
    /// Whether it can be pressed. What lies under another page or a dialog cannot be either, and keeps its looks.
    property bool available: true
    property bool deep: false
    property real ringRadius: Theme.radius
    /// Inwards for controls that fill the width of the page.
    property real ringInset: -2
    readonly property Tones tones: Theme.tones(deep)
    readonly property bool showsFocus: activeFocus && LastInput.byKeyboard

    implicitWidth: Math.max(Theme.touchTarget, contentItem ? contentItem.implicitWidth + leftPadding + rightPadding : 0)
    implicitHeight: Math.max(Theme.touchTarget, contentItem ? contentItem.implicitHeight : 0)
    enabled: available
    activeFocusOnTab: enabled
    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.description: available ? "" : "不可用"
    Accessible.focusable: enabled
    Accessible.onPressAction: control.press()

    Rectangle {
        anchors.fill: parent
        anchors.margins: control.ringInset
        z: 1
        visible: control.showsFocus
        radius: control.ringRadius - control.ringInset
        color: Theme.transparent
        border.width: Theme.focusRingWidth
        border.color: control.tones.focusRing
    }
}
