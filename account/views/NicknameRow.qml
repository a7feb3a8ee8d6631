import QtQuick
import Zorvane.Ui
import Zorvane.Account

/// The field of a nickname.
TextInputRow {
    id: row

    required property TZNicknameController controller

    deep: true
    line: false
    text: controller.nick
    onEdited: value => controller.textFiledEditChanged(value, composing)
    onComposingChanged: {
        // What was not cut meanwhile is cut now.
        if (!composing)
            edited(field.text)
    }
}
