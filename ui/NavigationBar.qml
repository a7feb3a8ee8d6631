import QtQuick
import Zorvane.Ui

/// The bar of a screen: the title or its picture in the middle, the items at the ends.
Rectangle {
    id: bar

    required property KRBaseController controller
    property alias titleSlot: titleSlot.data
    readonly property real sideWidth: Math.max(leftSlot.width, rightSlot.width)

    implicitHeight: Theme.statusBarHeight + Theme.navigationBarHeight
    color: Theme.navigationBar
    Accessible.role: Accessible.ToolBar
    Accessible.name: controller.title

    Row {
        id: leftSlot
        anchors { left: parent.left; bottom: parent.bottom; leftMargin: Theme.spacingTiny }
        height: Theme.navigationBarHeight
        IconButton {
            visible: bar.controller.showBackButton
            image: "common_back_gray"
            text: "返回"
            onClicked: bar.controller.backButtonClicked()
        }
        BarItem {
            visible: image !== "" || text !== ""
            image: bar.controller.leftItemImage
            text: bar.controller.leftItemTitle
            onClicked: bar.controller.leftItemClick()
        }
    }
    PlainText {
        anchors { bottom: parent.bottom; horizontalCenter: parent.horizontalCenter }
        width: Math.min(implicitWidth, bar.width - 2 * bar.sideWidth - Theme.spacingLarge)
        height: Theme.navigationBarHeight
        visible: bar.controller.titleImage === "" && titleSlot.children.length === 0
        text: bar.controller.title
        font: Theme.title
        color: Theme.navigationText
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    Image {
        anchors { bottom: parent.bottom; bottomMargin: 10; horizontalCenter: parent.horizontalCenter }
        height: 24
        visible: bar.controller.titleImage !== ""
        sourceSize.height: 24
        fillMode: Image.PreserveAspectFit
        source: Theme.image(bar.controller.titleImage)
        Accessible.role: Accessible.Heading
        Accessible.name: bar.controller.title
    }
    Item {
        id: titleSlot
        anchors { bottom: parent.bottom; horizontalCenter: parent.horizontalCenter }
        width: childrenRect.width
        height: Theme.navigationBarHeight
    }
    Row {
        id: rightSlot
        anchors { right: parent.right; bottom: parent.bottom; rightMargin: Theme.spacingTiny }
        height: Theme.navigationBarHeight
        BarItem {
            visible: image !== "" || text !== ""
            image: bar.controller.rightItemImage
            text: bar.controller.rightItemTitle
            onClicked: bar.controller.rightItemClick()
        }
    }
}
