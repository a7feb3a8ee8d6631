import QtQuick

/// An action beside the main one, or a small one inside a row.
Tappable {
    id: control

    property color stroke: control.tones.accent
    property bool small: false

    implicitHeight: small ? Theme.touchTarget : Theme.buttonHeight
    leftPadding: small ? Theme.spacing : Theme.spacingLarge
    rightPadding: leftPadding
    topInset: small ? Theme.spacingSmall : 0
    bottomInset: topInset
    ringInset: 0
    background: Rectangle {
        radius: Theme.radius
        color: control.pressed ? control.tones.surfacePressed : Theme.transparent
        border.width: Theme.hairlineWidth
        border.color: control.available ? control.stroke : control.tones.disabled
    }
    contentItem: PlainText {
        text: control.text
        font: control.small ? Theme.label : Theme.title
        color: control.available ? control.stroke : control.tones.textSecondary
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
    }
}
