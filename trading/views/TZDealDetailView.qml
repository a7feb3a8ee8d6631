pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui
import Zorvane.Trading

PageFrame {
    id: page

    required controller
    readonly property TZDealDetailController detail: controller as TZDealDetailController

    ContentList {
        anchors.fill: parent
        focus: true
        model: page.detail.rows
        Accessible.name: page.detail.title

        footerContent: PlainText {
            height: text === "" ? 0 : implicitHeight
            padding: Theme.margin
            text: page.detail.reason
            font: Theme.body
            color: Theme.deep.textPrimary
            wrapMode: Text.Wrap
            Accessible.role: Accessible.StaticText
            Accessible.name: text
            Accessible.ignored: text === ""
        }
        delegate: DetailLine {
            width: ListView.view.width
        }
    }
}
