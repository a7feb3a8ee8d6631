import QtQuick

/// A button at the lower end of a dialog's card.
Tappable {
    id: control

    property bool strong: true

    implicitHeight: Theme.rowHeight
    ringInset: 4
    background: Rectangle {
        radius: Theme.radiusLarge
        color: control.pressed ? Theme.surfacePressed : Theme.surface
    }
    contentItem: PlainText {
        text: control.text
        font: control.strong ? Theme.title : Theme.body
        color: control.strong ? control.tones.accent : Theme.textSecondary
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
    }
}
