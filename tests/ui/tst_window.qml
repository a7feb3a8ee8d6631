import QtQuick
import QtTest
import Zorvane.Ui

Item {
    id: root
    width: 390
    height: 600

    WindowContent {
        id: content
        anchors.fill: parent
        focus: true
        window: world.window
        overlays: world.overlays
    }
    // Something behind the dialogs that Tab could reach.
    PrimaryButton {
        id: behind
        width: 390
        height: 600
        text: "behind"
        property int taps: 0
        property bool presents: false
        onClicked: {
            taps += 1
            if (presents)
                world.present("page")
        }
    }
    DialogFrame {
        id: lifted
        width: 390
        height: 600
        visible: false
        dialog: null
        name: ""
        keyboard: QtObject {
            property bool visible: false
            property rect keyboardRectangle: Qt.rect(0, 0, 0, 0)
        }

        Item {
            width: 1
            height: 200
        }
    }
    TestCase {
        name: "Window"
        when: windowShown

        function cleanup() {
            world.wait(false)
            behind.taps = 0
            behind.presents = false
            tryVerify(() => find(content, item => item instanceof DialogLoader && item.leaving) === null)
        }

        function find(area, wanted) {
            for (const child of Array.from(area.children)) {
                const found = wanted(child) ? child : find(child, wanted)
                if (found)
                    return found
            }
            return null
        }

        function holdsFocus(text) {
            const item = content.Window.activeFocusItem
            return item !== null && item.text === text && item.showsFocus
        }

        /// The button that has the keyboard of a question that was brought up.
        function asked(text = "确定？") {
            world.showQuestion(text)
            tryVerify(() => holdsFocus("确定"))
            return content.Window.activeFocusItem
        }

        function centre(item) {
            return item.mapToItem(content, item.width / 2, item.height / 2)
        }

        // Part of what the dialogs and pages cover.
        function initTestCase() {
            behind.parent = find(content, item => item instanceof RootLoader)
        }

        function init() {
            keyClick(Qt.Key_Shift)
        }

        function test_tabStaysInADialog() {
            asked()
            keyClick(Qt.Key_Tab)
            verify(holdsFocus("取消"))
            keyClick(Qt.Key_Tab)
            verify(holdsFocus("确定"))
            keyClick(Qt.Key_Tab, Qt.ShiftModifier)
            verify(holdsFocus("取消"))
            keyClick(Qt.Key_Return)
            compare(world.answers(), "left ")
        }

        function test_aLongDialogScrollsAboveButtonsThatStayInTheWindow() {
            const button = asked(("一段很长的说明。".repeat(20) + "\n").repeat(12))
            const dialog = find(content, item => item instanceof DialogFrame && item !== lifted)
            tryVerify(() => dialog.scroll.contentHeight > dialog.scroll.height)
            const end = dialog.scroll.contentHeight - dialog.scroll.height
            verify(button.mapToItem(content, 0, button.height).y <= content.height)
            keyClick(Qt.Key_Down)
            verify(dialog.scroll.contentY > 0)
            mouseWheel(dialog.scroll, 50, 50, 0, -12000)
            tryCompare(dialog.scroll, "contentY", end)
            keyClick(Qt.Key_Return)
            compare(world.answers(), "right ")
        }

        function test_aDialogSaysWhatItAsksAndIsAnsweredOnlyOnPurpose() {
            const question = asked()
            compare(world.spoken(question).description, "确定？")
            const heard = world.heard(content.Window.window)
            verify(heard.includes("提示|确定？|"), heard)
            world.repeatKey(content, Qt.Key_Return)
            world.repeatKey(content, Qt.Key_Escape)
            mouseClick(content, 50, 24)
            compare(world.window.dialogs.count, 1, "a held key brought it up, a tap beside it is none")
            compare(behind.taps, 0)
            keyClick(Qt.Key_Escape)
            compare(world.window.dialogs.count, 0)
        }

        function test_whatADialogCoversIsNeitherPressedNorLosesItsPlace() {
            behind.forceActiveFocus()
            asked()
            const colour = behind.background.color
            world.pressSpoken(behind)
            compare(behind.taps, 0)
            verify(!world.spoken(behind).focusable)
            verify(Qt.colorEqual(behind.background.color, colour))
            keyClick(Qt.Key_Tab)
            keyClick(Qt.Key_Escape)
            verify(behind.activeFocus && behind.showsFocus)
            world.pressSpoken(behind)
            compare(behind.taps, 1)
        }

        function test_aDialogIsLiftedAboveTheKeyboardThatWouldCoverIt() {
            // The card stands from 200 to 400.
            lifted.keyboard.visible = true
            lifted.keyboard.keyboardRectangle = Qt.rect(0, 420, 390, 180)
            compare(lifted.lift, 0)
            lifted.keyboard.keyboardRectangle = Qt.rect(0, 350, 390, 250)
            compare(lifted.lift, 0, "it moves with the keyboard, it does not jump")
            tryCompare(lifted, "lift", 62)
            lifted.keyboard.visible = false
            tryCompare(lifted, "lift", 0)
        }

        function test_thePromptGoesInATimeOfItsOwn() {
            const prompt = world.showPrompt()
            tryVerify(() => find(content, item => item instanceof TZTradePwdAlertView) !== null)
            const box = find(content, item => item instanceof TZTradePwdAlertView)
            tryCompare(box, "opacity", 1)
            let duration = 0
            box.shownChanged.connect(() => duration = box.fadeDuration)
            prompt.inputTextField = "123456"
            compare(duration, 200, "the fade that begins now takes it")
            tryCompare(box, "opacity", 0)
            world.passSecond()
            compare(world.answers(), "123456")
        }

        function test_whileWaitingOnlyEscReachesWhatIsCovered() {
            behind.forceActiveFocus()
            world.wait(true)
            const tryAll = () => {
                mouseClick(content, 50, 24)
                mouseClick(content, 370, 40)
                for (const key of [Qt.Key_Return, Qt.Key_Tab, Qt.Key_Space])
                    keyClick(key)
            }
            tryAll()
            compare(behind.taps, 0)

            world.wait(false)
            asked()
            world.wait(true)
            tryAll()
            compare(world.window.dialogs.count, 1)
            keyClick(Qt.Key_Escape)
            compare(world.window.dialogs.count, 0)
            compare(world.answers(), "")

            world.wait(false)
            world.present("covered")
            tryCompare(content, "cover", 0)
            world.wait(true)
            tryAll()
            compare(world.window.presented.count, 1)
            keyClick(Qt.Key_Escape)
            compare(world.window.presented.count, 0)
            tryCompare(content, "cover", -1)
        }

        function test_aLongWaitOffersAButtonThatLeadsOut() {
            world.wait(true)
            world.present("covered")
            tryCompare(content, "cover", 0)
            const button = find(content, item => item instanceof SecondaryButton && item.text === "返回")
            verify(!button.visible)
            world.wait(false)
            world.waitLong()
            verify(button.visible)
            keyClick(Qt.Key_Tab)
            verify(button.activeFocus)
            mouseClick(button)
            compare(world.window.presented.count, 0)
            verify(!button.visible, "the page below has no way back")
            tryCompare(content, "cover", -1)
        }

        function test_aStackSlidesAwayWithoutTheKeyboard() {
            world.present("going")
            tryCompare(content, "cover", 0)
            const stack = find(content, item => item instanceof PresentedStack)
            keyClick(Qt.Key_Escape)
            compare(world.window.presented.count, 0)
            compare(content.cover, -1)
            verify(stack.leaving && !stack.activeFocus)
            tryVerify(() => stack.y > 0)
            tryVerify(() => find(content, item => item instanceof PresentedStack) === null)
        }

        function test_aDoubleTapOpensAPageOnce() {
            behind.presents = true
            mouseClick(content, 195, 300)
            mouseClick(content, 195, 300)
            compare(world.window.presented.count, 1)
            tryCompare(content, "cover", 0)
            keyClick(Qt.Key_Escape)
            tryVerify(() => find(content, item => item instanceof PresentedStack) === null)
        }

        function test_aDoubleTapClosesOnePage() {
            for (const [row, title] of ["lower", "upper"].entries()) {
                world.present(title)
                tryCompare(content, "cover", row)
            }
            const close = find(content, item => item instanceof BarItem && item.visible && item.Accessible.name === "关闭")
            const place = centre(close)
            mouseClick(content, place.x, place.y)
            const upper = find(content, item => item instanceof PresentedStack && item.leaving)
            upper.y = 500
            mouseClick(content, place.x, place.y)
            compare(world.window.presented.count, 1)
            tryCompare(content, "sliding", false)
            keyClick(Qt.Key_Escape)
            compare(world.window.presented.count, 0)
            tryCompare(content, "sliding", false)
        }

        function test_aDoubleTapOnADialogsButtonReachesNothingBelow() {
            const place = centre(asked())
            mouseClick(content, place.x, place.y)
            mouseClick(content, place.x, place.y)
            compare(world.answers(), "right ")
            compare(behind.taps, 0)
            tryVerify(() => find(content, item => item instanceof DialogLoader) === null)
            mouseClick(content, place.x, place.y)
            compare(behind.taps, 1)
        }
    }
}
