import QtQuick
import QtTest
import Zorvane.Ui

Item {
    id: root
    width: 390
    height: 400

    property string kept
    property int accepted: 0

    TextInputRow {
        id: row
        width: parent.width
        placeholder: "请输入短信验证码"
        text: root.kept
        // As a screen that keeps the first six characters.
        onEdited: value => root.kept = value.slice(0, 6)
        onAccepted: root.accepted += 1
    }
    DotPasswordRow {
        id: dots
        y: 100
        placeholder: "交易密码"
        digits: root.kept
        countText: "已输入" + root.kept.length + "位"
        lit: Array.from({ length: 6 }, (_, dot) => dot < root.kept.length)
        onEdited: value => root.kept = value.replace(/ /g, "").slice(0, 6)
    }
    TestCase {
        name: "Fields"
        when: windowShown

        function init() {
            root.kept = ""
            root.accepted = 0
            row.field.forceActiveFocus()
        }

        function type(text) {
            for (const digit of text)
                keyClick(digit)
        }

        function test_theFieldShowsWhatTheScreenKeeps() {
            type("1234567")
            compare(root.kept, "123456")
            compare(row.field.text, "123456")
            keyClick(Qt.Key_Return)
            compare(root.accepted, 1)
            root.kept = "98"
            compare(row.field.text, "98", "what the screen changes by itself")
            mouseClick(row, row.width - 24, row.height / 2)
            compare(root.kept, "", "the clear button tells the screen")
            compare(row.field.text, "")
        }

        function test_anEditInTheMiddleKeepsTheCursorThere() {
            type("1234")
            keyClick(Qt.Key_Left)
            keyClick(Qt.Key_Left)
            type("9")
            compare(row.field.text, "12934")
            compare(row.field.cursorPosition, 3)
        }

        function test_theDotsTakeDigitsFromTheKeyboard() {
            mouseClick(dots)
            type("12345678")
            compare(root.kept, "123456")
            compare(dots.lit[5], true)
            keyClick(Qt.Key_Backspace)
            compare(root.kept, "12345")
        }

        function test_noDigitOfAPasswordIsSpoken() {
            mouseClick(dots)
            type("789")
            const field = root.Window.activeFocusItem
            const told = world.spoken(field)
            compare(told.role, "EditableText")
            compare(told.name, "交易密码")
            compare(told.description, "已输入3位")
            verify(told.focused)
            compare(told.text, "")
            keyClick(Qt.Key_Backspace)
            type("7")
            const heard = world.heard(dots) + world.heard(field)
            verify(heard.includes("已输入3位"))
            verify(!/[789]/.test(heard), heard)
        }
    }
}
