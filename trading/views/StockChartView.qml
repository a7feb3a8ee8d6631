pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui
import Zorvane.Trading

/// A chart with its texts and its cross-hair, which follows the mouse, a finger that holds, the arrow keys, and by greater
/// steps PageUp, PageDown, Home and End. A drag moves a draggable chart through time; the wheel, two fingers, and plus and
/// minus zoom it.
Item {
    id: view

    required property StockChart chart
    property bool stale: false
    readonly property real zoomStep: 1.25
    /// Steps that lead to the end of any chart.
    readonly property int farAway: 100000
    /// In the order of ChartTone.
    readonly property var colours: [
        Theme.deep.textSecondary, Theme.deep.hairline, Theme.deep.rise, Theme.deep.fall, Theme.deep.flat,
        Theme.deep.accent, Theme.chartAverage, Theme.chartMa5, Theme.chartMa10, Theme.chartMa20, Theme.chartCost
    ]

    activeFocusOnTab: !chart.empty || activeFocus
    Accessible.role: Accessible.Chart
    Accessible.name: chart.sentence
    Accessible.description: chart.readOutSentence
    onActiveFocusChanged: if (!activeFocus) chart.pointAway()
    onVisibleChanged: if (!visible) chart.pointAway()
    Keys.onLeftPressed: chart.step(-1)
    Keys.onRightPressed: chart.step(1)
    Keys.onEscapePressed: event => event.accepted = chart.pointAway()
    Keys.onPressed: event => {
        const leaps = {
            [Qt.Key_PageUp]: -10,
            [Qt.Key_PageDown]: 10,
            [Qt.Key_Home]: -farAway,
            [Qt.Key_End]: farAway
        }
        if (event.key in leaps) {
            event.accepted = true
            chart.step(leaps[event.key])
            return
        }
        const closer = event.key === Qt.Key_Plus || event.key === Qt.Key_Equal
        event.accepted = chart.draggable && (closer || event.key === Qt.Key_Minus)
        if (event.accepted)
            chart.zoom(closer ? 1 / zoomStep : zoomStep, width)
    }

    ChartItem {
        id: drawing
        anchors.fill: parent
        chart: view.chart
        colours: view.colours
        labelHeight: Math.ceil(metrics.height)

        FontMetrics {
            id: metrics
            font: Theme.unit
        }
    }
    Row {
        id: legend
        height: drawing.labelHeight
        spacing: Theme.spacing

        Repeater {
            model: view.chart.legend

            PlainText {
                required text
                required property int tone

                height: legend.height
                verticalAlignment: Text.AlignVCenter
                font: Theme.unit
                color: view.stale ? Theme.deep.textSecondary : view.colours[tone]
            }
        }
    }
    Repeater {
        model: view.chart.labels

        PlainText {
            required text
            required property point place
            required property int side
            required property int tone

            x: Math.max(0, Math.min(view.width - width, Math.round(place.x - (side + 1) / 2 * width)))
            y: Math.round(place.y - height / 2)
            font: Theme.unit
            color: view.colours[tone]


            // Curves pass behind it.
            Rectangle {
                z: -1
                anchors { fill: parent; leftMargin: -2; rightMargin: -2 }
                color: Theme.deep.surface
                opacity: 0.85
            }
        }
    }
    Item {
        anchors.fill: parent
        visible: view.chart.crossed

        Rectangle {
            x: Math.round(view.chart.crossX)
            y: legend.height
            width: Theme.hairlineWidth
            height: parent.height - y
            color: Theme.deep.textSecondary
        }
        Rectangle {
            y: Math.round(view.chart.crossY)
            width: parent.width
            height: Theme.hairlineWidth
            color: Theme.deep.textSecondary
        }
        Tag {
            x: readOut.atLeft ? parent.width - width : 0
            y: Math.round(view.chart.crossY - height / 2)
            text: view.chart.crossPrice
        }
        Tag {
            x: Math.max(0, Math.min(parent.width - width, Math.round(view.chart.crossX - width / 2)))
            y: Math.round(view.chart.timeY - height / 2)
            text: view.chart.crossTime
        }
        ChartReadOut {
            id: readOut
            readonly property bool atLeft: view.chart.crossX > parent.width / 2

            x: atLeft ? Theme.spacingTiny : parent.width - width - Theme.spacingTiny
            y: legend.height + Theme.spacingTiny
            title: view.chart.crossTime
            model: view.chart.readOut
        }
    }
    Rectangle {
        anchors { fill: parent; margins: -Theme.spacingTiny }
        visible: view.activeFocus && LastInput.byKeyboard
        radius: Theme.radius
        color: Theme.transparent
        border.width: Theme.focusRingWidth
        border.color: Theme.deep.focusRing
    }
    MouseArea {
        id: hand
        property bool crossing: false
        property bool dragging: false
        property point last

        anchors.fill: parent
        hoverEnabled: true
        preventStealing: crossing || dragging
        onPressed: mouse => {
            last = Qt.point(mouse.x, mouse.y)
            view.forceActiveFocus(Qt.MouseFocusReason)
        }
        onPressAndHold: mouse => {
            crossing = true
            view.chart.pointAt(mouse.x, mouse.y)
        }
        onPositionChanged: mouse => {
            if (pressed && !crossing && !dragging && Math.abs(mouse.x - last.x) > drag.threshold) {
                crossing = !view.chart.draggable
                dragging = view.chart.draggable
                view.chart.pointAway()
            }
            if (dragging) {
                view.chart.drag(mouse.x - last.x)
                last = Qt.point(mouse.x, mouse.y)
            } else if (crossing || !pressed) {
                view.chart.pointAt(mouse.x, mouse.y)
            }
        }
        onReleased: letGo()
        onCanceled: letGo()
        onExited: view.chart.pointAway()
        onWheel: wheel => {
            wheel.accepted = view.chart.draggable
            if (wheel.angleDelta.y !== 0)
                view.chart.zoom(wheel.angleDelta.y > 0 ? 1 / view.zoomStep : view.zoomStep, wheel.x)
            else
                view.chart.drag(wheel.angleDelta.x)
            if (wheel.accepted && containsMouse)
                view.chart.pointAt(wheel.x, wheel.y)
        }

        function letGo() {
            crossing = false
            dragging = false
        }
    }
    PinchHandler {
        property real reached: 1

        enabled: view.chart.draggable
        target: null
        onActiveChanged: reached = 1
        onActiveScaleChanged: {
            view.chart.zoom(reached / activeScale, centroid.position.x)
            reached = activeScale
        }
    }

    component Tag: Rectangle {
        property alias text: words.text

        implicitWidth: words.implicitWidth + Theme.spacingSmall
        implicitHeight: words.implicitHeight
        color: Theme.deep.textSecondary

        PlainText {
            id: words
            anchors.centerIn: parent
            font: Theme.unit
            color: Theme.deep.page
        }
    }
}
