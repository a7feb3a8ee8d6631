pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui

/// The frame of the account's steps: a heading, what is to be done, the form. Scrolls when the window is short.
PageFrame {
    id: page

    property string heading
    property string caption
    default property alias form: column.data

    PageFlickable {
        anchors.fill: parent
        contentHeight: Math.max(height, column.y + column.height + Theme.spacingHuge)

        // A Flickable keeps the taps beside its fields from the page.
        Item {
            anchors.fill: parent

            TapHandler {
                onTapped: page.controller.scrollViewWillBeginDragging()
            }
        }
        Column {
            id: column
            y: Theme.spacingHuge
            width: Math.min(parent.width - 2 * Theme.margin, 448)
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: Theme.spacingLarge

            PlainText {
                width: parent.width
                visible: text !== ""
                text: page.heading
                font: Theme.heading
                color: Theme.deep.textPrimary
                wrapMode: Text.Wrap
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }
            SpokenText {
                width: parent.width
                visible: text !== ""
                text: page.caption
                font: Theme.body
                color: Theme.deep.textSecondary
                wrapMode: Text.Wrap
            }
        }
    }
}
