import QtQuick

/// A tappable text without a frame, such as a link.
Tappable {
    id: control

    property font font: Theme.body
    property color textColour: deep ? control.tones.accent : Theme.link

    leftPadding: Theme.spacingSmall
    rightPadding: Theme.spacingSmall
    contentItem: PlainText {
        text: control.text
        font: control.font
        color: control.available ? control.textColour : control.tones.disabled
        opacity: control.pressed ? Theme.disabledOpacity : 1
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
    }
}
