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
        width: Math.max(112, implicitWidth)
        small: true
        deep: true
        text: row.controller.smsCell.title
        available: row.controller.smsCell.enabled
        onClicked: {
            // The button is disabled from here on and would take the focus with it.
            row.field.focus = true
            row.controller.clickTimeBtn()
        }
    }
}
