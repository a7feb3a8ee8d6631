pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui

/// The frame of a screen: its navigation bar and background; children fill what is left. Esc goes back.
FocusScope {
    id: page

    required property KRBaseController controller
    readonly property bool deep: controller.background === KRBaseController.Blue
    property color colour: deep ? Theme.pageBlue
                                : controller instanceof TZBaseTableViewController ? Theme.pageGray
                                                                                  : Theme.pageGrayPlain
    /// What stands in the place of the title.
    property alias titleItem: bar.titleSlot
    default property alias content: body.data

    focus: true
    Accessible.role: Accessible.Pane
    Accessible.name: controller.title
    Keys.onEscapePressed: event => event.accepted = page.goBack()
    Keys.onBackPressed: event => event.accepted = page.goBack()

    function leaves(image: string): bool {
        return image === "common_back_gray" || image === "common_close_gray"
    }

    /// Whether there is a way back.
    function goBack(): bool {
        if (controller.showBackButton)
            controller.backButtonClicked()
        else if (leaves(controller.leftItemImage) || controller.leftItemTitle !== "")
            controller.leftItemClick()
        else if (leaves(controller.rightItemImage))
            controller.rightItemClick()
        else
            return false
        return true
    }

    Rectangle {
        anchors.fill: parent
        color: page.colour
    }
    // Taps beside the controls end editing.
    TapHandler {
        onTapped: page.controller.scrollViewWillBeginDragging()
    }
    NavigationBar {
        id: bar
        width: parent.width
        controller: page.controller
    }
    Item {
        id: body
        anchors { left: parent.left; right: parent.right; top: bar.bottom; bottom: parent.bottom }
    }
}
