pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui

/// Four pages to leaf through with a finger, the arrow keys or the buttons; the last one leads into the client.
FocusScope {
    id: guide

    required property TZGuideController controller
    readonly property list<string> headlines: ["配资＋炒股 一站式解决", "一份资金 四倍收益", "佣金低至万三", "账户托管 资金安全"]
    readonly property list<string> lines: ["开户、配资、买卖，一部手机全部完成", "最高四倍配资，首次五千元免息",
                                           "费用清楚透明，每一笔都看得见", "账户托管至新浪支付，充值提现随时可查"]

    focus: true
    Accessible.role: Accessible.Pane
    Accessible.name: "引导页"
    Keys.onRightPressed: controller.toNextPage()
    Keys.onLeftPressed: controller.toBeforePage()
    Keys.onEscapePressed: event => {
        if (!event.isAutoRepeat)
            controller.removeGuideView()
    }

    Binding {
        target: guide.controller
        property: "screenHeight"
        value: Math.round(guide.height)
    }
    ListView {
        id: leaves
        anchors.fill: parent
        orientation: ListView.Horizontal
        snapMode: ListView.SnapOneItem
        boundsBehavior: Flickable.StopAtBounds
        highlightRangeMode: ListView.StrictlyEnforceRange
        highlightMoveDuration: Theme.motion
        keyNavigationEnabled: false
        currentIndex: guide.controller.page
        model: guide.controller.pages
        onMovementEnded: guide.controller.page = currentIndex

        delegate: GuidePage {
            required property int index
            required property string modelData

            width: leaves.width
            height: leaves.height
            picture: modelData
            headline: guide.headlines[index] ?? ""
            line: guide.lines[index] ?? ""
        }
    }
    TextButton {
        anchors { right: parent.right; top: parent.top; margins: Theme.spacingSmall }
        anchors.topMargin: Theme.statusBarHeight
        visible: !guide.controller.lastPage
        deep: true
        textColour: tones.textSecondary
        text: "跳过"
        onClicked: guide.controller.removeGuideView()
    }
    Row {
        anchors { horizontalCenter: parent.horizontalCenter; bottom: next.top; bottomMargin: Theme.spacingHuge }
        spacing: Theme.spacingSmall

        Repeater {
            model: guide.controller.pages
            Rectangle {
                required property int index
                readonly property bool current: index === guide.controller.page

                width: current ? 20 : 8
                height: 8
                radius: 4
                color: current ? Theme.deep.accent : Theme.deep.disabled
            }
        }
    }
    PrimaryButton {
        id: next
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        anchors.margins: Theme.spacingHuge
        focus: true
        text: guide.controller.lastPage ? "立即体验" : "下一页"
        Accessible.description: {
            const page = guide.controller.page;
            return `${guide.headlines[page]}，${guide.lines[page]}，${guide.controller.pageText}`;
        }
        onClicked: guide.controller.lastPage ? guide.controller.removeGuideView() : guide.controller.toNextPage()
    }
}
