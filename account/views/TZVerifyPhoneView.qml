pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Account

StepPage {
    id: page

    required controller
    readonly property TZVerifyPhoneController screen: controller as TZVerifyPhoneController

    heading: "输入验证码"
    caption: screen.headerText

    FormCard {
        SmsCodeRow {
            controller: page.screen
            focus: true
            line: false
            onAccepted: page.screen.clickNextStepBtn()
        }
    }
    NextStepButton {
        text: "下一步"
        lit: page.screen.nextStepLit
        onClicked: page.screen.clickNextStepBtn()
    }
}
