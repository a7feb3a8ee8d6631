pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui

PageFrame {
    id: page

    required controller
    readonly property TZPlainPageController plain: controller as TZPlainPageController

    PlainText {
        anchors { left: parent.left; right: parent.right; top: parent.top; margins: Theme.spacingHuge }
        text: page.plain.text
        font: Theme.body
        color: Theme.textPrimary
        lineHeight: 1.4
        wrapMode: Text.Wrap
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
