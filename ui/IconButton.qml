import QtQuick

/// A picture to tap; `text` is its name for those who cannot see it.
Tappable {
    id: control

    required property string image
    property int size: Theme.iconSize

    implicitWidth: Theme.touchTarget
    implicitHeight: Theme.touchTarget
    opacity: !available ? Theme.disabledOpacity : pressed ? 0.6 : 1
    ringInset: 4
    contentItem: Item {
        Icon {
            anchors.centerIn: parent
            name: control.image
            size: control.size
        }
    }
}
