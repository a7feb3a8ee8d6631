import QtQuick
import Zorvane.Ui
import Zorvane.Account

/// The code of the message, with the button that has another one sent.
TextInputRow {
    id: row

    required property TZSmsCodeController controller

    deep: true
    icon: "login_code"
    placeholder: "请输入短信验证码"
    inputMethodHints: Qt.ImhDigitsOnly | Qt.ImhNoPredictiveText | Qt.ImhSensitiveData
    clearButton: false
    text: controller.code
    onEdited: value => controller.textFiledEditChanged(value)

    SecondaryButton {
        width: 112
        small: true
        deep: true
        text: row.controller.smsCell.title
        enabled: row.controller.smsCell.enabled
        onClicked: row.controller.clickTimeBtn()
    }
}
