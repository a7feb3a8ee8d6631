pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui
import Zorvane.Account

PageFrame {
    id: page

    required controller
    readonly property TZPersonalController screen: controller as TZPersonalController

    colour: Theme.pageGray

    PageFlickable {
        anchors.fill: parent
        contentHeight: rows.height

        Column {
            id: rows
            width: parent.width

            PersonalCard {
                name: page.screen.displayName
            }
            SectionHeader {
                text: "身份信息"
            }
            FormRow {
                label: "手机号"
                value: page.screen.cell
            }
            FormRow {
                line: false
                label: "真实姓名"
                value: page.screen.name
            }
            SectionHeader {
                text: "账户设置"
            }
            FormRow {
                chevron: true
                label: "昵称"
                value: page.screen.nick
                onClicked: page.screen.nickRowClick()
            }
            FormRow {
                chevron: true
                line: false
                label: "交易密码"
                value: "重置"
                onClicked: page.screen.tradePwdRowClick()
            }
        }
    }
}
