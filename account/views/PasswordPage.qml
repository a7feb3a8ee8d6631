import QtQuick
import Zorvane.Ui
import Zorvane.Account

/// Six dots under what they are for: the two steps of a new trade password.
StepPage {
    id: page

    readonly property TZPasswordController screen: controller as TZPasswordController

    heading: screen.heading
    caption: screen.caption

    DotPasswordRow {
        width: parent.width
        deep: true
        focus: true
        placeholder: "交易密码"
        digits: page.screen.input
        countText: page.screen.countText
        lit: [page.screen.button1, page.screen.button2, page.screen.button3, page.screen.button4, page.screen.button5,
              page.screen.button6]
        onEdited: value => page.screen.input = value
    }
}
