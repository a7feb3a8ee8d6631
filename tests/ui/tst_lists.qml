import QtQuick
import QtTest
import Zorvane.Ui

Item {
    id: root
    width: 390
    height: 400

    property var screen: world.makeList()
    property bool rowsLead: false
    readonly property bool byKeyboard: LastInput.byKeyboard

    RefreshableList {
        id: list
        anchors.fill: parent
        focus: true
        controller: root.screen
        canLoadMore: true
        model: 20
        headerContent: SectionHeader {
            text: "header"
        }
        delegate: FormRow {
            required property int index
            width: ListView.view.width
            label: "row " + index
            chevron: root.rowsLead
        }
    }
    PageFrame {
        id: page
        y: parent.height
        width: parent.width
        height: parent.height
        controller: root.screen

        TextInputRow {
            id: search
        }
    }
    SignalSpy {
        id: editing
        target: world.window
        signalName: "editingEnded"
    }
    TestCase {
        name: "Lists"
        when: windowShown

        function cleanup() {
            root.rowsLead = false
            root.screen.finish()
            list.positionViewAtBeginning()
            root.screen.refreshes = 0
            root.screen.loads = 0
        }

        function pull(from, to) {
            mousePress(list, 200, from)
            const step = to > from ? 8 : -8
            for (let y = from; step > 0 ? y < to : y > to; y += step)
                mouseMove(list, 200, y)
            mouseRelease(list, 200, to)
        }

        function test_pullingDownFarEnoughRefreshesOnceAndShowsIt() {
            editing.clear()
            pull(60, 110)
            compare(root.screen.refreshes, 0)
            compare(editing.count, 1)
            tryCompare(list, "moving", false)
            pull(60, 260)
            compare(root.screen.refreshes, 1)
            verify(root.screen.refreshing)
            compare(list.topMargin, list.pullDistance)
            pull(60, 260)
            compare(root.screen.refreshes, 1)
            root.screen.finish()
            compare(list.topMargin, 0)
        }

        function test_pullingUpAtTheEndLoadsMore() {
            list.positionViewAtEnd()
            pull(380, 120)
            compare(root.screen.loads, 1)
            compare(root.screen.refreshes, 0)
        }

        function test_theKeyboardScrolls() {
            list.forceActiveFocus()
            const start = list.contentY
            keyClick(Qt.Key_Down)
            verify(list.contentY > start)
            keyClick(Qt.Key_End)
            compare(Math.round(list.contentY - list.originY), Math.round(list.contentHeight - list.height))
            keyClick(Qt.Key_Home)
            compare(list.contentY, list.originY)
        }

        function test_theArrowKeysGoFromRowToRowWhereRowsLeadSomewhere() {
            root.rowsLead = true
            // A pull before may still be swinging back.
            tryCompare(list, "moving", false)
            list.positionViewAtBeginning()
            list.forceActiveFocus()
            const at = () => root.Window.activeFocusItem.text
            keyClick(Qt.Key_Down)
            compare(at(), "row 0")
            verify(root.Window.activeFocusItem.showsFocus)
            keyClick(Qt.Key_Down)
            compare(at(), "row 1")
            keyClick(Qt.Key_End)
            compare(at(), "row 19")
            const last = root.Window.activeFocusItem.mapToItem(list, 0, 0).y
            verify(last >= 0 && last + Theme.rowHeight <= list.height, "what the keyboard reaches is seen")
            keyClick(Qt.Key_Down)
            compare(at(), "row 19")
            keyClick(Qt.Key_Home)
            keyClick(Qt.Key_Up)
            compare(at(), "row 0")
        }

        function test_f5RefreshesWhereverTheFocusIsOnThePage() {
            search.field.forceActiveFocus()
            keyClick(Qt.Key_F5)
            world.repeatKey(root, Qt.Key_F5)
            compare(root.screen.refreshes, 1)
        }

        function test_theHeaderIsOfTheListAndWhatStandsBelowTheRowsIsReadAfterThem() {
            compare(list.headerContent.width, list.width)
            compare(list.headerItem.height, list.headerContent.height)
            const heard = world.heard(list)
            const order = ["header", "row 0", "row 1", "加载更多"].map(name => heard.indexOf(name + "|"))
            verify(order[0] >= 0)
            compare(order, Array.from(order).sort((one, other) => one - other))
        }

        function test_coveringAListEndsWhatIsEditedOnIt() {
            search.field.forceActiveFocus()
            list.forceActiveFocus()
            root.screen.cover()
            page.forceActiveFocus()
            verify(page.activeFocus || search.activeFocus)
            verify(!search.field.activeFocus)
        }
    }
}
