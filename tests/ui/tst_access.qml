import QtQuick
import QtTest
import Zorvane.Ui

/// What assistive technology and the keyboard find.
Item {
    id: root
    width: 390
    height: 600

    property int presses: 0

    Column {
        width: parent.width

        PrimaryButton {
            id: button
            text: "button"
            onClicked: root.presses += 1
        }
        PrimaryButton {
            id: closed
            text: "closed"
            available: false
            onClicked: root.presses += 1
        }
        FormRow {
            id: door
            chevron: true
            label: "leads"
            onClicked: root.presses += 1
        }
        FormRow {
            id: line
            label: "name"
            value: "value"
        }
        ChoiceChip {
            id: chip
            text: "chip"
            selected: true
            Accessible.role: Accessible.RadioButton
        }
        SegmentedTitle {
            id: tabs
            name: "tabs"
            titles: ["first", "second"]
        }
        Tappable {
            id: passedBy
            text: "passed by"
            activeFocusOnTab: false
        }
    }
    TestCase {
        name: "Access"
        when: windowShown

        function init() {
            root.presses = 0
        }

        function test_whatIsToldOfControls_data() {
            const [first, second] = Array.from(tabs.children).filter(item => item instanceof Tappable)
            return [
                { tag: "button", item: button, role: "Button", name: "button", pressable: true, focusable: true },
                { tag: "row", item: door.children[1], role: "Button", name: "leads", pressable: true, focusable: true },
                { tag: "texts", item: line, role: "StaticText", name: "name value", pressable: false },
                { tag: "choice", item: chip, role: "RadioButton", name: "chip", checkable: true, checked: true },
                { tag: "tab", item: first, role: "PageTab", name: "first", selected: true },
                { tag: "other tab", item: second, role: "PageTab", name: "second", selected: false },
                { tag: "closed", item: closed, role: "Button", name: "closed", description: "不可用",
                  focusable: false }
            ]
        }

        function test_whatIsToldOfControls(row) {
            const told = world.spoken(row.item)
            for (const key of Object.keys(row).filter(each => each !== "tag" && each !== "item"))
                compare(told[key], row[key], key)
        }

        function test_aRowIsToldOnce() {
            compare(world.heard(root.Window.window).split("leads").length, 2)
        }

        function test_onlyWhatIsOpenCanBePressed() {
            world.pressSpoken(closed)
            compare(root.presses, 0)
            world.pressSpoken(button)
            compare(root.presses, 1)
        }

        function test_aHeldKeyActsOnce() {
            button.forceActiveFocus()
            for (const key of [Qt.Key_Return, Qt.Key_Enter, Qt.Key_Space]) {
                root.presses = 0
                keyPress(key)
                world.repeatKey(button, key)
                world.repeatKey(button, key)
                keyRelease(key)
                compare(root.presses, 1)
            }
        }

        function test_theFocusIsShownWhileTheKeyboardIsUsed() {
            mouseClick(root, 380, 590)
            button.forceActiveFocus()
            verify(!button.showsFocus)
            keyClick(Qt.Key_Shift)
            verify(button.showsFocus)
            mouseClick(root, 380, 590)
            verify(!button.showsFocus)
        }

        function test_tabPassesBy() {
            button.forceActiveFocus()
            const reached = []
            for (let tab = 0; tab < 6; ++tab) {
                keyClick(Qt.Key_Tab)
                reached.push(root.Window.activeFocusItem.text)
            }
            compare(reached, ["leads", "chip", "first", "second", "button", "leads"])
        }
    }
}
