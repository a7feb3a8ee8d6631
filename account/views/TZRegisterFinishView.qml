pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Account

StepPage {
    id: page

    required controller
    readonly property TZRegisterFinishController finish: controller as TZRegisterFinishController

    heading: "给自己起个昵称"
    caption: "昵称最多十个汉字"

    FormCard {
        NicknameRow {
            controller: page.finish
            focus: true
            icon: "register_nick"
            placeholder: "请输入昵称"
            onAccepted: page.finish.clickNextStepBtn()
        }
    }
    NextStepButton {
        text: "完成"
        lit: page.finish.nick !== ""
        onClicked: page.finish.clickNextStepBtn()
    }
}
