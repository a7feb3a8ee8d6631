pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui
import Zorvane.Account

StepPage {
    id: page

    required controller
    readonly property TZVerifyIDController screen: controller as TZVerifyIDController

    heading: "验证您的身份"
    caption: "验证通过后即可重置交易密码"

    FormCard {
        TextInputRow {
            deep: true
            focus: true
            line: false
            placeholder: "请输入实名认证时的证件号码"
            inputMethodHints: Qt.ImhPreferUppercase | Qt.ImhNoPredictiveText | Qt.ImhSensitiveData
            text: page.screen.idCard
            onEdited: value => page.screen.idCard = value
            onAccepted: page.screen.nextBtnClick()
        }
    }
    NextStepButton {
        text: "下一步"
        lit: page.screen.nextStepLit
        onClicked: page.screen.nextBtnClick()
    }
}
