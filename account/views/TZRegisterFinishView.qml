pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui
import Zorvane.Account

SignInPage {
    id: page

    required controller
    readonly property TZRegisterFinishController finish: controller as TZRegisterFinishController

    heading: "给自己起个昵称"
    caption: "昵称最多十个汉字"

    FormCard {
        TextInputRow {
            deep: true
            focus: true
            line: false
            icon: "register_nick"
            placeholder: "请输入昵称"
            text: page.finish.nick
            onEdited: value => page.finish.textFiledEditChanged(value)
            onAccepted: page.finish.clickNextStepBtn()
        }
    }
    NextStepButton {
        text: "完成"
        lit: page.finish.nick !== ""
        onClicked: page.finish.clickNextStepBtn()
    }
}
