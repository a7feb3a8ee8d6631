pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui
import Zorvane.Account

StepPage {
    id: page

    required controller
    readonly property TZRegisterController registration: controller as TZRegisterController

    heading: "输入验证码"
    caption: registration.headerText

    FormCard {
        SmsCodeRow {
            controller: page.registration
            focus: true
            onAccepted: page.registration.clickNextStepBtn()
        }
        TextInputRow {
            deep: true
            line: false
            icon: "share_code"
            placeholder: "请输入邀请码（选填）"
            text: page.registration.inviteCode
            onEdited: value => page.registration.inviteCode = value
            onAccepted: page.registration.clickNextStepBtn()
        }
    }
    NextStepButton {
        text: "立即注册"
        lit: page.registration.nextStepLit
        onClicked: page.registration.clickNextStepBtn()
    }
    Row {
        anchors.horizontalCenter: parent.horizontalCenter

        SpokenText {
            height: Theme.touchTarget
            text: "注册即表示您同意"
            font: Theme.label
            color: Theme.deep.textSecondary
            verticalAlignment: Text.AlignVCenter
        }
        TextButton {
            deep: true
            font: Theme.label
            leftPadding: Theme.spacingTiny
            text: "软件许可使用协议"
            onClicked: page.registration.clickAgreementBtn()
        }
    }
}
