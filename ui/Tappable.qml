import QtQuick
import QtQuick.Templates as T

/// What every tappable block is made of: a name, a focus ring, the pointer, Space and Enter, and the press action of
/// assistive technology.
T.AbstractButton {
    id: control

    property bool deep: false
    /// Whether a press does something: rows of texts are made of this block too.
    property bool leads: true
    property real ringRadius: Theme.radius
    /// Inwards for controls that fill the width of the page.
    property real ringInset: -2
    readonly property Tones tones: Theme.tones(deep)
    readonly property bool showsFocus: activeFocus
                                       && (focusReason === Qt.TabFocusReason || focusReason === Qt.BacktabFocusReason)

    /// Takes the focus and shows it, also when it has it already.
    function takeKeyboard() {
        forceActiveFocus(Qt.TabFocusReason)
        focusReason = Qt.TabFocusReason
    }

    function press() {
        if (enabled)
            clicked()
    }

    implicitWidth: Math.max(Theme.touchTarget, implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: Math.max(Theme.touchTarget, implicitContentHeight + topPadding + bottomPadding)
    activeFocusOnTab: true
    focusPolicy: Qt.TabFocus
    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.onPressAction: control.press()
    Keys.onReturnPressed: control.press()
    Keys.onEnterPressed: control.press()

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
