pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui

PageFrame {
    id: page

    required controller
    readonly property TZPlainPageController plain: controller as TZPlainPageController

    Rectangle {
        anchors { left: parent.left; right: parent.right; top: parent.top; margins: Theme.margin }
        height: words.height + 2 * Theme.spacingLarge
        visible: words.text !== ""
        radius: Theme.radiusLarge
        color: Theme.surface

        PlainText {
            id: words
            x: Theme.spacingLarge
            y: Theme.spacingLarge
            width: parent.width - 2 * x
            text: page.plain.text
            font: Theme.body
            color: Theme.textPrimary
            lineHeight: 1.4
            wrapMode: Text.Wrap
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
}
