import QtQuick
import Zorvane.Ui

/// Says that a loan of the account has crossed a line; leads to what can be done about it.
Tappable {
    id: badge

    required property string image
    required property bool atRisk

    deep: true
    leftPadding: Theme.spacing
    rightPadding: Theme.spacing
    topInset: Theme.spacingTiny
    bottomInset: Theme.spacingTiny
    background: Rectangle {
        radius: height / 2
        color: badge.atRisk ? Theme.riskBadge : Theme.warningBadge
        opacity: badge.pressed ? 0.8 : 1
    }
    contentItem: Row {
        Icon {
            anchors.verticalCenter: parent.verticalCenter
            name: badge.image
            size: 20
        }
        PlainText {
            anchors.verticalCenter: parent.verticalCenter
            text: badge.text
            font: Theme.badge
            color: Theme.textOnAccent
        }
    }
}
