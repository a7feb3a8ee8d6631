pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui
import Zorvane.Trading

PageFrame {
    id: page

    readonly property TZSelectStockController screen: controller as TZSelectStockController

    colour: Theme.pageGray

    function move(event: KeyEvent) {
        const page = Math.max(1, Math.floor(list.height / Theme.rowHeight))
        const steps = {
            [Qt.Key_Up]: -1,
            [Qt.Key_Down]: 1,
            [Qt.Key_PageUp]: -page,
            [Qt.Key_PageDown]: page
        }
        event.accepted = event.key in steps
        if (event.accepted)
            screen.moveCurrentRow(steps[event.key])
    }

    Column {
        id: top
        width: parent.width

        TextInputRow {
            id: field
            focus: true
            icon: "search"
            text: page.screen.text
            placeholder: page.screen.placeholder
            description: page.screen.sentence
            inputMethodHints: Qt.ImhNoPredictiveText | Qt.ImhNoAutoUppercase
            onEdited: value => page.screen.text = value
            onAccepted: page.screen.pickCurrentRow()
            Keys.onPressed: event => page.move(event)
        }
        SectionHeader {
            visible: page.screen.recent
            text: "最近选择"

            TextButton {
                anchors { right: parent.right; rightMargin: Theme.spacingSmall; verticalCenter: parent.verticalCenter }
                text: "清除记录"
                font: Theme.label
                onClicked: page.screen.clearRecent()
            }
        }
    }
    ContentList {
        id: list
        anchors { left: parent.left; right: parent.right; top: top.bottom; bottom: parent.bottom }
        // The arrow keys of the field move through it.
        activeFocusOnTab: false
        reuseItems: true
        // Rows beyond the edge would be made later, when there may be fewer of them.
        cacheBuffer: 0
        model: page.screen.rows
        currentIndex: page.screen.currentRow
        highlightMoveDuration: 0
        onDragStarted: page.screen.scrollViewWillBeginDragging()
        Accessible.name: page.screen.title

        delegate: StockDelegate {
            width: ListView.view.width
            current: ListView.isCurrentItem
            onClicked: page.screen.pick(index)
            onDetailAsked: page.screen.openDetail(index)
        }
        footerContent: SpokenText {
            height: text === "" ? 0 : Theme.rowHeight
            text: page.screen.footnote
            font: Theme.label
            color: Theme.textSecondary
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
        }
    }
    MVNoDataView {
        anchors.fill: list
        visible: page.screen.notice !== "" && !page.screen.canRetry
        text: page.screen.notice
    }
    MVNoNetView {
        anchors.fill: list
        visible: page.screen.canRetry
        text: page.screen.notice
        hint: page.screen.retryHint
        noNet: page.screen.noNet
    }

    /// A text whose middle piece stands out, cut at the end of `room`.
    component Pieces: Row {
        id: pieces

        required property list<string> texts
        required property font style
        property color colour: Theme.textPrimary
        property real room: Infinity

        Repeater {
            model: pieces.texts

            PlainText {
                required property int index
                required property string modelData

                width: Math.max(0, Math.min(implicitWidth, pieces.room - x))
                text: modelData
                font: pieces.style
                elide: Text.ElideRight
                color: index === 1 ? Theme.link : pieces.colour
            }
        }
    }
    component StockDelegate: Tappable {
        id: row

        required property int index
        required property list<string> code
        required property list<string> name
        required property list<string> initials
        required property string sentence
        property bool current: false

        signal detailAsked

        /// It stands for another stock now.
        function drop() {
            letGo()
            detail.letGo()
        }

        implicitHeight: Theme.rowHeight
        ringInset: 2
        activeFocusOnTab: false
        text: sentence
        Accessible.role: Accessible.ListItem
        Accessible.selected: current
        ListView.onPooled: drop()
        onSentenceChanged: drop()

        background: Rectangle {
            color: row.pressed || row.current ? Theme.surfacePressed : Theme.surface

            Hairline {
                anchors { left: parent.left; right: parent.right; bottom: parent.bottom; leftMargin: Theme.margin }
            }
        }
        Item {
            id: texts
            anchors.fill: parent
            readonly property real room: ends.x - Theme.margin - Theme.spacingSmall

            TextMetrics {
                id: wholeName
                font: Theme.body
                text: Array.from(row.name).join("")
            }
            Column {
                anchors { left: parent.left; leftMargin: Theme.margin; verticalCenter: parent.verticalCenter }
                spacing: 2

                Pieces {
                    texts: row.name
                    style: Theme.body
                    room: texts.room
                }
                Pieces {
                    texts: row.code
                    style: Theme.caption
                    colour: Theme.textSecondary
                    room: texts.room
                }
            }
            Row {
                id: ends
                anchors { right: parent.right; rightMargin: Theme.spacingSmall; verticalCenter: parent.verticalCenter }
                spacing: Theme.spacingTiny

                Pieces {
                    anchors.verticalCenter: parent.verticalCenter
                    // A long name needs their place more.
                    visible: wholeName.width + implicitWidth < row.width - detail.width - 2 * Theme.margin - Theme.spacing
                    texts: row.initials
                    style: Theme.label
                    colour: Theme.textSecondary
                }
                TextButton {
                    id: detail
                    // The keyboard reaches that of the row which the arrow keys have chosen.
                    activeFocusOnTab: row.current
                    text: "行情"
                    Accessible.description: row.sentence
                    font: Theme.label
                    onClicked: row.detailAsked()
                }
            }
        }
    }
}
