pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui
import Zorvane.Account

StepPage {
    id: page

    required controller
    readonly property TZCheckCellController entry: controller as TZCheckCellController

    heading: "输入手机号，开始炒股"
    caption: "未注册的手机号验证后即可注册"

    FormCard {
        TextInputRow {
            deep: true
            focus: true
            line: false
            icon: "login_phone"
            placeholder: "请输入手机号"
            inputMethodHints: Qt.ImhDialableCharactersOnly | Qt.ImhNoPredictiveText
            text: page.entry.cell
            onEdited: value => page.entry.cell = value
            onAccepted: page.entry.clickNextStepBtn()
        }
    }
    NextStepButton {
        text: "下一步"
        lit: page.entry.nextStepLit
        onClicked: page.entry.clickNextStepBtn()
    }
}
