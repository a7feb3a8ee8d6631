pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui

/// Buttons of equal width with a picture over the title.
Row {
    id: bar

    required property var actions

    signal clicked(int tag)

    width: parent ? parent.width : 0

    Repeater {
        model: bar.actions

        Tappable {
            id: action

            required property int tag
            required property string title
            required property string image

            width: bar.width / 4
            height: Theme.scaled(76)
            deep: true
            ringInset: 4
            text: title
            onClicked: bar.clicked(tag)
            background: Rectangle {
                color: action.pressed ? action.tones.surfacePressed : action.tones.surface
            }
            contentItem: Item {
                Column {
                    anchors.centerIn: parent
                    spacing: Theme.spacingTiny

                    Icon {
                        anchors.horizontalCenter: parent.horizontalCenter
                        name: action.image
                        size: 36
                    }
                    PlainText {
                        anchors.horizontalCenter: parent.horizontalCenter
                        text: action.title
                        font: Theme.label
                        color: action.tones.textPrimary
                    }
                }
            }
        }
    }
}
