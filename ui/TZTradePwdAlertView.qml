import QtQuick
import Zorvane.Ui

/// Asks for the six digits of the trade password.
DialogFrame {
    id: box

    required dialog
    readonly property TZTradePwdAlertDialog prompt: dialog as TZTradePwdAlertDialog

    name: title.text
    shown: prompt.shown
    fadeDuration: prompt.fadeDuration

    Item {
        width: parent.width
        height: Theme.rowHeight

        SpokenText {
            id: title
            anchors.centerIn: parent
            text: "请输入交易密码"
            font: Theme.title
            color: Theme.textPrimary
        }
        IconButton {
            anchors { right: parent.right; rightMargin: Theme.spacingTiny; verticalCenter: parent.verticalCenter }
            image: "dialog_close"
            text: "关闭"
            onClicked: box.prompt.closeBtnClick()
        }
    }
    Hairline {
        width: parent.width
    }
    Item {
        width: parent.width
        height: dots.height + 2 * Theme.spacingHuge

        DotPasswordRow {
            id: dots
            anchors.centerIn: parent
            focus: true
            placeholder: "交易密码"
            digits: box.prompt.inputTextField
            countText: box.prompt.countText
            lit: box.prompt.btns
            onEdited: value => box.prompt.inputTextField = value
        }
    }
}
