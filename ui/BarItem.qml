import QtQuick

/// An item of the navigation bar: a picture, a text, or both. A picture alone is named by what it does.
Tappable {
    id: item

    required property string image
    readonly property var names: ({
        "home_left": "菜单",
        "message": "消息，有未读",
        "no_message": "消息",
        "icon_more": "更多",
        "common_close_gray": "关闭",
        "common_back_gray": "返回",
        "real_trade_Info": "风险提示"
    })

    deep: true
    leftPadding: Theme.spacingSmall
    rightPadding: Theme.spacingSmall
    ringInset: 4
    opacity: available ? 1 : Theme.disabledOpacity
    Accessible.name: text !== "" ? text : names[image] ?? image
    contentItem: Row {
        spacing: Theme.spacingTiny
        opacity: item.pressed ? 0.6 : 1
        Icon {
            anchors.verticalCenter: parent.verticalCenter
            visible: item.image !== ""
            name: item.image
        }
        PlainText {
            anchors.verticalCenter: parent.verticalCenter
            visible: item.text !== ""
            text: item.text
            font: Theme.body
            color: Theme.navigationText
        }
    }
}
