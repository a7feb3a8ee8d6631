import QtQuick

/// The panel of an empty list; fills its host.
Item {
    id: panel

    property string text: "暂无数据"
    property bool deep: false

    Accessible.role: Accessible.StaticText
    Accessible.name: text

    Column {
        anchors.centerIn: parent
        width: parent.width - 2 * Theme.margin
        spacing: Theme.spacing

        Icon {
            anchors.horizontalCenter: parent.horizontalCenter
            name: panel.deep ? "no_data_deep" : "no_data"
            size: 96
        }
        PlainText {
            width: parent.width
            text: panel.text
            font: Theme.body
            color: Theme.tones(panel.deep).textSecondary
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
        }
    }
}
