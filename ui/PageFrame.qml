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
    /// What F5 refreshes.
    property TZBaseTableViewController refreshed: controller as TZBaseTableViewController
    /// What stands in the place of the title.
    property alias titleItem: bar.titleSlot
    default property alias content: body.data

    focus: true
    Keys.onEscapePressed: event => event.accepted = event.isAutoRepeat || page.goBack()
    Keys.onBackPressed: event => event.accepted = event.isAutoRepeat || page.goBack()
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_F5 && refreshed !== null
        if (event.accepted && !event.isAutoRepeat)
            refreshed.beginRefreshing()
    }

    readonly property bool leftLeads: leaves(controller.leftItemImage) || controller.leftItemTitle !== ""
    /// Whether there is a way back that is open now.
    readonly property bool canGoBack: (controller.showBackButton || leftLeads || leaves(controller.rightItemImage))
                                      && controller.canBeLeft

    function leaves(image: string): bool {
        return image === "common_back_gray" || image === "common_close_gray"
    }

    /// Says whether it went.
    function goBack(): bool {
        if (!canGoBack)
            return false
        if (controller.showBackButton)
            controller.backButtonClicked()
        else if (leftLeads)
            controller.leftItemClick()
        else
            controller.rightItemClick()
        return true
    }

    /// Takes the keyboard from the field in `area` that has it, or will have it when the page is in front again.
    function endEditing(area: Item): bool {
        return Array.from(area.children).some(child => {
            const chosen = child.focus || !(child instanceof FocusScope)
            if (!chosen || !(child.focus && (child instanceof TextInput || child instanceof DigitField)))
                return chosen && endEditing(child)
            child.focus = false
            return true
        })
    }

    Connections {
        target: page.controller
        function onEditingEnded() {
            page.endEditing(page)
        }
    }
    Rectangle {
        anchors.fill: parent
        color: page.colour
    }
    // Taps beside the controls end editing.
    TapHandler {
        onTapped: page.controller.scrollViewWillBeginDragging()
    }
    // The scope itself would count as focused besides what has the focus in it.
    Item {
        anchors.fill: parent
        Accessible.role: Accessible.Pane
        Accessible.name: page.controller.title

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
}
