import QtQuick

/// One of a few choices; `selected` is the screen's.
Tappable {
    id: chip

    property bool selected: false
    property color fill: Theme.accent

    leftPadding: Theme.spacingTiny
    rightPadding: Theme.spacingTiny
    topInset: Theme.spacingTiny
    bottomInset: Theme.spacingTiny
    ringInset: 2
    Accessible.checkable: true
    Accessible.checked: selected
    Accessible.onToggleAction: chip.press()
    background: Rectangle {
        radius: Theme.radius
        color: chip.selected ? chip.fill : chip.pressed ? chip.tones.surfacePressed : Theme.transparent
        border.width: chip.selected ? 0 : Theme.hairlineWidth
        border.color: chip.available ? chip.tones.placeholder : chip.tones.disabled
    }
    contentItem: PlainText {
        text: chip.text
        font: Theme.label
        color: !chip.available ? chip.tones.disabled : chip.selected ? Theme.textOnAccent : chip.tones.textPrimary
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
    }
}
