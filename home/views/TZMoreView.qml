pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui
import Zorvane.Home

PageFrame {
    id: page

    required controller
    readonly property TZMoreViewController more: controller as TZMoreViewController

    ContentList {
        anchors.fill: parent
        focus: true
        topMargin: Theme.spacing
        model: page.more.moreRows
        delegate: FormRow {
            required property int index
            required property string title
            required property string image

            width: ListView.view.width
            chevron: true
            label: title
            picture: image
            onClicked: page.more.didSelectRow(index)
        }
        footerContent: Item {
            height: Theme.buttonHeight + 2 * Theme.spacingHuge

            PrimaryButton {
                anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter; margins: Theme.margin }
                fill: Theme.rise
                text: page.more.logoutTitle
                onClicked: page.more.clickLogoutBtn()
            }
        }
    }
}
