pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui
import Zorvane.Home

PageFrame {
    id: page

    required controller
    readonly property TZMyAccountController account: controller as TZMyAccountController

    RefreshableList {
        id: list
        anchors { left: parent.left; right: parent.right; top: parent.top; bottom: buttons.top }
        focus: true
        controller: page.account
        model: page.account.assetRows
        Accessible.name: page.account.title
        headerContent: Column {
            AccountTitle {
                width: parent.width
                nick: page.account.nick
                cell: page.account.cell
                onClicked: page.account.seePersonalInfo()
            }
            SectionHeader {
                implicitHeight: Theme.touchTarget
                text: page.account.assetsTitle

                IconButton {
                    anchors { right: parent.right; rightMargin: Theme.spacingTiny; verticalCenter: parent.verticalCenter }
                    image: page.account.amounts.hidden ? "eye_closed" : "eye_open"
                    text: page.account.amounts.title
                    onClicked: page.account.amounts.toggle()
                }
            }
        }
        delegate: AccountAssetRow {
            width: ListView.view.width
            onInfoClicked: page.account.clickAvailableBtn()
        }
        footerContent: Column {
            Item {
                width: 1
                height: Theme.spacing
            }
            FormRow {
                chevron: true
                line: false
                label: page.account.recordsTitle
                onClicked: page.account.seeFundRecords()
            }
        }
    }
    Rectangle {
        id: buttons
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        height: Theme.buttonHeight + 2 * Theme.spacing
        color: Theme.surface

        Hairline {
            width: parent.width
        }
        Row {
            id: buttonRow
            anchors { fill: parent; margins: Theme.spacing; leftMargin: Theme.margin; rightMargin: Theme.margin }
            spacing: Theme.spacing

            SecondaryButton {
                width: (buttonRow.width - buttonRow.spacing) / 2
                text: page.account.withdrawalsTitle
                onClicked: page.account.withdrawalsBtnClick()
            }
            PrimaryButton {
                width: (buttonRow.width - buttonRow.spacing) / 2
                text: page.account.rechargeTitle
                onClicked: page.account.rechargeBtnClick()
            }
        }
    }
}
