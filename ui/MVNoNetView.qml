import QtQuick
import Zorvane.Ui

/// The panel of a page that could not be loaded, with a button that asks for it again.
Item {
    id: panel

    required property MVNoNetPanel noNet
    property string text: "网络异常"
    property string hint: "请检查网络设置后重试"
    property bool deep: false
    /// Without its picture, where room is scarce.
    property bool small: false

    Column {
        anchors { horizontalCenter: parent.horizontalCenter; verticalCenter: panel.small ? undefined : parent.verticalCenter }
        width: parent.width - 2 * Theme.margin
        spacing: Theme.spacing

        Icon {
            anchors.horizontalCenter: parent.horizontalCenter
            visible: !panel.small
            name: panel.deep ? "no_net_deep" : "no_net"
            size: 72
        }
        SpokenText {
            width: parent.width
            text: panel.text
            font: Theme.body
            color: Theme.tones(panel.deep).textPrimary
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
        }
        SpokenText {
            width: parent.width
            text: panel.hint
            font: Theme.label
            color: Theme.reloadHint
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
        }
        SecondaryButton {
            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.max(144, implicitWidth)
            deep: panel.deep
            text: "重新加载"
            onClicked: panel.noNet.clickReloadBtn()
        }
    }
}
