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

        delegate: DetailLine {
            width: ListView.view.width
        }
    }
}
