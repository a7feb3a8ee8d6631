import QtQuick

/// The one main action of a page.
Tappable {
    id: control

    property color fill: Theme.accent
    property font font: Theme.title

    implicitHeight: Theme.buttonHeight
    leftPadding: Theme.spacingLarge
    rightPadding: Theme.spacingLarge
    background: Rectangle {
        radius: Theme.radius
        color: !control.available ? control.tones.disabled : control.pressed ? Qt.darker(control.fill, 1.2) : control.fill
    }
    contentItem: PlainText {
        text: control.text
        font: control.font
        color: Theme.textOnAccent
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
    }
}
