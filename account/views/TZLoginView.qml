pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Account

StepPage {
    id: page

    required controller
    readonly property TZLoginController login: controller as TZLoginController

    heading: "输入验证码"
    caption: login.headerText

    FormCard {
        SmsCodeRow {
            controller: page.login
            focus: true
            line: false
            onAccepted: page.login.clickNextStepBtn()
        }
    }
    NextStepButton {
        text: "登录"
        lit: page.login.nextStepLit
        onClicked: page.login.clickNextStepBtn()
    }
}
