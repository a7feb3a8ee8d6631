pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Account

StepPage {
    id: page

    required controller
    readonly property TZModifyNicknameController screen: controller as TZModifyNicknameController

    caption: "昵称最多十个汉字"

    FormCard {
        NicknameRow {
            controller: page.screen
            focus: true
            icon: "edit_nick"
            label: "昵称"
            placeholder: "请输入新昵称"
            onAccepted: page.screen.saveBtnClick()
        }
    }
    NextStepButton {
        text: "保存设置"
        lit: page.screen.nick !== ""
        onClicked: page.screen.saveBtnClick()
    }
}
