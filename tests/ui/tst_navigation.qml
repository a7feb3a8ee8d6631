import QtQuick
import QtTest
import Zorvane.Ui

Item {
    id: root
    width: 390
    height: 600

    Component {
        id: doorView
        PrimaryButton {
            required property var navigation
            width: 390
            text: "door"
            onClicked: world.push(navigation, "opened", true)
        }
    }
    Component {
        id: stackView
        NavigationStack {
            width: 390
            height: 600
            focus: true
        }
    }
    Component {
        id: guideView
        TZGuideView {
            width: 390
            height: 600
        }
    }
    TestCase {
        name: "Navigation"
        when: windowShown

        property var navigation
        property var view

        function init() {
            navigation = world.makeStack()
            view = createTemporaryObject(stackView, root, { navigation: navigation })
        }

        function slots() {
            return Array.from(view.children).filter(item => item.controller !== undefined)
        }

        function pushed(title, gesture) {
            world.push(navigation, title, gesture)
            tryVerify(() => slots()[slots().length - 1].progress === 1)
        }

        function test_aCoveredScreenIsNotRenderedAndEscapeLetsTheUpperOneLeave() {
            pushed("second", true)
            verify(!slots()[0].visible)
            verify(slots()[1].visible)
            keyClick(Qt.Key_Escape)
            compare(navigation.depth, 1)
            compare(slots().length, 2)
            tryVerify(() => slots().length === 1)
            compare(slots()[0].x, 0)
            verify(slots()[0].visible)
        }

        function test_aDoubleTapOpensOneScreen() {
            createTemporaryObject(doorView, slots()[0], { navigation: navigation })
            mouseClick(view, 20, 20)
            mouseClick(view, 20, 20)
            compare(navigation.depth, 2)
            tryCompare(view, "sliding", false)
        }

        function test_aDoubleTapGoesBackOnce() {
            pushed("second", true)
            pushed("third", true)
            mouseClick(view, 24, 42)
            compare(navigation.depth, 2)
            slots()[2].progress = 0.1
            mouseClick(view, 24, 42)
            compare(navigation.depth, 2)
        }

        function test_tabReachesNothingOfAScreenThatIsBeingCovered() {
            pushed("second", true)
            view.forceActiveFocus()
            world.push(navigation, "third", true)
            for (let tab = 0; tab < 4; ++tab) {
                keyClick(Qt.Key_Tab)
                let up = root.Window.activeFocusItem
                while (up && up !== slots()[2])
                    up = up.parent
                compare(up, slots()[2])
            }
        }

        function swipe(to) {
            mousePress(view, 4, 300)
            for (let x = 4; x <= to; x += 12)
                mouseMove(view, x, 300)
            mouseRelease(view, to, 300)
        }

        function test_aSwipeFromTheEdge_data() {
            return [
                { tag: "goes back", screens: 1, gesture: true, to: 300, left: 1 },
                { tag: "too short, slides back in", screens: 1, gesture: true, to: 60, left: 2 },
                { tag: "on a screen without the gesture", screens: 1, gesture: false, to: 300, left: 2 },
                { tag: "on the root", screens: 0, gesture: false, to: 300, left: 1 }
            ]
        }

        function test_aSwipeFromTheEdge(row) {
            if (row.screens > 0)
                pushed("second", row.gesture)
            swipe(row.to)
            compare(navigation.depth, row.left)
            if (!row.gesture)
                compare(slots()[row.left - 1].x, 0, "it did not move at all")
            tryVerify(() => slots()[row.left - 1].x === 0)
        }

        function test_theGuideFollowsTheFingerAndItsButtonsAndDoesNotBounce() {
            const guide = createTemporaryObject(guideView, root, { controller: world.makeGuide() })
            const leaves = Array.from(guide.children).find(item => item instanceof ListView)
            const drag = (from, to) => {
                const step = to > from ? 12 : -12
                mousePress(guide, from, 300)
                for (let x = from; step > 0 ? x <= to : x >= to; x += step)
                    mouseMove(guide, x, 300)
            }
            const dots = () => Array.from(guide.children).map(row => Array.from(row.children).filter(dot => dot.current !== undefined))
                                                         .find(found => found.length > 0).map(dot => dot.current)
            drag(60, 300)
            compare(leaves.contentX, 0)
            mouseRelease(guide, 300, 300)
            drag(300, 60)
            mouseRelease(guide, 60, 300)
            tryCompare(guide.controller, "page", 1)
            compare(dots(), [false, true, false, false])
            guide.controller.toNextPage()
            tryCompare(leaves, "contentX", 2 * 390)
        }
    }
}
