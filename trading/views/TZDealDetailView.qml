pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui
import Zorvane.Trading

PageFrame {
    id: page

    required controller
    readonly property TZDealDetailController detail: controller as TZDealDetailController

    ListView {
        anchors.fill: parent
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        model: page.detail.rows
        Accessible.role: Accessible.List
        Accessible.name: page.detail.title

        delegate: DetailLine {
            width: ListView.view.width
        }
    }
}
